#include "FakeCaptureBackend.h"

#include "capture/KeyCode.h"
#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

using Type = CaptureEvent::Type;

constexpr quint64 shift = ModifierFlag::Shift;
constexpr quint64 control = ModifierFlag::Control;
constexpr quint64 option = ModifierFlag::Option;
constexpr quint64 command = ModifierFlag::Command;
constexpr quint64 capsLock = ModifierFlag::CapsLock;

struct Event {
    Type type;
    int keyCode;
    quint64 flags;
};
using Events = QList<Event>;

Event down(int keyCode, quint64 flags = 0)
{
    return {Type::keyDown, keyCode, flags};
}
Event up(int keyCode, quint64 flags = 0)
{
    return {Type::keyUp, keyCode, flags};
}
Event flagsChanged(quint64 flags)
{
    return {Type::flagsChanged, -1, flags};
}
Event leftClick()
{
    return {Type::leftMouseDown, -1, 0};
}
Event rightClick()
{
    return {Type::rightMouseDown, -1, 0};
}

QStringList labels(const QList<KeyPress> &keys)
{
    QStringList result;
    for (const KeyPress &key : keys)
        result.append(key.keyName);
    return result;
}

} // namespace

Q_DECLARE_METATYPE(Events)

class tst_KeyManager : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void filtering_data();
    void filtering();
    void clickRecords();
    void repeatsKeepOneCapWithRenewedLife();
    void recordExpiresAfterItsDuration();
    void sweepFollowsALoweredDuration();

    void startingTwiceInstallsOneCapture();
    void stopWhenNotListeningDoesNothing();
    void stopThenStartAgain();
    void refusedAccessOnlyAsks();
    void failedInstallReportsAndStaysIdle();
    void captureThatEndsStopsListening();
    void destroyingWhileListeningRemovesTheCapture();

private:
    // A manager over the fake backend; waits until it listens when `isVantrelEnabled` is on.
    KeyManager &createManager();
    void inject(const Events &events);
    // Waits until the engine has handled every injected event and applied what they changed.
    void settle();

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<SettingsStore> m_store;
    std::unique_ptr<KeyboardLayoutTranslator> m_translator;
    FakeCaptureBackend::Control m_control;
    FakeCaptureBackend *m_backend = nullptr;
    std::unique_ptr<KeyManager> m_manager;
    int m_injected = 0;
};

void tst_KeyManager::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_store = std::make_unique<SettingsStore>(m_dir->filePath(QStringLiteral("Vantrel.conf")));
    std::shared_ptr<KeyboardLayoutSource> us =
        XkbKeyboardLayoutSource::fromNames(QStringLiteral("us"));
    QVERIFY(us);
    m_translator = std::make_unique<KeyboardLayoutTranslator>(us);
    m_control.accessGranted = true;
    m_control.installFails = false;
    m_control.installCount = 0;
    m_control.uninstallCount = 0;
    m_control.requestCount = 0;
    m_control.installed = 0;
    m_control.delivered = 0;
    m_injected = 0;
}

void tst_KeyManager::cleanup()
{
    m_manager.reset();
    QCOMPARE(m_control.installed.load(), 0);
    m_backend = nullptr;
    m_translator.reset();
    m_store.reset();
    m_dir.reset();
}

KeyManager &tst_KeyManager::createManager()
{
    auto backend = std::make_unique<FakeCaptureBackend>(m_control);
    m_backend = backend.get();
    m_manager = std::make_unique<KeyManager>(*m_store, std::move(backend), *m_translator);
    if (m_store->value(AppSettings::isVantrelEnabled) && m_control.accessGranted &&
        !m_control.installFails)
        (void)QTest::qWaitFor([this] { return m_manager->isListening(); }, 5000);
    return *m_manager;
}

void tst_KeyManager::inject(const Events &events)
{
    for (const Event &event : events)
        m_backend->inject(event.type, event.keyCode, event.flags);
    m_injected += int(events.size());
}

void tst_KeyManager::settle()
{
    QTRY_COMPARE(m_control.delivered.load(), m_injected);
    QCoreApplication::sendPostedEvents();
}

