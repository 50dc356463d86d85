#include "FakeCaptureBackend.h"
#include "FakeHotKeyGrabber.h"
#include "FakeScreenList.h"

#include "app/AppActions.h"
#include "app/TrayMenu.h"
#include "app/UiLanguage.h"
#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "settings/CustomKeyStylePresetStore.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"
#include "shortcuts/KeyboardShortcuts.h"
#include "ui/AppearanceSettingsView.h"
#include "ui/KeyShortcutsSettingsView.h"
#include "ui/LoginItem.h"
#include "ui/SettingsView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTranslator>
#include <QXmlStreamReader>

#include <memory>

// The language chosen at start, and the tray menu and every settings tab in each language (German
// and Japanese among them): no English text left, no text cut off in the 500-pixel window.
namespace {

struct FakeLoginItem final : LoginItem {
    bool isEnabled() const override { return false; }
    void setEnabled(bool) override {}
};

// The English texts that a language translates differently, read from its .ts file.
QSet<QString> translatedSources(const QString &language)
{
    QFile file(QStringLiteral(VANTREL_TS_DIR "/vantrel_%1.ts").arg(language));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QSet<QString> sources;
    QString source;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"source")
            source = xml.readElementText();
        else if (xml.name() == u"translation" &&
                 xml.readElementText(QXmlStreamReader::IncludeChildElements) != source)
            sources.insert(source);
    }
    return sources;
}

QString plainText(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return QString(button->text()).remove(u'&');
    if (const auto *box = qobject_cast<const QGroupBox *>(widget))
        return box->title();
    return {};
}

// Why a widget's text does not fit, or an empty string.
QString cutOff(const QWidget *widget, const QWidget *viewport)
{
    const QString text = plainText(widget);
    if (text.isEmpty())
        return {};
    const QFontMetrics metrics = widget->fontMetrics();
    const int right = widget->mapTo(viewport, QPoint(widget->width(), 0)).x();
    if (right > viewport->width())
        return QStringLiteral("ends at %1 beyond the window's %2")
            .arg(right)
            .arg(viewport->width());
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        const QRect room = label->contentsRect();
        if (label->wordWrap()) {
            // Wrapped: as many lines as the text needs, and no word wider than the label.
            if (label->heightForWidth(label->width()) > label->height())
                return QStringLiteral("needs %1 pixels of height, has %2")
                    .arg(label->heightForWidth(label->width()))
                    .arg(label->height());
            const QStringList words = text.split(QRegularExpression(QStringLiteral("\\s+")));
            for (const QString &word : words)
                if (metrics.horizontalAdvance(word) > room.width())
                    return QStringLiteral("the word \"%1\" is wider than %2 pixels")
                        .arg(word)
                        .arg(room.width());
            return {};
        }
        const int needed = metrics.boundingRect(QRect(0, 0, 10000, 10000), 0, text).width();
        return needed > room.width()
                   ? QStringLiteral("needs %1 pixels, has %2").arg(needed).arg(room.width())
                   : QString();
    }
    if (const auto *box = qobject_cast<const QGroupBox *>(widget))
        return metrics.horizontalAdvance(text) > box->contentsRect().width()
                   ? QStringLiteral("title wider than the section")
                   : QString();
    // Style tiles draw their caption a size smaller, elided to the tile less its padding.
    if (!qobject_cast<const QCheckBox *>(widget) && !qobject_cast<const QPushButton *>(widget) &&
        !qobject_cast<const QToolButton *>(widget)) {
        QFont caption = widget->font();
        caption.setPointSizeF(caption.pointSizeF() * 0.85);
        const int needed = QFontMetrics(caption).horizontalAdvance(text);
        return needed > widget->width() - 8
                   ? QStringLiteral("needs %1 pixels, has %2").arg(needed).arg(widget->width() - 8)
                   : QString();
    }
    // A button's size hint is the text's advance plus the style's room around it (indicator,
    // icon, margins).
    return widget->sizeHint().width() > widget->width() ? QStringLiteral("needs %1 pixels, has %2")
                                                              .arg(widget->sizeHint().width())
                                                              .arg(widget->width())
                                                        : QString();
}

void removeTranslators()
{
    for (QTranslator *translator : qApp->findChildren<QTranslator *>()) {
        QCoreApplication::removeTranslator(translator);
        delete translator;
    }
}

} // namespace

