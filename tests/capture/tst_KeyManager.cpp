#include "FakeCaptureBackend.h"

#include "capture/KeyCode.h"
#include "capture/KeyManager.h"
#include "capture/KeyboardLayoutTranslator.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace {

using Type = CaptureEvent::Type;
constexpr quint64 shift = ModifierFlag::Shift;
constexpr quint64 ctrl = ModifierFlag::Control;
constexpr quint64 super = ModifierFlag::Command;

using Events = QList<CaptureEvent>;
const auto key = [](int keyCode, quint64 flags = 0) {
    return CaptureEvent{Type::keyDown, keyCode, flags, {}};
};
const auto mods = [](quint64 flags) { return CaptureEvent{Type::flagsChanged, -1, flags, {}}; };

QStringList labels(const QList<KeyPress> &keys)
{
    QStringList result;
    for (const KeyPress &press : keys)
        result.append(press.keyName);
    return result;
}

// One step of a secrecy case: events from the capture, or a word from a secrecy watcher.
struct Step {
    Events events{};
    std::function<void(Secrecy &)> report{};
    // Events only: whether the main thread applies them before the next step.
    bool applied = true;
};
using Steps = QList<Step>;
const auto up = [](int keyCode) { return CaptureEvent{Type::keyUp, keyCode, 0, {}}; };
const auto lock = [](Secrecy::LockSource source, bool locked) {
    return Step{{}, [=](Secrecy &secrecy) { secrecy.setLocked(source, locked); }};
};
const auto focus = [](const char *object) {
    return Step{{}, [=](Secrecy &secrecy) { secrecy.focusMoved(":1.5", object); }};
};
const auto role = [](const char *object, bool password) {
    return Step{{}, [=](Secrecy &secrecy) { secrecy.focusRoleKnown(":1.5", object, password); }};
};

} // namespace

Q_DECLARE_METATYPE(Events)
Q_DECLARE_METATYPE(Steps)

class tst_KeyManager final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    int m_stores = 0;
    std::unique_ptr<SettingsStore> m_store;
    KeyboardLayoutTranslator m_translator{XkbKeyboardLayoutSource::fromNames(QStringLiteral("us"))};
    std::unique_ptr<FakeCaptureBackend::Control> m_control;
    FakeCaptureBackend *m_backend = nullptr;
    std::unique_ptr<KeyManager> m_manager;
    int m_injected = 0;

    // A manager over the fake backend, listening unless the master switch is off; `settings`
    // are written once it listens.
    KeyManager &start(const QVariantMap &settings = {})
    {
        auto backend = std::make_unique<FakeCaptureBackend>(*m_control);
        m_backend = backend.get();
        m_manager = std::make_unique<KeyManager>(*m_store, std::move(backend), m_translator);
        if (m_store->value(AppSettings::isVantrelEnabled))
            (void)QTest::qWaitFor([this] { return m_manager->isListening(); }, 5000);
        for (auto it = settings.cbegin(); it != settings.cend(); ++it)
            m_store->setRawValue(it.key(), it.value());
        return *m_manager;
    }
    // Injects `events` and waits until the engine has handled them and applied what they changed.
    void send(const Events &events)
    {
        for (const CaptureEvent &event : events)
            m_backend->inject(event.type, event.keyCode, event.flags);
        m_injected += int(events.size());
        QTRY_COMPARE(m_control->delivered.load(), m_injected);
        QCoreApplication::sendPostedEvents();
    }