void tst_KeyManager::filtering_data()
{
    QTest::addColumn<QVariantMap>("settings");
    QTest::addColumn<Events>("events");
    QTest::addColumn<QStringList>("shown");

    using K = QVariantMap;
    const K defaults;
    const K allKeys{{"showAllKeys", true}};
    const K noModifiers{{"showModifierKeys", false}};
    const K noSpecial{{"showSpecialKeys", false}};
    const K noFunction{{"showFunctionKeys", false}};
    const K clicks{{"showMouseClicks", true}};

    // Only shortcuts by default.
    QTest::newRow("plain k hidden")
        << defaults << Events{down(KeyCode::K), up(KeyCode::K)} << QStringList{};
    QTest::newRow("ctrl+k") << defaults
                            << Events{flagsChanged(control), down(KeyCode::K, control),
                                      up(KeyCode::K, control), flagsChanged(0)}
                            << QStringList{"⌃", "K"};
    QTest::newRow("super then shift then k")
        << defaults
        << Events{flagsChanged(command), flagsChanged(command | shift),
                  down(KeyCode::K, command | shift)}
        << QStringList{"⌘", "⇧", "K"};
    QTest::newRow("shift then super then k")
        << defaults
        << Events{flagsChanged(shift), flagsChanged(shift | command),
                  down(KeyCode::K, shift | command)}
        << QStringList{"⌘", "⇧", "K"};
    QTest::newRow("all four modifiers, display order")
        << K{{"keyMaxDisplayCount", 5}}
        << Events{flagsChanged(shift), flagsChanged(shift | option),
                  flagsChanged(shift | option | control),
                  down(KeyCode::K, shift | option | control | command)}
        << QStringList{"⌘", "⌃", "⌥", "⇧", "K"};
    QTest::newRow("option+left arrow")
        << defaults << Events{flagsChanged(option), down(KeyCode::LeftArrow, option)}
        << QStringList{"⌥", "←"};

    // Shift with a letter is typing while modifier symbols show.
    QTest::newRow("shift+k hidden")
        << defaults << Events{flagsChanged(shift), down(KeyCode::K, shift), flagsChanged(0)}
        << QStringList{};
    QTest::newRow("shift+k without modifier symbols")
        << noModifiers << Events{flagsChanged(shift), down(KeyCode::K, shift)} << QStringList{"K"};
    QTest::newRow("shift+k with every key")
        << allKeys << Events{flagsChanged(shift), down(KeyCode::K, shift)} << QStringList{"⇧", "K"};
    QTest::newRow("caps lock is no modifier symbol")
        << defaults << Events{flagsChanged(capsLock), down(KeyCode::K, capsLock)} << QStringList{};

    // Lone modifiers.
    QTest::newRow("lone command") << defaults << Events{flagsChanged(command), flagsChanged(0)}
                                  << QStringList{"⌘"};
    QTest::newRow("lone command, symbols off")
        << noModifiers << Events{flagsChanged(command), flagsChanged(0)} << QStringList{};
    QTest::newRow("lone shift") << defaults << Events{flagsChanged(shift), flagsChanged(0)}
                                << QStringList{};
    QTest::newRow("release re-adds what is still held")
        << K{{"keyMaxDisplayCount", 1}}
        << Events{flagsChanged(control), flagsChanged(control | option), flagsChanged(option)}
        << QStringList{"⌥"};

    // Special keys.
    QTest::newRow("return alone") << defaults << Events{down(KeyCode::Return)} << QStringList{"↩"};
    QTest::newRow("return alone, special off")
        << noSpecial << Events{down(KeyCode::Return)} << QStringList{};
    QTest::newRow("shift+return, special off")
        << noSpecial << Events{flagsChanged(shift), down(KeyCode::Return, shift)} << QStringList{};
    QTest::newRow("ctrl+return, special off")
        << noSpecial << Events{flagsChanged(control), down(KeyCode::Return, control)}
        << QStringList{"⌃", "↩"};

    // Function keys.
    QTest::newRow("f5 alone") << defaults << Events{down(KeyCode::F5)} << QStringList{"F5"};
    QTest::newRow("f5 with ctrl") << defaults
                                  << Events{flagsChanged(control), down(KeyCode::F5, control)}
                                  << QStringList{"⌃", "F5"};
    QTest::newRow("f5, function keys off")
        << noFunction << Events{flagsChanged(control), down(KeyCode::F5, control)}
        << QStringList{"⌃"};
    QTest::newRow("f13 has no name") << allKeys << Events{down(KeyCode::F13)} << QStringList{};

    // Clicks.
    QTest::newRow("clicks off") << defaults << Events{leftClick(), rightClick()} << QStringList{};
    QTest::newRow("clicks on") << clicks << Events{leftClick(), rightClick()}
                               << QStringList{"Left Click", "Right Click"};

    // The list: one cap per label, the oldest dropped beyond the count.
    QTest::newRow("repeats keep one cap")
        << allKeys << Events{down(KeyCode::K), down(KeyCode::K), down(KeyCode::K)}
        << QStringList{"K"};
    QTest::newRow("fourth label drops the oldest")
        << K{{"showAllKeys", true}, {"keyMaxDisplayCount", 3}}
        << Events{down(KeyCode::A), down(KeyCode::S), down(KeyCode::D), down(KeyCode::F)}
        << QStringList{"S", "D", "F"};
    QTest::newRow("pressing again moves to the end")
        << K{{"showAllKeys", true}, {"keyMaxDisplayCount", 3}}
        << Events{down(KeyCode::A), down(KeyCode::S), down(KeyCode::D), down(KeyCode::A),
                  down(KeyCode::F)}
        << QStringList{"D", "A", "F"};
    QTest::newRow("modifier symbol stands once")
        << defaults
        << Events{flagsChanged(command), down(KeyCode::K, command), down(KeyCode::J, command)}
        << QStringList{"⌘", "K", "J"};

    // The master switch.
    QTest::newRow("master switch off")
        << K{{"isVantrelEnabled", false}, {"showAllKeys", true}, {"showMouseClicks", true}}
        << Events{flagsChanged(command), down(KeyCode::K, command), down(KeyCode::F5), leftClick()}
        << QStringList{};
}

