#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "platform/x11/X11CaptureBackend.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <cstdlib>
#include <memory>

#include <unistd.h>

namespace {

QStringList labels(const QList<KeyPress> &keys)
{
    QStringList result;
    for (const KeyPress &key : keys)
        result.append(key.keyName);
    return result;
}

// X keycodes (evdev + 8) of keys pressed by position.
constexpr quint8 usYKeycode = 29;
constexpr quint8 usKKeycode = 45;

} // namespace

// The X11 capture under the engine, against a private Xvfb driven by xdotool and XTest.
class tst_X11Capture final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void unreachableDisplayIsRefused();
    void pressesOnTheServer_data();
    void pressesOnTheServer();
    void clickRecords_data();
    void clickRecords();
    void layoutSwitchNamesTheNextKey();
    void heldKeyRepeats();
    void serverGoneEndsListening();

private:
    void run(const QString &program, const QStringList &arguments);
    // XTest key presses and releases by keycode, on a connection of the test's own.
    void fakeKey(quint8 keycode, bool press);
    void clearKeys();

    QProcess m_xvfb;
    QByteArray m_display;
    QTemporaryDir m_dir;
    std::unique_ptr<SettingsStore> m_store;
    std::shared_ptr<XkbKeyboardLayoutSource> m_layout;
    std::unique_ptr<KeyboardLayoutTranslator> m_translator;
    std::unique_ptr<KeyManager> m_manager;
    xcb_connection_t *m_xtest = nullptr;
};

void tst_X11Capture::initTestCase()
{
    for (const char *tool : {"Xvfb", "xdotool", "setxkbmap", "xset"})
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
            QFAIL("Xvfb, xdotool, setxkbmap and xset are needed");
    int fds[2];
    QVERIFY(pipe(fds) == 0);
    m_xvfb.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_xvfb.start(QStringLiteral("Xvfb"),
                 {QStringLiteral("-displayfd"), QString::number(fds[1]),
                  QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset"),
                  QStringLiteral("-screen"), QStringLiteral("0"), QStringLiteral("640x480x24")});
    QVERIFY(m_xvfb.waitForStarted());
    ::close(fds[1]);
    // Xvfb writes its display number once it accepts connections.
    QByteArray number;
    char c;
    while (::read(fds[0], &c, 1) == 1 && c != '\n')
        number.append(c);
    ::close(fds[0]);
    QVERIFY2(!number.isEmpty(), "Xvfb did not start");
    m_display = ':' + number;

    run(QStringLiteral("setxkbmap"),
        {QStringLiteral("-display"), QString::fromLatin1(m_display), QStringLiteral("us")});
    m_xtest = xcb_connect(m_display.constData(), nullptr);
    QVERIFY(!xcb_connection_has_error(m_xtest));

    QVERIFY(m_dir.isValid());
    m_store = std::make_unique<SettingsStore>(m_dir.filePath(QStringLiteral("Vantrel.conf")));
    m_layout = XkbKeyboardLayoutSource::fromNames(QStringLiteral("us"));
    QVERIFY(m_layout);
    m_translator = std::make_unique<KeyboardLayoutTranslator>(m_layout);
    m_manager = std::make_unique<KeyManager>(
        *m_store, std::make_unique<X11CaptureBackend>(m_display, m_layout), *m_translator);
    QVERIFY(m_manager->hasInputMonitoringPermission());
    QTRY_VERIFY(m_manager->isListening());
}

void tst_X11Capture::cleanupTestCase()
{
    m_manager.reset();
    if (m_xtest)
        xcb_disconnect(m_xtest);
    if (m_xvfb.state() != QProcess::NotRunning) {
        m_xvfb.terminate();
        if (!m_xvfb.waitForFinished(3000))
            m_xvfb.kill();
    }
}

void tst_X11Capture::init()
{
    if (m_manager && m_manager->isListening())
        clearKeys();
}

void tst_X11Capture::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), QString::fromLatin1(m_display));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(program, arguments);
    QVERIFY2(process.waitForFinished(10000), qPrintable(program));
    QCOMPARE(process.exitCode(), 0);
}

void tst_X11Capture::fakeKey(quint8 keycode, bool press)
{
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_xtest)).data->root;
    xcb_test_fake_input(m_xtest, press ? XCB_KEY_PRESS : XCB_KEY_RELEASE, keycode, XCB_CURRENT_TIME,
                        root, 0, 0, 0);
    // A round trip: the server has handled the fake input before the test goes on.
    std::free(xcb_get_input_focus_reply(m_xtest, xcb_get_input_focus(m_xtest), nullptr));
}

void tst_X11Capture::clearKeys()
{
    // Every record goes at the next sweep; then records live long enough for slow machines.
    m_store->setValue(AppSettings::keyDisplayDuration, 0.001);
    QTRY_VERIFY(m_manager->currentKeys().isEmpty());
    for (const QString &key : {AppSettings::showAllKeys.name(), AppSettings::showMouseClicks.name(),
                               AppSettings::keyMaxDisplayCount.name()})
        m_store->remove(key);
    m_store->setValue(AppSettings::keyDisplayDuration, 30.0);
}

void tst_X11Capture::unreachableDisplayIsRefused()
{
    X11CaptureBackend backend(":65000");
    const CaptureBackend::Access access = backend.checkAccess();
    QVERIFY(!access.granted);
    QVERIFY(access.reason.contains(QStringLiteral(":65000")));
    QVERIFY(!backend.install());
}

