#include "FakeCaptureBackend.h"
#include "FakeScreenList.h"

#include "app/LaunchAtLogin.h"
#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "settings/AppSettings.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"
#include "ui/AccessIndicatorView.h"
#include "ui/GeneralSettingsView.h"
#include "ui/SettingsView.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

// The settings window and its General tab over a temporary settings file.
class tst_SettingsView final : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void tabsInOrder();
    void placeholdersAreReplaced();
    void controlsWriteAtOnce_data();
    void controlsWriteAtOnce();
    void controlsFollowTheStore_data();
    void controlsFollowTheStore();
    void durationSliderGivesOnlyHalfSecondsInRange();
    void stepperStopsAtItsLimits_data();
    void stepperStopsAtItsLimits();
    void displayResetAlsoRestoresMasterSwitch();
    void resetAllKeepsDisplaysPresetsAndShortcuts_data();
    void resetAllKeepsDisplaysPresetsAndShortcuts();
    void accessBadgeShowsGranted();

private:
    GeneralSettingsView &general() const
    {
        return *static_cast<GeneralSettingsView *>(m_view->content(SettingsView::general));
    }
    template <typename T> T *control(const QString &name) const
    {
        return general().findChild<T *>(name);
    }

    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    KeyboardLayoutTranslator m_translator{XkbKeyboardLayoutSource::fromNames(QStringLiteral("us"))};
    FakeCaptureBackend::Control m_control;
    std::unique_ptr<KeyManager> m_keyManager;
    FakeScreenList m_screens;
    std::unique_ptr<DisplaySettingsStore> m_displays;
    std::unique_ptr<LaunchAtLogin> m_launchAtLogin;
    std::unique_ptr<SettingsView> m_view;
};

void tst_SettingsView::init()
{
    QFile::remove(m_dir.filePath(QStringLiteral("Vantrel.conf")));
    m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
    m_keyManager = std::make_unique<KeyManager>(
        *m_store, std::make_unique<FakeCaptureBackend>(m_control), m_translator);
    m_screens.list = {{1, QStringLiteral("A"), QRect(0, 0, 1920, 1080), QRect(0, 0, 1920, 1080)}};
    m_screens.main = 1;
    m_displays = std::make_unique<DisplaySettingsStore>(*m_store, m_screens);
    m_launchAtLogin = std::make_unique<LaunchAtLogin>(QStringLiteral("/usr/bin/vantrel"));
    m_launchAtLogin->setEnabled(false);
    m_view = std::make_unique<SettingsView>(*m_store, *m_keyManager, *m_displays, *m_launchAtLogin,
                                            [](quint32) {});
}

void tst_SettingsView::cleanup()
{
    m_view.reset();
    m_keyManager.reset();
    m_displays.reset();
    m_store.reset();
}

void tst_SettingsView::tabsInOrder()
{
    QStringList titles;
    for (int i = 0; i < m_view->tabs()->count(); ++i)
        titles.append(m_view->tabs()->tabText(i));
    QCOMPARE(titles, QStringList({"General", "Appearance", "Displays", "Shortcuts", "About"}));
}

void tst_SettingsView::placeholdersAreReplaced()
{
    auto *appearance = new QWidget;
    QPointer<QWidget> placeholder = m_view->content(SettingsView::appearance);
    m_view->setAppearanceContent(appearance);
    QVERIFY(placeholder.isNull() && m_view->content(SettingsView::appearance) == appearance);
}

void tst_SettingsView::controlsWriteAtOnce_data()
{
    QTest::addColumn<int>("input"); // a value for sliders, steppers and menus; ignored by toggles
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("stored");
    for (const Setting<bool> *setting :
         {&AppSettings::isVantrelEnabled, &AppSettings::showAllKeys, &AppSettings::showModifierKeys,
          &AppSettings::showFunctionKeys, &AppSettings::showSpecialKeys,
          &AppSettings::showMouseClicks})
        QTest::newRow(setting->key) << 0 << setting->name() << QVariant(!setting->defaultValue);
    QTest::newRow("duration") << 7 << QStringLiteral("keyDisplayDuration") << QVariant(3.5);
    QTest::newRow("max keys") << 9 << QStringLiteral("keyMaxDisplayCount") << QVariant(9);
    QTest::newRow("menu bar icon")
        << 2 << QStringLiteral("menuBarIcon") << QVariant(QStringLiteral("keyboard.fill"));
}

void tst_SettingsView::controlsWriteAtOnce()
{
    QFETCH(int, input);
    QFETCH(QString, key);
    QFETCH(QVariant, stored);
    if (auto *toggle = control<QCheckBox>(key))
        toggle->click();
    else if (auto *slider = control<QSlider>(key))
        slider->setValue(input);
    else if (auto *stepper = control<QSpinBox>(key))
        stepper->setValue(input);
    else if (auto *menu = control<QComboBox>(key))
        menu->setCurrentIndex(input);
    QCOMPARE(m_store->rawValue(key), std::optional<QVariant>(stored));
}