void tst_KeyManager::filtering()
{
    QFETCH(QVariantMap, settings);
    QFETCH(Events, events);
    QFETCH(QStringList, shown);

    KeyManager &manager = createManager();
    QVERIFY(manager.isListening());
    // Settings changed while listening take effect from the next event.
    for (auto it = settings.cbegin(); it != settings.cend(); ++it)
        m_store->setRawValue(it.key(), it.value());
    inject(events);
    settle();
    QCOMPARE(labels(manager.sortedKeysForDisplay()), shown);
}

void tst_KeyManager::clickRecords()
{
    m_store->setValue(AppSettings::showMouseClicks, true);
    KeyManager &manager = createManager();
    inject({leftClick(), rightClick()});
    settle();
    const QList<KeyPress> keys = manager.currentKeys();
    QCOMPARE(keys.size(), 2);
    QCOMPARE(keys[0].keyCode, KeyPress::leftClickCode);
    QVERIFY(keys[0].category == KeyCategory::mouse(MouseClickButton::left));
    QCOMPARE(keys[1].keyCode, KeyPress::rightClickCode);
    QVERIFY(keys[1].category == KeyCategory::mouse(MouseClickButton::right));
}

void tst_KeyManager::repeatsKeepOneCapWithRenewedLife()
{
    m_store->setValue(AppSettings::showAllKeys, true);
    m_store->setValue(AppSettings::keyDisplayDuration, 0.4);
    KeyManager &manager = createManager();
    bool everEmptyAfterFirst = false;
    connect(&manager, &KeyManager::currentKeysChanged, this, [&] {
        if (m_injected > 0 && manager.currentKeys().isEmpty())
            everEmptyAfterFirst = true;
    });

    // Held for a second, repeating every 0.1 s: longer than the record's own lifetime.
    QElapsedTimer held;
    held.start();
    double firstTimestamp = 0;
    while (held.elapsed() < 1000) {
        inject({down(KeyCode::K)});
        settle();
        const QList<KeyPress> keys = manager.currentKeys();
        QCOMPARE(labels(keys), QStringList{"K"});
        if (firstTimestamp == 0)
            firstTimestamp = keys.first().timestamp;
        QTest::qWait(100);
    }
    QVERIFY(!everEmptyAfterFirst);
    QVERIFY(manager.currentKeys().first().timestamp > firstTimestamp + 0.5);
    // After the last repeat the cap still goes away.
    QTRY_VERIFY_WITH_TIMEOUT(manager.currentKeys().isEmpty(), 2000);
}