void tst_X11Capture::pressesOnTheServer_data()
{
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<QStringList>("xdotool");
    QTest::addColumn<QStringList>("shown");

    const QVariantMap defaults;
    const QVariantMap allKeys{{"showAllKeys", true}};
    QTest::newRow("ctrl+k") << defaults << QStringList{"key", "ctrl+k"} << QStringList{"⌃", "K"};
    QTest::newRow("super+shift+k")
        << defaults << QStringList{"key", "super+shift+k"} << QStringList{"⌘", "⇧", "K"};
    QTest::newRow("alt+x") << defaults << QStringList{"key", "alt+x"} << QStringList{"⌥", "X"};
    QTest::newRow("plain k hidden, f5 shown")
        << defaults << QStringList{"key", "k", "F5"} << QStringList{"F5"};
    QTest::newRow("shift+1 with every key")
        << allKeys << QStringList{"key", "shift+1"} << QStringList{"⇧", "1"};
    QTest::newRow("space and return with every key")
        << allKeys << QStringList{"key", "space", "Return"} << QStringList{"␣", "↩"};
}

void tst_X11Capture::pressesOnTheServer()
{
    QFETCH(QVariantMap, settings);
    QFETCH(QStringList, xdotool);
    QFETCH(QStringList, shown);

    for (auto it = settings.cbegin(); it != settings.cend(); ++it)
        m_store->setRawValue(it.key(), it.value());
    run(QStringLiteral("xdotool"), xdotool);
    QTRY_COMPARE(labels(m_manager->sortedKeysForDisplay()), shown);
}

void tst_X11Capture::clickRecords_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("label");
    QTest::addColumn<qint64>("keyCode");
    QTest::addColumn<MouseClickButton>("mouseButton");

    QTest::newRow("left") << 1 << "Left Click" << KeyPress::leftClickCode << MouseClickButton::left;
    QTest::newRow("right") << 3 << "Right Click" << KeyPress::rightClickCode
                           << MouseClickButton::right;
}

void tst_X11Capture::clickRecords()
{
    QFETCH(int, button);
    QFETCH(QString, label);
    QFETCH(qint64, keyCode);
    QFETCH(MouseClickButton, mouseButton);

    // Not shown while clicks are off.
    run(QStringLiteral("xdotool"), {QStringLiteral("click"), QString::number(button)});
    QTest::qWait(200);
    QVERIFY(m_manager->currentKeys().isEmpty());

    m_store->setValue(AppSettings::showMouseClicks, true);
    run(QStringLiteral("xdotool"), {QStringLiteral("click"), QString::number(button)});
    QTRY_COMPARE(m_manager->currentKeys().size(), 1);
    const KeyPress click = m_manager->currentKeys().first();
    QCOMPARE(click.keyName, label);
    QCOMPARE(click.keyCode, keyCode);
    QVERIFY(click.category == KeyCategory::mouse(mouseButton));
}

void tst_X11Capture::layoutSwitchNamesTheNextKey()
{
    m_store->setValue(AppSettings::showAllKeys, true);
    fakeKey(usYKeycode, true);
    fakeKey(usYKeycode, false);
    QTRY_COMPARE(labels(m_manager->currentKeys()), QStringList{"Y"});

    run(QStringLiteral("setxkbmap"), {QStringLiteral("de")});
    fakeKey(usYKeycode, true);
    fakeKey(usYKeycode, false);
    QTRY_COMPARE(labels(m_manager->currentKeys()), (QStringList{"Y", "Z"}));

    run(QStringLiteral("setxkbmap"), {QStringLiteral("us")});
    fakeKey(usYKeycode, true);
    fakeKey(usYKeycode, false);
    QTRY_COMPARE(labels(m_manager->currentKeys()), (QStringList{"Z", "Y"}));
}

void tst_X11Capture::heldKeyRepeats()
{
    // Held well beyond its lifetime, the key stays on show only if the capture repeats it.
    run(QStringLiteral("xset"),
        {QStringLiteral("r"), QStringLiteral("rate"), QStringLiteral("200"), QStringLiteral("25")});
    m_store->setValue(AppSettings::showAllKeys, true);
    m_store->setValue(AppSettings::keyDisplayDuration, 0.6);
    fakeKey(usKKeycode, true);
    QTRY_COMPARE(labels(m_manager->currentKeys()), QStringList{"K"});
    const double firstPress = m_manager->currentKeys().first().timestamp;
    QTest::qWait(1500);
    QCOMPARE(labels(m_manager->currentKeys()), QStringList{"K"});
    QVERIFY(m_manager->currentKeys().first().timestamp > firstPress + 1.0);

    // Released, the repeat ends and the cap expires.
    fakeKey(usKKeycode, false);
    QTRY_VERIFY_WITH_TIMEOUT(m_manager->currentKeys().isEmpty(), 3000);
}

void tst_X11Capture::serverGoneEndsListening()
{
    QTest::ignoreMessage(QtWarningMsg,
                         "Vantrel: the connection to the X server was lost; key capture has "
                         "stopped.");
    xcb_disconnect(m_xtest);
    m_xtest = nullptr;
    m_xvfb.kill();
    QVERIFY(m_xvfb.waitForFinished(3000));
    QTRY_VERIFY_WITH_TIMEOUT(!m_manager->isListening(), 3000);
    // Stopping and destroying the manager afterwards is clean.
    m_manager->stopListening();
    m_manager.reset();
}

QTEST_GUILESS_MAIN(tst_X11Capture)
#include "tst_X11Capture.moc"