class tst_LocalizedUi final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    void cleanup() { removeTranslators(); }

    void choosesTheFirstLanguageVantrelSpeaks_data()
    {
        QTest::addColumn<QStringList>("preferred");
        QTest::addColumn<QString>("chosen");
        QTest::newRow("German") << QStringList{"de-DE", "de-Latn-DE", "de"} << "de";
        QTest::newRow("no translation, then French") << QStringList{"he-IL", "fr"} << "fr";
        QTest::newRow("English first") << QStringList{"en-US", "de"} << "";
        QTest::newRow("C locale") << QStringList{"C"} << "";
        QTest::newRow("Brazil") << QStringList{"pt-BR"} << "pt_BR";
        QTest::newRow("mainland China") << QStringList{"zh-CN", "zh-Hans-CN", "zh"} << "zh_CN";
        // Traditional Chinese readers do not get Simplified Chinese.
        QTest::newRow("Taiwan") << QStringList{"zh-TW", "zh-Hant-TW"} << "";
    }
    void choosesTheFirstLanguageVantrelSpeaks()
    {
        QFETCH(QStringList, preferred);
        QFETCH(QString, chosen);
        // Missing translations are normal, not worth a warning.
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        QCOMPARE(UiLanguage::install(preferred, {QStringLiteral(VANTREL_QM_DIR)}), chosen);
        QCOMPARE(qApp->findChildren<QTranslator *>().isEmpty(), chosen.isEmpty());
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }

    void trayMenuAndTabsAreTranslatedAndWhole_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : QStringLiteral(VANTREL_LANGUAGES).split(u','))
            QTest::newRow(qPrintable(language)) << language;
    }
    void trayMenuAndTabsAreTranslatedAndWhole()
    {
        QFETCH(QString, language);
        QCOMPARE(UiLanguage::install({language}, {QStringLiteral(VANTREL_QM_DIR)}), language);
        const QSet<QString> english = translatedSources(language);
        QVERIFY(english.size() > 150);

        QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        SettingsStore store(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        KeyboardLayoutTranslator translator(
            XkbKeyboardLayoutSource::fromNames(QStringLiteral("us")));
        FakeCaptureBackend::Control control;
        KeyManager keyManager(store, std::make_unique<FakeCaptureBackend>(control), translator);
        FakeScreenList screens;
        screens.list = {
            {1, QStringLiteral("DP-1"), {0, 0, 1920, 1080}, {0, 0, 1920, 1080}},
            {2, QStringLiteral("HDMI-1"), {1920, 0, 1920, 1080}, {1920, 0, 1920, 1080}}};
        DisplaySettingsStore displays(store, screens);
        FakeLoginItem login;
        CustomKeyStylePresetStore presets(store);
        KeyboardShortcuts shortcuts(store, std::make_unique<FakeHotKeyGrabber>());
        AppActions actions(store, keyManager, screens);
        TrayMenu tray(store, actions);

        QStringList untranslated;
        const std::function<void(const QMenu &)> readMenu = [&](const QMenu &menu) {
            for (const QAction *row : menu.actions()) {
                if (english.contains(QString(row->text()).remove(u'&')))
                    untranslated.append(QStringLiteral("tray: ") + row->text());
                if (row->menu())
                    readMenu(*row->menu());
            }
        };
        readMenu(tray.menu());

        SettingsView view(store, keyManager, displays, login, [](quint32) {});
        view.setAppearanceContent(new AppearanceSettingsView(store, presets));
        view.setShortcutsContent(new KeyShortcutsSettingsView(shortcuts));
        view.show();
        auto *tabs = view.findChild<QTabWidget *>();
        QVERIFY(tabs);
        QStringList cut;
        int texts = 0;
        for (int tab = 0; tab < tabs->count(); ++tab) {
            if (english.contains(tabs->tabText(tab)))
                untranslated.append(QStringLiteral("tab: ") + tabs->tabText(tab));
            tabs->setCurrentIndex(tab);
            QCoreApplication::processEvents();
            const auto *scroll = static_cast<QScrollArea *>(tabs->widget(tab));
            for (const QWidget *widget : scroll->widget()->findChildren<QWidget *>()) {
                const QString text = plainText(widget);
                if (!widget->isVisible() || text.isEmpty())
                    continue;
                ++texts;
                if (english.contains(text))
                    untranslated.append(tabs->tabText(tab) + u": " + text);
                if (const QString problem = cutOff(widget, scroll->viewport()); !problem.isEmpty())
                    cut.append(tabs->tabText(tab) + u": \"" + text + u"\" " + problem);
            }
        }
        const QTabBar *bar = tabs->tabBar();
        if (bar->sizeHint().width() > bar->width())
            cut.append(QStringLiteral("the tab titles need %1 pixels, have %2")
                           .arg(bar->sizeHint().width())
                           .arg(bar->width()));
        QVERIFY(texts > 50);
        QVERIFY2(untranslated.isEmpty(), qPrintable(untranslated.join(u'\n')));
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(u'\n')));
    }
};

QTEST_MAIN(tst_LocalizedUi)
#include "tst_LocalizedUi.moc"