void tst_KeyManager::recordExpiresAfterItsDuration()
{
    m_store->setValue(AppSettings::showAllKeys, true);
    m_store->setValue(AppSettings::keyDisplayDuration, 0.2);
    KeyManager &manager = createManager();
    inject({down(KeyCode::K)});
    settle();
    QElapsedTimer sinceAdded;
    sinceAdded.start();
    QCOMPARE(manager.currentKeys().size(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(manager.currentKeys().isEmpty(), 3000);
    // Its own expiry, not the sweep of some later tick: duration + 0.1 s, with room for a busy
    // machine.
    QVERIFY2(sinceAdded.elapsed() < 300 + 200, qPrintable(QString::number(sinceAdded.elapsed())));
}

void tst_KeyManager::sweepFollowsALoweredDuration()
{
    m_store->setValue(AppSettings::showAllKeys, true);
    m_store->setValue(AppSettings::keyDisplayDuration, 30.0);
    KeyManager &manager = createManager();
    inject({down(KeyCode::K), down(KeyCode::J)});
    settle();
    QCOMPARE(manager.currentKeys().size(), 2);
    QTest::qWait(50);
    QCOMPARE(manager.currentKeys().size(), 2);

    QElapsedTimer sinceLowered;
    sinceLowered.start();
    m_store->setValue(AppSettings::keyDisplayDuration, 0.01);
    QTRY_VERIFY_WITH_TIMEOUT(manager.currentKeys().isEmpty(), 3000);
    QVERIFY2(sinceLowered.elapsed() < 100 + 300,
             qPrintable(QString::number(sinceLowered.elapsed())));
}

void tst_KeyManager::startingTwiceInstallsOneCapture()
{
    KeyManager &manager = createManager();
    QSignalSpy listening(&manager, &KeyManager::isListeningChanged);
    manager.startListening();
    manager.startListening();
    // A later stop and start round-trip proves the queue has handled both starts.
    m_store->setValue(AppSettings::showAllKeys, true);
    inject({down(KeyCode::K)});
    settle();
    QCOMPARE(m_control.installCount.load(), 1);
    QCOMPARE(m_control.installed.load(), 1);
    QVERIFY(manager.isListening());
    QCOMPARE(listening.count(), 0);
    QCOMPARE(labels(manager.currentKeys()), QStringList{"K"});
}

void tst_KeyManager::stopWhenNotListeningDoesNothing()
{
    m_store->setValue(AppSettings::isVantrelEnabled, false);
    KeyManager &manager = createManager();
    QSignalSpy listening(&manager, &KeyManager::isListeningChanged);
    manager.stopListening();
    manager.stopListening();
    QTest::qWait(50);
    QVERIFY(!manager.isListening());
    QCOMPARE(listening.count(), 0);
    QCOMPARE(m_control.installCount.load(), 0);
    QCOMPARE(m_control.uninstallCount.load(), 0);
}

void tst_KeyManager::stopThenStartAgain()
{
    KeyManager &manager = createManager();
    QSignalSpy listening(&manager, &KeyManager::isListeningChanged);
    manager.stopListening();
    QTRY_VERIFY(!manager.isListening());
    QCOMPARE(m_control.installed.load(), 0);
    manager.startListening();
    QTRY_VERIFY(manager.isListening());
    QCOMPARE(listening.count(), 2);
    QCOMPARE(m_control.installCount.load(), 2);
    QCOMPARE(m_control.installed.load(), 1);

    m_store->setValue(AppSettings::showAllKeys, true);
    inject({down(KeyCode::J)});
    settle();
    QCOMPARE(labels(manager.currentKeys()), QStringList{"J"});
}

void tst_KeyManager::refusedAccessOnlyAsks()
{
    m_control.accessGranted = false;
    KeyManager &manager = createManager();
    QVERIFY(!manager.hasInputMonitoringPermission());
    QVERIFY(!manager.inputMonitoringProblem().isEmpty());
    QTRY_COMPARE(m_control.requestCount.load(), 1);
    QSignalSpy permission(&manager, &KeyManager::hasInputMonitoringPermissionChanged);

    // The user grants access; the next start only refreshes the permission.
    m_control.accessGranted = true;
    manager.startListening();
    QTRY_VERIFY(manager.hasInputMonitoringPermission());
    QCOMPARE(permission.count(), 1);
    QVERIFY(manager.inputMonitoringProblem().isEmpty());
    QCOMPARE(m_control.requestCount.load(), 2);
    QCOMPARE(m_control.installCount.load(), 0);
    QVERIFY(!manager.isListening());

    manager.startListening();
    QTRY_VERIFY(manager.isListening());
    QCOMPARE(m_control.installCount.load(), 1);
}

void tst_KeyManager::failedInstallReportsAndStaysIdle()
{
    m_control.installFails = true;
    QTest::ignoreMessage(QtWarningMsg, "Failed to create event tap");
    KeyManager &manager = createManager();
    QSignalSpy listening(&manager, &KeyManager::isListeningChanged);
    QTest::qWait(100);
    QVERIFY(!manager.isListening());
    QCOMPARE(listening.count(), 0);
    QVERIFY(manager.hasInputMonitoringPermission());
}

void tst_KeyManager::captureThatEndsStopsListening()
{
    KeyManager &manager = createManager();
    m_backend->endCapture();
    QTRY_VERIFY(!manager.isListening());
    QCOMPARE(m_control.installed.load(), 0);
    manager.startListening();
    QTRY_VERIFY(manager.isListening());
    QCOMPARE(m_control.installCount.load(), 2);
}

void tst_KeyManager::destroyingWhileListeningRemovesTheCapture()
{
    m_store->setValue(AppSettings::showAllKeys, true);
    KeyManager &manager = createManager();
    // Events still on their way to the main thread are dropped with the manager.
    for (int i = 0; i < 1000; ++i)
        m_backend->inject(Type::keyDown, KeyCode::K);
    Q_UNUSED(manager);
    m_manager.reset();
    QCOMPARE(m_control.installed.load(), 0);
    QCOMPARE(m_control.uninstallCount.load(), 1);
    QCoreApplication::sendPostedEvents();
}

QTEST_GUILESS_MAIN(tst_KeyManager)
#include "tst_KeyManager.moc"