void tst_SettingsView::controlsFollowTheStore_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("shown"); // the control's state, and its row's description
    QTest::newRow("duration") << QStringLiteral("keyDisplayDuration") << QVariant(4.5)
                              << QStringLiteral("9 4.5s");
    QTest::newRow("max keys") << QStringLiteral("keyMaxDisplayCount") << QVariant(7)
                              << QStringLiteral("7 7 keys");
    QTest::newRow("toggle") << QStringLiteral("showAllKeys") << QVariant(true)
                            << QStringLiteral("on");
    QTest::newRow("icon") << QStringLiteral("menuBarIcon")
                          << QVariant(QStringLiteral("textformat.123")) << QStringLiteral("8");
    QTest::newRow("unknown icon") << QStringLiteral("menuBarIcon")
                                  << QVariant(QStringLiteral("nonsense")) << QStringLiteral("0");
}

void tst_SettingsView::controlsFollowTheStore()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    QFETCH(QString, shown);
    m_store->setRawValue(key, value);
    QString state;
    if (auto *toggle = control<QCheckBox>(key))
        state = toggle->isChecked() ? "on" : "off";
    else if (auto *menu = control<QComboBox>(key))
        state = QString::number(menu->currentIndex());
    else if (key == "keyDisplayDuration")
        state = QString::number(general().durationSlider()->value()) + ' ' +
                GeneralSettingsView::durationText(m_store->value(AppSettings::keyDisplayDuration));
    else
        state = QString::number(general().maxKeysStepper()->value()) + ' ' +
                GeneralSettingsView::maxKeysText(m_store->value(AppSettings::keyMaxDisplayCount));
    QCOMPARE(state, shown);
}

void tst_SettingsView::durationSliderGivesOnlyHalfSecondsInRange()
{
    QSlider *slider = general().durationSlider();
    QList<double> written;
    for (int value = slider->minimum() - 2; value <= slider->maximum() + 2; ++value) {
        slider->setValue(value);
        written.append(m_store->value(AppSettings::keyDisplayDuration));
    }
    std::sort(written.begin(), written.end());
    written.erase(std::unique(written.begin(), written.end()), written.end());
    QList<double> expected;
    for (int halves = 1; halves <= 20; ++halves)
        expected.append(halves * 0.5);
    QCOMPARE(written, expected);
}

void tst_SettingsView::stepperStopsAtItsLimits_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("stored");
    QTest::newRow("down at 1") << 1 << -3 << 1;
    QTest::newRow("up at 20") << 20 << 3 << 20;
}

void tst_SettingsView::stepperStopsAtItsLimits()
{
    QFETCH(int, start);
    QFETCH(int, steps);
    QFETCH(int, stored);
    QSpinBox *stepper = general().maxKeysStepper();
    stepper->setValue(start);
    stepper->stepBy(steps);
    QCOMPARE(m_store->value(AppSettings::keyMaxDisplayCount), stored);
}

void tst_SettingsView::displayResetAlsoRestoresMasterSwitch()
{
    m_store->setValue(AppSettings::isVantrelEnabled, false);
    control<QPushButton>("resetGeneralSettings")->click();
    QVERIFY(!m_store->contains(AppSettings::isVantrelEnabled.name()));
}

void tst_SettingsView::resetAllKeepsDisplaysPresetsAndShortcuts_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("kept");
    for (const char *key : {"isVantrelEnabled", "keyDisplayDuration", "showAllKeys",
                            "showMouseClicks", "keySize", "selectedCustomPresetID", "menuBarIcon"})
        QTest::newRow(key) << QString::fromLatin1(key) << false;
    for (const char *key :
         {"displayConfigurations", "customKeyStylePresets", "KeyboardShortcuts_toggleVantrel"})
        QTest::newRow(key) << QString::fromLatin1(key) << true;
    QTest::newRow("launch at login") << QStringLiteral("launchAtLogin") << false;
}

void tst_SettingsView::resetAllKeepsDisplaysPresetsAndShortcuts()
{
    QFETCH(QString, key);
    QFETCH(bool, kept);
    const QVariantMap values{{"isVantrelEnabled", false},
                             {"keyDisplayDuration", 3.0},
                             {"showAllKeys", true},
                             {"showMouseClicks", true},
                             {"keySize", 3.0},
                             {"selectedCustomPresetID", "x"},
                             {"menuBarIcon", "keyboard"},
                             {"customKeyStylePresets", QByteArray("[]")},
                             {"KeyboardShortcuts_toggleVantrel", "Ctrl+Alt+K"}};
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        m_store->setRawValue(it.key(), it.value());
    m_launchAtLogin->setEnabled(true);

    // Confirm the alert as a user would.
    QTimer::singleShot(0, this, [] {
        auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        for (QAbstractButton *button : alert->buttons())
            if (button->text() == "Reset")
                button->click();
    });
    control<QPushButton>("resetAllSettings")->click();

    const bool present =
        key == "launchAtLogin" ? m_launchAtLogin->isEnabled() : m_store->contains(key);
    QCOMPARE(present, kept);
}

void tst_SettingsView::accessBadgeShowsGranted()
{
    QTRY_COMPARE(general().accessIndicator()->text(), QStringLiteral("Granted"));
}

QTEST_MAIN(tst_SettingsView)
#include "tst_SettingsView.moc"
