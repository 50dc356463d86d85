#pragma once

#include "capture/CaptureBackend.h"
#include "capture/KeyDisplayWindow.h"
#include "capture/KeyNaming.h"
#include "capture/KeyPress.h"
#include "capture/Secrecy.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <unordered_set>
#include <vector>

class DisplaySettingsStore;
class KeyboardLayoutTranslator;
class SettingsStore;

// The key event engine: owns the global input capture, turns key presses, modifier changes and
// clicks into KeyPress records and keeps the bounded, self-expiring list of records on show.
//
// Threads: the capture backend runs on the engine's own capture thread (a serial queue of start
// and stop requests). Naming and filtering happen there; every change of the published state is
// handed to the main thread, which owns the key list and the timers. The capture thread never
// waits for the main thread.
class KeyManager final : public QObject, private CaptureEventHandler {
    Q_OBJECT
    Q_PROPERTY(bool isListening READ isListening NOTIFY isListeningChanged)
    Q_PROPERTY(QList<KeyPress> currentKeys READ currentKeys NOTIFY currentKeysChanged)
    Q_PROPERTY(bool hasInputMonitoringPermission READ hasInputMonitoringPermission NOTIFY
                   hasInputMonitoringPermissionChanged)

public:
    // Reads the settings from `settings`, checks access, and starts listening when
    // `isVantrelEnabled` is on. While listening it keeps one overlay window, made by
    // `windowFactory`, on each display that `displayStore` enables (none without the two).
    // Everything passed in must outlive the manager.
    KeyManager(SettingsStore &settings, std::unique_ptr<CaptureBackend> backend,
               KeyboardLayoutTranslator &translator, DisplaySettingsStore *displayStore = nullptr,
               KeyDisplayWindowFactory *windowFactory = nullptr, QObject *parent = nullptr);
    ~KeyManager() override;

    bool isListening() const { return m_isListening; }
    QList<KeyPress> currentKeys() const { return m_currentKeys; }
    bool hasInputMonitoringPermission() const { return m_hasInputMonitoringPermission; }
    // Why capture is not possible, for people; empty while access is granted.
    QString inputMonitoringProblem() const { return m_inputMonitoringProblem; }
    // What a person does to give access, step by step (the capture backend's own steps).
    QStringList inputMonitoringAccessSteps() const { return m_backend->accessSteps(); }
    // Whether askForInputMonitoringAccess() can show the desktop's password dialog.
    bool canAskForInputMonitoringAccess() const { return m_backend->canAskForAccess(); }
    bool hasCompletedInitialization() const { return m_hasCompletedInitialization; }

    // Both return at once; the work runs on the capture thread, in the order requested.
    void startListening();
    void stopListening();
    // Checks access again (for instance after the user fixed it) and publishes the result.
    void checkInputMonitoringPermission();
    // Asks the user for access where the backend can (the user chose to); listens once given.
    void askForInputMonitoringAccess();

    // `currentKeys` in display order: modifier symbols first (⌘ ⌃ ⌥ ⇧), then oldest first.
    QList<KeyPress> sortedKeysForDisplay() const;

    // The overlay windows by display identifier (only while listening and nothing is secret).
    QMap<quint32, KeyDisplayWindow *> keyDisplayWindows() const;

    // Whether keys are secret now (a locked session, a focused password field). While they
    // are, nothing is added, and the caps on show go at once with their windows: no removal
    // is played that would show the last keys again. The platform's watchers report here.
    Secrecy &secrecy() { return m_secrecy; }

signals:
    void isListeningChanged(bool isListening);
    void currentKeysChanged();
    void hasInputMonitoringPermissionChanged(bool granted);
    // Why capture is not possible changed (empty: it is).
    void inputMonitoringProblemChanged(const QString &problem);

private:
    enum class Task { start, stop, ask, quit };

    // A change computed on the capture thread, applied on the main thread in arrival order.
    struct PendingChange {
        enum class Kind { keyDown, flagsChanged, click, listening, permission };
        Kind kind = Kind::keyDown;
        quint64 flags = 0;
        qint64 keyCode = 0;
        KeyCategory category{};
        QString text{}; // the key's name, or the reason access was refused
        bool value = false;
        // Secrecy::state() when the event was seen: a key whose secrecy changed on its way to
        // the main thread is dropped (in doubt, hide).
        quint64 secrecyState = 0;
    };