private slots:
    void init()
    {
        m_store = std::make_unique<SettingsStore>(m_dir.filePath(QString::number(++m_stores)));
        m_control = std::make_unique<FakeCaptureBackend::Control>();
        m_injected = 0;
    }

    void cleanup()
    {
        m_manager.reset();
        QCOMPARE(m_control->installed.load(), 0);
    }

    void filtering_data()
    {
        QTest::addColumn<QVariantMap>("settings");
        QTest::addColumn<Events>("events");
        QTest::addColumn<QStringList>("shown");

        const QVariantMap none, noSymbols{{"showModifierKeys", false}};
        const QVariantMap noSpecial{{"showSpecialKeys", false}}, clicks{{"showMouseClicks", true}};
        const int k = KeyCode::K;
        const Events click{{Type::leftMouseDown, -1, 0, {}}, {Type::rightMouseDown, -1, 0, {}}};
        QTest::newRow("plain k hidden") << none << Events{key(k)} << QStringList{};
        QTest::newRow("ctrl+k") << none << Events{mods(ctrl), key(k, ctrl), mods(0)}
                                << QStringList{"⌃", "K"};
        QTest::newRow("super, shift, k")
            << none << Events{mods(super), mods(super | shift), key(k, super | shift)}
            << QStringList{"⌘", "⇧", "K"};
        QTest::newRow("shift, super, k")
            << none << Events{mods(shift), mods(shift | super), key(k, super | shift)}
            << QStringList{"⌘", "⇧", "K"};
        // Shift with a letter is typing while modifier symbols show.
        QTest::newRow("shift+k hidden")
            << none << Events{mods(shift), key(k, shift), mods(0)} << QStringList{};
        QTest::newRow("shift+k, no symbols")
            << noSymbols << Events{mods(shift), key(k, shift)} << QStringList{"K"};
        QTest::newRow("lone super") << none << Events{mods(super), mods(0)} << QStringList{"⌘"};
        QTest::newRow("lone super, no symbols")
            << noSymbols << Events{mods(super), mods(0)} << QStringList{};
        QTest::newRow("return") << none << Events{key(KeyCode::Return)} << QStringList{"↩"};
        QTest::newRow("return, no special")
            << noSpecial << Events{key(KeyCode::Return)} << QStringList{};
        QTest::newRow("shift+return, no special")
            << noSpecial << Events{mods(shift), key(KeyCode::Return, shift)} << QStringList{};
        QTest::newRow("ctrl+return, no special")
            << noSpecial << Events{mods(ctrl), key(KeyCode::Return, ctrl)} << QStringList{"⌃", "↩"};
        QTest::newRow("f5 alone") << none << Events{key(KeyCode::F5)} << QStringList{"F5"};
        QTest::newRow("clicks off") << none << click << QStringList{};
        QTest::newRow("clicks on") << clicks << click << QStringList{"Left Click", "Right Click"};
        QTest::newRow("fourth drops the oldest")
            << QVariantMap{{"showAllKeys", true}, {"keyMaxDisplayCount", 3}}
            << Events{key(KeyCode::A), key(KeyCode::S), key(KeyCode::D), key(KeyCode::A), key(k)}
            << QStringList{"D", "A", "K"};
        QTest::newRow("master switch off")
            << QVariantMap{{"isVantrelEnabled", false},
                           {"showAllKeys", true},
                           {"showMouseClicks", true}}
            << (Events{mods(super), key(k, super), key(KeyCode::F5)} + click) << QStringList{};
    }
    void filtering()
    {
        QFETCH(QVariantMap, settings);
        QFETCH(Events, events);
        QFETCH(QStringList, shown);
        KeyManager &manager = start(settings);
        send(events);
        QCOMPARE(labels(manager.sortedKeysForDisplay()), shown);
    }

    void repeatsKeepOneCapWithRenewedLifeThenItExpires()
    {
        KeyManager &manager = start({{"showAllKeys", true}, {"keyDisplayDuration", 0.5}});
        bool emptied = false;
        connect(&manager, &KeyManager::currentKeysChanged, this,
                [&] { emptied = emptied || manager.currentKeys().isEmpty(); });
        // Held for a second, repeating every 0.1 s: longer than the record's own lifetime.
        QElapsedTimer held;
        held.start();
        send({key(KeyCode::K)});
        QCOMPARE(labels(manager.currentKeys()), QStringList{"K"});
        const double first = manager.currentKeys().first().timestamp;
        while (held.elapsed() < 1000) {
            QTest::qWait(100);
            send({key(KeyCode::K)});
            QCOMPARE(labels(manager.currentKeys()), QStringList{"K"});
        }
        QVERIFY(!emptied);
        QVERIFY(manager.currentKeys().first().timestamp > first + 0.5);
        // After the last repeat the cap still goes, within the duration + 0.1 s (with room for a
        // busy machine), not at a sweep much later.
        held.restart();
        QTRY_VERIFY_WITH_TIMEOUT(manager.currentKeys().isEmpty(), 3000);
        QVERIFY2(held.elapsed() < 800, qPrintable(QString::number(held.elapsed())));
    }

    void startingTwiceInstallsOneCapture()
    {
        KeyManager &manager = start({{"showAllKeys", true}});
        QSignalSpy listening(&manager, &KeyManager::isListeningChanged);
        manager.startListening();
        manager.startListening();
        // The queue runs the capture again, and so delivers the key, only after both starts.
        send({key(KeyCode::K)});
        QCOMPARE(m_control->installed.load(), 1);
        QCOMPARE(listening.count(), 0);
        QCOMPARE(labels(manager.currentKeys()), QStringList{"K"});
    }

    void stopWhenNotListeningDoesNothing()
    {
        m_store->setValue(AppSettings::isVantrelEnabled, false);
        KeyManager &manager = start();
        QSignalSpy listening(&manager, &KeyManager::isListeningChanged);
        manager.stopListening();
        manager.stopListening();
        QTest::qWait(50);
        QVERIFY(!manager.isListening());
        QCOMPARE(listening.count(), 0);
        QCOMPARE(m_control->installed.load(), 0);
    }

    void secretKeysNeverShow_data()
    {
        QTest::addColumn<Steps>("steps");
        QTest::addColumn<QStringList>("shown");
        using Source = Secrecy::LockSource;
        const int k = KeyCode::K;
        const Step typing{{key(k), mods(ctrl), {Type::leftMouseDown, -1, 0, {}}, mods(0)}};
        const Step typeM{{key(KeyCode::M)}}, pressK{{key(k)}}, repeatAndReleaseK{{key(k), up(k)}};
        const Step locked = lock(Source::logind, true), unlocked = lock(Source::logind, false);
        const Step inEntry = focus("/entry/1"), ordinary = role("/entry/1", false);
        const Step inPassword = focus("/pw"), password = role("/pw", true);
        const Step leftPassword{{}, [](Secrecy &secrecy) { secrecy.focusLeft(":1.5", "/pw"); }};
        const Step applicationGone{{}, [](Secrecy &secrecy) { secrecy.applicationGone(":1.5"); }};
        const auto screenSaver = [&](Source source) {
            return Steps{lock(source, true), lock(source, true), typing, lock(source, false),
                         typeM};
        };

        QTest::newRow("lock clears the caps and hides typing")
            << Steps{typeM, locked, typing} << QStringList{};
        QTest::newRow("unlock shows the next press, GNOME")
            << screenSaver(Source::gnomeScreenSaver) << QStringList{"M"};
        QTest::newRow("a signal twice, freedesktop")
            << screenSaver(Source::freedesktopScreenSaver) << QStringList{"M"};
        QTest::newRow("locked while any source says so")
            << Steps{locked, lock(Source::x11ScreenSaver, true), unlocked, typeM} << QStringList{};
        QTest::newRow("key held through the lock: no cap after unlock")
            << Steps{locked, pressK, unlocked, repeatAndReleaseK, typeM} << QStringList{"M"};
        QTest::newRow("key seen before the lock, shown after it")
            << Steps{{{key(k)}, {}, false}, locked, unlocked} << QStringList{};
        QTest::newRow("role not known yet hides") << Steps{inEntry, typing} << QStringList{};
        QTest::newRow("caps shown stay while a new focus's role is asked")
            << Steps{typeM, inEntry, ordinary} << QStringList{"M"};
        QTest::newRow("ordinary field shows")
            << Steps{inEntry, ordinary, typeM} << QStringList{"M"};
        QTest::newRow("password field hides")
            << Steps{inPassword, password, typing} << QStringList{};
        QTest::newRow("focus reported twice keeps the known role")
            << Steps{inEntry, ordinary, inEntry, typeM} << QStringList{"M"};
        QTest::newRow("late role of an earlier focus is ignored")
            << Steps{inEntry, focus("/entry/2"), ordinary, typeM} << QStringList{};
        QTest::newRow("focus leaves the password field between press and release")
            << Steps{inPassword, password, pressK, inEntry, ordinary, repeatAndReleaseK, typeM}
            << QStringList{"M"};
        QTest::newRow("password field loses the focus")
            << Steps{inPassword, password, leftPassword, typeM} << QStringList{"M"};
        QTest::newRow("application gone with its password field")
            << Steps{inPassword, password, applicationGone, typeM} << QStringList{"M"};
    }
    void secretKeysNeverShow()
    {
        QFETCH(Steps, steps);
        QFETCH(QStringList, shown);
        KeyManager &manager = start({{"showAllKeys", true}, {"showMouseClicks", true}});
        for (const Step &step : steps) {
            if (step.report) {
                step.report(manager.secrecy());
                continue;
            }
            if (step.applied) {
                send(step.events);
                continue;
            }
            for (const CaptureEvent &event : step.events)
                m_backend->inject(event.type, event.keyCode, event.flags);
            m_injected += int(step.events.size());
            // Waits without running the event loop, which would apply the keys.
            QDeadlineTimer deadline(5000);
            while (m_control->delivered.load() < m_injected && !deadline.hasExpired())
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            QCOMPARE(m_control->delivered.load(), m_injected);
        }
        QCoreApplication::sendPostedEvents();
        QCOMPARE(labels(manager.sortedKeysForDisplay()), shown);
    }
};

QTEST_GUILESS_MAIN(tst_KeyManager)
#include "tst_KeyManager.moc"
