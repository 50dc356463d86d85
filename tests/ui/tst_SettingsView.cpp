#include "FakeCaptureBackend.h"
#include "FakeScreenList.h"

#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"
#include "ui/LoginItem.h"
#include "ui/PermissionStatusView.h"
#include "ui/SettingsForm.h"
#include "ui/SettingsView.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

// The settings window and its General tab over a temporary settings file.
namespace {

struct FakeLoginItem final : LoginItem {
    bool isEnabled() const override { return enabled; }
    void setEnabled(bool on) override { enabled = on; }
    bool enabled = false;
};

} // namespace

class tst_SettingsView final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    KeyboardLayoutTranslator m_translator{XkbKeyboardLayoutSource::fromNames(QStringLiteral("us"))};
    FakeCaptureBackend::Control m_control;
    std::unique_ptr<KeyManager> m_keyManager;
    FakeScreenList m_screens;
    std::unique_ptr<DisplaySettingsStore> m_displays;
    FakeLoginItem m_launchAtLogin;
    std::unique_ptr<SettingsView> m_view;

    // Sets a control of the General tab (named after its setting) as a user would.
    void set(const QString &key, int value)
    {
        QWidget *general = m_view->content(SettingsView::general);
        if (auto *toggle = general->findChild<QCheckBox *>(key))
            toggle->click();
        else if (auto *slider = general->findChild<QSlider *>(key))
            slider->setValue(value);
        else if (auto *stepper = general->findChild<QSpinBox *>(key))
            stepper->setValue(value);
        else
            general->findChild<QComboBox *>(key)->setCurrentIndex(value);
    }