    // The settings the engine reads, mirrored for cheap reads from the capture thread and
    // refreshed on the main thread whenever the store changes.
    struct LiveSettings {
        std::atomic<bool> isVantrelEnabled{false};
        std::atomic<double> keyDisplayDuration{0.0};
        std::atomic<int> keyMaxDisplayCount{0};
        std::atomic<bool> showAllKeys{false};
        std::atomic<bool> showModifierKeys{false};
        std::atomic<bool> showFunctionKeys{false};
        std::atomic<bool> showSpecialKeys{false};
        std::atomic<bool> showMouseClicks{false};
    };

    // ---- Capture thread ----
    void runCaptureQueue();
    void enqueue(Task task);
    void installCapture();
    void removeCapture();
    void handleCaptureEvent(const CaptureEvent &event) override;
    void handleKeyEvent(const CaptureEvent &event);
    bool shouldShowKey(KeyCategory category, quint64 flags) const;
    void post(PendingChange change);

    // ---- Main thread ----
    void readSettings();
    void applyPendingChanges();
    QList<QString> modifierSymbols(quint64 flags) const;
    void addKeyPress(const KeyPress &keyPress);
    void removeKeyAt(qsizetype index);
    void keysDidChange();
    void scheduleExpiry();
    void expireRecords();
    void startCleanupTimer();
    void sweepExpiredRecords();
    void setListening(bool listening);
    void setPermission(bool granted, const QString &problem);
    void applySecrecy(bool secret);

    // Overlay windows: one per enabled, connected display while listening.
    void showKeyDisplayWindows();
    void hideKeyDisplayWindows();
    void updateDisplayWindows();
    void subscribeToDisplayChanges();
    // Fits a window to its display's available area; nothing when the display is gone.
    void position(KeyDisplayWindow &window, quint32 displayID);

    SettingsStore &m_settings;
    DisplaySettingsStore *const m_displayStore;
    KeyDisplayWindowFactory *const m_windowFactory;
    std::map<quint32, std::unique_ptr<KeyDisplayWindow>> m_keyDisplayWindows;
    const std::unique_ptr<CaptureBackend> m_backend;
    const KeyNaming m_naming;
    LiveSettings m_live;
    const QPointer<KeyManager> m_weakSelf;
    Secrecy m_secrecy;

    // Published state (main thread).
    bool m_isListening = false;
    QList<KeyPress> m_currentKeys;
    QList<qint64> m_expiryDeadlines; // per record of m_currentKeys: its one-shot expiry, steady ms
    bool m_hasInputMonitoringPermission = false;
    QString m_inputMonitoringProblem;
    bool m_hasCompletedInitialization = false;

    // One-shot expiry: one timer armed for the earliest deadline of the records on show, so that
    // a record leaving the list takes its expiry with it.
    QTimer m_expiryTimer;
    std::optional<qint64> m_armedDeadline;
    // The 0.1 s sweep; runs only while records are on show.
    QTimer m_cleanupTimer;

    // Capture queue.
    std::mutex m_queueMutex;
    std::condition_variable m_queueCondition;
    std::deque<Task> m_tasks;
    bool m_captureInstalled = false; // capture thread only
    // Keys pressed while secret and not released yet (capture thread only): their repeats stay
    // hidden after the secret ends, so that a held key does not appear after an unlock.
    std::unordered_set<int> m_keysPressedInSecret;
    std::atomic<bool> m_accessGranted{false}; // mirror of the published permission
    std::thread m_captureThread;

    // Changes on their way to the main thread; one delivery is posted per batch.
    static constexpr std::size_t maxPendingChanges = 4096;
    std::mutex m_pendingMutex;
    std::condition_variable m_pendingDrained;
    bool m_shuttingDown = false; // no more waiting for the main thread
    std::vector<PendingChange> m_pending;
    bool m_applyPosted = false;
    std::vector<PendingChange> m_applying; // main thread
};