private slots:
    void init()
    {
        QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
        m_keyManager = std::make_unique<KeyManager>(
            *m_store, std::make_unique<FakeCaptureBackend>(m_control), m_translator);
        m_screens.list = {{1, QStringLiteral("A"), {0, 0, 800, 600}, {0, 0, 800, 600}}};
        m_displays = std::make_unique<DisplaySettingsStore>(*m_store, m_screens);
        m_launchAtLogin.setEnabled(false);
        m_view = std::make_unique<SettingsView>(*m_store, *m_keyManager, *m_displays,
                                                m_launchAtLogin, [](quint32) {});
    }

    void cleanup()
    {
        m_view.reset();
        m_keyManager.reset();
        m_displays.reset();
    }

    void controlsWriteAtOnce_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("input"); // ignored by toggles, which are clicked
        QTest::addColumn<QVariant>("stored");
        for (const Setting<bool> *s :
             {&AppSettings::isVantrelEnabled, &AppSettings::showAllKeys,
              &AppSettings::showModifierKeys, &AppSettings::showFunctionKeys,
              &AppSettings::showSpecialKeys, &AppSettings::showMouseClicks})
            QTest::newRow(s->key) << s->name() << 0 << QVariant(!s->defaultValue);
        const auto row = [](const char *name, const char *key, int input, const QVariant &stored) {
            QTest::newRow(name) << QString::fromLatin1(key) << input << stored;
        };
        row("duration", "keyDisplayDuration", 7, 3.5);
        row("duration below 0.5", "keyDisplayDuration", 0, 0.5);
        row("duration above 10", "keyDisplayDuration", 21, 10.0);
        row("max keys", "keyMaxDisplayCount", 9, 9);
        row("max keys below 1", "keyMaxDisplayCount", 0, 1);
        row("max keys above 20", "keyMaxDisplayCount", 21, 20);
        row("menu bar icon", "menuBarIcon", 2, QStringLiteral("keyboard.fill"));
    }
    void controlsWriteAtOnce()
    {
        QFETCH(QString, key);
        QFETCH(int, input);
        QFETCH(QVariant, stored);
        set(key, input);
        QCOMPARE(m_store->rawValue(key), std::optional<QVariant>(stored));
    }

    // Typing "15" stores 15 once it is entered, never 1 on the way (the overlay would drop to
    // one key for a moment).
    void typedKeyCountIsStoredWhenEntered()
    {
        auto *stepper = m_view->content(SettingsView::general)
                            ->findChild<QSpinBox *>(AppSettings::keyMaxDisplayCount.name());
        QList<int> stored;
        const QObject observer;
        m_store->observe(AppSettings::keyMaxDisplayCount.name(), &observer,
                         [&] { stored.append(m_store->value(AppSettings::keyMaxDisplayCount)); });
        stepper->selectAll();
        QTest::keyClicks(stepper, QStringLiteral("15"));
        QTest::keyClick(stepper, Qt::Key_Return);
        QCOMPARE(stored, QList<int>{15});
    }

    // A change made elsewhere shows, and showing it writes nothing back.
    void controlsFollowTheStore_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("shown"); // the control's value and its row's description
        QTest::newRow("duration") << QStringLiteral("keyDisplayDuration") << QVariant(4.5)
                                  << QStringLiteral("9 4.5s");
        QTest::newRow("max keys") << QStringLiteral("keyMaxDisplayCount") << QVariant(7)
                                  << QStringLiteral("7 7 keys");
        QTest::newRow("toggle") << QStringLiteral("showAllKeys") << QVariant(true)
                                << QStringLiteral("true Display every key press");
        QTest::newRow("unknown icon") << QStringLiteral("menuBarIcon") << QVariant("nonsense")
                                      << QStringLiteral("0 Choose the icon for the menu bar");
    }
    void controlsFollowTheStore()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        QFETCH(QString, shown);
        m_store->setRawValue(key, value);
        QWidget *control = m_view->content(SettingsView::general)->findChild<QWidget *>(key);
        QString state = control
                            ->property(control->inherits("QComboBox")   ? "currentIndex"
                                       : control->inherits("QCheckBox") ? "checked"
                                                                        : "value")
                            .toString();
        for (QWidget *w = control; w; w = w->parentWidget())
            if (auto *row = qobject_cast<SettingsRow *>(w);
                row && row->descriptionLabel()->isVisibleTo(row))
                state += ' ' + row->descriptionLabel()->text();
        QCOMPARE(state + (m_store->rawValue(key) == value ? "" : " rewritten"), shown);
    }

    // Every row of the General tab's sections within reach: 500 high on a screen that allows.
    void opensAtFullHeight()
    {
        m_view->showAndRaise();
        QCOMPARE(m_view->size(),
                 QSize(SettingsView::windowWidth, SettingsView::maximumWindowHeight));
    }

    void permissionStatusIsSymbolThenText_data()
    {
        QTest::addColumn<bool>("granted");
        QTest::addColumn<QString>("symbol");
        QTest::addColumn<QString>("text");
        QTest::newRow("granted") << true << u"checkmark.circle.fill"_qs << u"Granted"_qs;
        QTest::newRow("not granted") << false << u"xmark.circle.fill"_qs << u"Not Granted"_qs;
    }
    void permissionStatusIsSymbolThenText()
    {
        QFETCH(bool, granted);
        QFETCH(QString, symbol);
        QFETCH(QString, text);
        PermissionStatusView status;
        status.setGranted(granted);
        status.show();
        const QList<QLabel *> parts = status.findChildren<QLabel *>();
        QCOMPARE(parts.size(), 2);
        QVERIFY(!parts[0]->pixmap().isNull());
        QCOMPARE(parts[0]->geometry().right() + 1 + 4, parts[1]->geometry().left());
        QCOMPARE(parts[1]->text(), text);
        QCOMPARE(status.symbolName(), symbol);
    }

    // The default shown for an unknown icon name can be picked, which stores it.
    void iconPickerStoresTheDefaultShownForAnUnknownName()
    {
        m_store->setRawValue(u"menuBarIcon"_qs, u"nonsense"_qs);
        auto *picker =
            m_view->content(SettingsView::general)->findChild<QComboBox *>(u"menuBarIcon"_qs);
        emit picker->activated(picker->currentIndex());
        QCOMPARE(m_store->value(AppSettings::menuBarIcon), u"MenuBarIcon"_qs);
        QCOMPARE(m_store->rawValue(u"menuBarIcon"_qs), std::optional<QVariant>(u"MenuBarIcon"_qs));
    }

    void resetButtons_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("kept");
        const auto row = [](const char *button, const char *key, bool kept) {
            QTest::newRow(qPrintable(QStringLiteral("%1 %2").arg(button, key)))
                << QString::fromLatin1(button) << QString::fromLatin1(key) << kept;
        };
        // The Display section's reset restores the master switch too.
        row("resetGeneralSettings", "isVantrelEnabled", false);
        for (const char *key :
             {"isVantrelEnabled", "keyDisplayDuration", "showAllKeys", "showMouseClicks", "keySize",
              "selectedCustomPresetID", "menuBarIcon", "launchAtLogin"})
            row("resetAllSettings", key, false);
        for (const char *key :
             {"displayConfigurations", "customKeyStylePresets", "KeyboardShortcuts_toggleVantrel"})
            row("resetAllSettings", key, true);
    }
    void resetButtons()
    {
        QFETCH(QString, button);
        QFETCH(QString, key);
        QFETCH(bool, kept);
        for (const char *k : {"isVantrelEnabled", "keyDisplayDuration", "showAllKeys",
                              "showMouseClicks", "keySize", "selectedCustomPresetID", "menuBarIcon",
                              "customKeyStylePresets", "KeyboardShortcuts_toggleVantrel"})
            m_store->setRawValue(QString::fromLatin1(k), QStringLiteral("1"));
        m_launchAtLogin.setEnabled(true);
        // Confirm the alert as a user would.
        QTimer::singleShot(0, this, [] {
            if (auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                for (QAbstractButton *b : alert->buttons())
                    if (b->text() == "Reset")
                        b->click();
        });
        m_view->content(SettingsView::general)->findChild<QPushButton *>(button)->click();
        QCOMPARE(key == "launchAtLogin" ? m_launchAtLogin.isEnabled() : m_store->contains(key),
                 kept);
    }
};

QTEST_MAIN(tst_SettingsView)
#include "tst_SettingsView.moc"
