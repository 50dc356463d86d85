#include "capture/KeyManager.h"

#include "capture/KeyCode.h"
#include "capture/KeyDisplayOrder.h"
#include "settings/AppSettings.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/ScreenList.h"
#include "settings/SettingsStore.h"

#include <QMetaObject>
#include <QtGlobal>

#include <algorithm>
#include <chrono>
#include <climits>
#include <cmath>

namespace {

constexpr quint64 anyModifierMask = ModifierFlag::Shift | ModifierFlag::Control |
                                    ModifierFlag::Option | ModifierFlag::Command; // 0x1E0000
constexpr quint64 nonShiftModifierMask =
    ModifierFlag::Control | ModifierFlag::Option | ModifierFlag::Command; // 0x1C0000
constexpr int cleanupInterval = 100;                                      // ms
// The longest one-shot expiry we arm; longer lifetimes are cut here (about 24 days).
constexpr qint64 longestLifetime = INT_MAX;

qint64 steadyNow()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

qint64 lifetimeInMilliseconds(double seconds)
{
    if (!(seconds > 0.0))
        return 0;
    const double milliseconds = std::ceil(seconds * 1000.0);
    return milliseconds >= double(longestLifetime) ? longestLifetime : qint64(milliseconds);
}

} // namespace

KeyManager::KeyManager(SettingsStore &settings, std::unique_ptr<CaptureBackend> backend,
                       KeyboardLayoutTranslator &translator, DisplaySettingsStore *displayStore,
                       KeyDisplayWindowFactory *windowFactory, QObject *parent)
    : QObject(parent), m_settings(settings), m_displayStore(displayStore),
      m_windowFactory(windowFactory), m_backend(std::move(backend)), m_naming(translator),
      m_weakSelf(this)
{
    // The queue: a thread that runs start and stop requests in order.
    m_captureThread = std::thread([this] { runCaptureQueue(); });

    readSettings();
    connect(&m_secrecy, &Secrecy::secretChanged, this, &KeyManager::applySecrecy);
    connect(&m_settings, &SettingsStore::valueChanged, this, [this] { readSettings(); });

    const CaptureBackend::Access access = m_backend->checkAccess();
    m_hasInputMonitoringPermission = access.granted;
    m_inputMonitoringProblem = access.granted ? QString() : access.reason;
    m_accessGranted = access.granted;

    m_expiryTimer.setSingleShot(true);
    m_expiryTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_expiryTimer, &QTimer::timeout, this, &KeyManager::expireRecords);
    startCleanupTimer();

    subscribeToDisplayChanges();
    m_hasCompletedInitialization = true;

    if (m_live.isVantrelEnabled)
        startListening();
    else
        stopListening();
}

KeyManager::~KeyManager()
{
    {
        const std::lock_guard lock(m_pendingMutex);
        m_shuttingDown = true;
    }
    m_pendingDrained.notify_all();
    stopListening();
    enqueue(Task::quit);
    m_captureThread.join();
    m_cleanupTimer.stop();
    m_expiryTimer.stop();
    for (auto &[id, window] : m_keyDisplayWindows)
        window->close();
}

// ---- Capture queue ----

void KeyManager::startListening()
{
    enqueue(Task::start);
}

void KeyManager::stopListening()
{
    enqueue(Task::stop);
}

void KeyManager::enqueue(Task task)
{
    {
        const std::lock_guard lock(m_queueMutex);
        m_tasks.push_back(task);
    }
    m_queueCondition.notify_one();
    // While listening the queue thread is inside the capture's event loop; interrupt it so the
    // request runs now instead of waiting behind the capture.
    m_backend->stop();
}

void KeyManager::runCaptureQueue()
{
    for (;;) {
        std::optional<Task> task;
        {
            std::unique_lock lock(m_queueMutex);
            if (!m_captureInstalled)
                m_queueCondition.wait(lock, [this] { return !m_tasks.empty(); });
            if (!m_tasks.empty()) {
                task = m_tasks.front();
                m_tasks.pop_front();
            }
        }
        if (!task) {
            // Listening with nothing requested: deliver events until interrupted.
            if (m_backend->run(*this) == CaptureBackend::RunResult::ended) {
                m_backend->uninstall();
                m_captureInstalled = false;
                post({.kind = PendingChange::Kind::listening, .value = false});
            }
            continue;
        }
        switch (*task) {
        case Task::start:
            installCapture();
            break;
        case Task::stop:
            removeCapture();
            break;
        case Task::ask: {
            const CaptureBackend::Access access = m_backend->askForAccess();
            m_accessGranted = access.granted;
            post({.kind = PendingChange::Kind::permission,
                  .text = access.reason,
                  .value = access.granted});
            if (access.granted && m_live.isVantrelEnabled.load(std::memory_order_relaxed))
                installCapture();
            break;
        }
        case Task::quit:
            if (m_captureInstalled) {
                m_backend->uninstall();
                m_captureInstalled = false;
            }
            return;
        }
    }
}

void KeyManager::installCapture()
{
    if (m_captureInstalled)
        return;
    if (!m_accessGranted) {
        const CaptureBackend::Access access = m_backend->requestAccess();
        m_accessGranted = access.granted;
        post({.kind = PendingChange::Kind::permission,
              .text = access.reason,
              .value = access.granted});
        return;
    }
    if (!m_backend->install()) {
        qWarning("Failed to create event tap");
        return;
    }
    m_captureInstalled = true;
    m_keysPressedInSecret.clear();
    post({.kind = PendingChange::Kind::listening, .value = true});
}

void KeyManager::removeCapture()
{
    if (!m_captureInstalled)
        return;
    m_backend->uninstall();
    m_captureInstalled = false;
    post({.kind = PendingChange::Kind::listening, .value = false});
}

// ---- Capture thread: one event ----

void KeyManager::handleCaptureEvent(const CaptureEvent &event)
{
    handleKeyEvent(event);
}

void KeyManager::handleKeyEvent(const CaptureEvent &event)
{
    // A release ends a press kept from showing, whatever the state now.
    if (event.type == CaptureEvent::Type::keyUp) {
        m_keysPressedInSecret.erase(event.keyCode);
        return;
    }
    if (!m_live.isVantrelEnabled.load(std::memory_order_relaxed))
        return;
    const quint64 secrecy = m_secrecy.state();
    if (Secrecy::isSecret(secrecy)) {
        if (event.type == CaptureEvent::Type::keyDown)
            m_keysPressedInSecret.insert(event.keyCode);
        return;
    }
    switch (event.type) {
    case CaptureEvent::Type::leftMouseDown:
    case CaptureEvent::Type::rightMouseDown: {
        if (!m_live.showMouseClicks.load(std::memory_order_relaxed))
            return;
        const bool left = event.type == CaptureEvent::Type::leftMouseDown;
        post({.kind = PendingChange::Kind::click,
              .keyCode = left ? KeyPress::leftClickCode : KeyPress::rightClickCode,
              .category =
                  KeyCategory::mouse(left ? MouseClickButton::left : MouseClickButton::right),
              .text = left ? QStringLiteral("Left Click") : QStringLiteral("Right Click"),
              .secrecyState = secrecy});
        return;
    }
    case CaptureEvent::Type::keyDown: {
        if (m_keysPressedInSecret.contains(event.keyCode))
            return; // a repeat of a key pressed while secret
        std::optional<QString> name = m_naming.name(event.keyCode, event.flags, event.characters);
        if (!name)
            return;
        const KeyCategory category = getKeyCategory(event.keyCode);
        if (!shouldShowKey(category, event.flags))
            return;
        post({.kind = PendingChange::Kind::keyDown,
              .flags = event.flags,
              .keyCode = event.keyCode,
              .category = category,
              .text = std::move(*name),
              .secrecyState = secrecy});
        return;
    }
    case CaptureEvent::Type::flagsChanged:
        post({.kind = PendingChange::Kind::flagsChanged,
              .flags = event.flags,
              .secrecyState = secrecy});
        return;
    case CaptureEvent::Type::keyUp:
        return; // handled above
    }
}

bool KeyManager::shouldShowKey(KeyCategory category, quint64 flags) const
{
    const bool showAllKeys = m_live.showAllKeys.load(std::memory_order_relaxed);
    const bool showModifierKeys = m_live.showModifierKeys.load(std::memory_order_relaxed);
    if (showAllKeys)
        return true;
    // Shift alone is typing while modifier symbols are shown.
    if (showModifierKeys && (flags & anyModifierMask) == ModifierFlag::Shift)
        return false;
    const bool modifierHeld = (flags & anyModifierMask) != 0;
    switch (category.kind()) {
    case KeyCategory::Kind::letter:
    case KeyCategory::Kind::number:
    case KeyCategory::Kind::arrow:
    case KeyCategory::Kind::other:
        return modifierHeld;
    case KeyCategory::Kind::function:
        return m_live.showFunctionKeys.load(std::memory_order_relaxed);
    case KeyCategory::Kind::special:
        return m_live.showSpecialKeys.load(std::memory_order_relaxed) ||
               (flags & nonShiftModifierMask) != 0;
    case KeyCategory::Kind::modifier:
        return showModifierKeys;
    case KeyCategory::Kind::mouse:
        return m_live.showMouseClicks.load(std::memory_order_relaxed);
    }
    return false;
}

void KeyManager::post(PendingChange change)
{
    bool postDelivery = false;
    {
        std::unique_lock lock(m_pendingMutex);
        // A main thread far behind (a flood of events on a busy machine) holds the capture back
        // rather than letting the backlog, and the memory it takes, grow without bound.
        m_pendingDrained.wait(
            lock, [this] { return m_pending.size() < maxPendingChanges || m_shuttingDown; });
        m_pending.push_back(std::move(change));
        postDelivery = !m_applyPosted;
        m_applyPosted = true;
    }
    if (postDelivery) {
        // Changes that arrive before the main thread gets to this delivery join its batch.
        QMetaObject::invokeMethod(
            this,
            [weakSelf = m_weakSelf] {
                if (KeyManager *self = weakSelf.data())
                    self->applyPendingChanges();
            },
            Qt::QueuedConnection);
    }
}

// ---- Main thread ----

void KeyManager::readSettings()
{
    m_live.isVantrelEnabled = m_settings.value(AppSettings::isVantrelEnabled);
    m_live.keyDisplayDuration = m_settings.value(AppSettings::keyDisplayDuration);
    m_live.keyMaxDisplayCount = m_settings.value(AppSettings::keyMaxDisplayCount);
    m_live.showAllKeys = m_settings.value(AppSettings::showAllKeys);
    m_live.showModifierKeys = m_settings.value(AppSettings::showModifierKeys);
    m_live.showFunctionKeys = m_settings.value(AppSettings::showFunctionKeys);
    m_live.showSpecialKeys = m_settings.value(AppSettings::showSpecialKeys);
    m_live.showMouseClicks = m_settings.value(AppSettings::showMouseClicks);
}

void KeyManager::applyPendingChanges()
{
    {
        const std::lock_guard lock(m_pendingMutex);
        m_applying.swap(m_pending);
        m_applyPosted = false;
    }
    m_pendingDrained.notify_all();
    bool keysChanged = false;
    const quint64 secrecy = m_secrecy.state();
    for (PendingChange &change : m_applying) {
        const bool key = change.kind == PendingChange::Kind::keyDown ||
                         change.kind == PendingChange::Kind::flagsChanged ||
                         change.kind == PendingChange::Kind::click;
        if (key && change.secrecyState != secrecy)
            continue; // seen before the secrecy last changed
        switch (change.kind) {
        case PendingChange::Kind::keyDown:
            // Combination step: the held modifiers, then the key itself.
            for (const QString &symbol : modifierSymbols(change.flags))
                addKeyPress(KeyPress::make(symbol, KeyPress::modifierSymbolCode,
                                           KeyCategory::Kind::modifier));
            addKeyPress(KeyPress::make(change.text, change.keyCode, change.category));
            keysChanged = true;
            break;
        case PendingChange::Kind::flagsChanged: {
            // Modifier step: the modifiers still held; none held adds nothing.
            const QList<QString> symbols = modifierSymbols(change.flags);
            for (const QString &symbol : symbols)
                addKeyPress(KeyPress::make(symbol, KeyPress::modifierSymbolCode,
                                           KeyCategory::Kind::modifier));
            keysChanged = keysChanged || !symbols.isEmpty();
            break;
        }
        case PendingChange::Kind::click:
            addKeyPress(KeyPress::make(change.text, change.keyCode, change.category));
            keysChanged = true;
            break;
        case PendingChange::Kind::listening:
            if (keysChanged) {
                keysDidChange();
                keysChanged = false;
            }
            setListening(change.value);
            break;
        case PendingChange::Kind::permission:
            setPermission(change.value, change.text);
            break;
        }
    }
    // Give back the memory of a burst; the usual batch is a handful of changes.
    if (m_applying.capacity() > 1024)
        std::vector<PendingChange>().swap(m_applying);
    else
        m_applying.clear();
    if (keysChanged)
        keysDidChange();
}

QList<QString> KeyManager::modifierSymbols(quint64 flags) const
{
    QList<QString> symbols;
    if (!m_live.showModifierKeys.load(std::memory_order_relaxed))
        return symbols;
    if (flags & ModifierFlag::Control)
        symbols.append(QStringLiteral("⌃"));
    if (flags & ModifierFlag::Option)
        symbols.append(QStringLiteral("⌥"));
    if (flags & ModifierFlag::Shift)
        symbols.append(QStringLiteral("⇧"));
    if (flags & ModifierFlag::Command)
        symbols.append(QStringLiteral("⌘"));
    // Shift alone is typing unless every key is shown.
    if (!m_live.showAllKeys.load(std::memory_order_relaxed) && (flags & ModifierFlag::Shift) &&
        !(flags & nonShiftModifierMask))
        symbols.removeAll(QStringLiteral("⇧"));
    return symbols;
}

void KeyManager::addKeyPress(const KeyPress &keyPress)
{
    for (qsizetype i = m_currentKeys.size() - 1; i >= 0; --i)
        if (m_currentKeys.at(i).keyName == keyPress.keyName)
            removeKeyAt(i);
    m_currentKeys.append(keyPress);
    m_expiryDeadlines.append(steadyNow() + lifetimeInMilliseconds(m_live.keyDisplayDuration));
    if (m_currentKeys.size() > m_live.keyMaxDisplayCount.load(std::memory_order_relaxed))
        removeKeyAt(0);
}

void KeyManager::removeKeyAt(qsizetype index)
{
    m_currentKeys.removeAt(index);
    m_expiryDeadlines.removeAt(index);
}

void KeyManager::keysDidChange()
{
    scheduleExpiry();
    if (m_currentKeys.isEmpty())
        m_cleanupTimer.stop();
    else if (!m_cleanupTimer.isActive())
        m_cleanupTimer.start();
    emit currentKeysChanged();
}

void KeyManager::scheduleExpiry()
{
    if (m_expiryDeadlines.isEmpty()) {
        m_expiryTimer.stop();
        m_armedDeadline.reset();
        return;
    }
    const qint64 earliest = *std::min_element(m_expiryDeadlines.cbegin(), m_expiryDeadlines.cend());
    if (m_armedDeadline == earliest && m_expiryTimer.isActive())
        return;
    m_armedDeadline = earliest;
    m_expiryTimer.start(int(std::clamp<qint64>(earliest - steadyNow(), 0, INT_MAX)));
}

void KeyManager::expireRecords()
{
    m_armedDeadline.reset();
    const qint64 now = steadyNow();
    bool removed = false;
    for (qsizetype i = m_currentKeys.size() - 1; i >= 0; --i) {
        if (m_expiryDeadlines.at(i) <= now) {
            removeKeyAt(i);
            removed = true;
        }
    }
    if (removed)
        keysDidChange();
    else
        scheduleExpiry();
}

void KeyManager::startCleanupTimer()
{
    m_cleanupTimer.setInterval(cleanupInterval);
    connect(&m_cleanupTimer, &QTimer::timeout, this, &KeyManager::sweepExpiredRecords);
    // Started by the first record on show; an empty list has nothing to sweep.
}

void KeyManager::sweepExpiredRecords()
{
    const double cutoff =
        KeyPress::now() - m_live.keyDisplayDuration.load(std::memory_order_relaxed);
    bool removed = false;
    for (qsizetype i = m_currentKeys.size() - 1; i >= 0; --i) {
        if (m_currentKeys.at(i).timestamp < cutoff) {
            removeKeyAt(i);
            removed = true;
        }
    }
    if (removed)
        keysDidChange();
    else if (m_currentKeys.isEmpty())
        m_cleanupTimer.stop();
}

QList<KeyPress> KeyManager::sortedKeysForDisplay() const
{
    return KeyDisplayOrder::sorted(m_currentKeys);
}

void KeyManager::setListening(bool listening)
{
    if (m_isListening != listening) {
        m_isListening = listening;
        emit isListeningChanged(listening);
    }
    if (listening && !m_secrecy.hidesKeys())
        showKeyDisplayWindows();
    else
        hideKeyDisplayWindows();
}

void KeyManager::setPermission(bool granted, const QString &problem)
{
    const QString shown = granted ? QString() : problem;
    if (std::exchange(m_inputMonitoringProblem, shown) != shown)
        emit inputMonitoringProblemChanged(shown);
    if (m_hasInputMonitoringPermission == granted)
        return;
    m_hasInputMonitoringPermission = granted;
    emit hasInputMonitoringPermissionChanged(granted);
}

void KeyManager::applySecrecy(bool secret)
{
    if (!secret) {
        // Keys show again from the next press, in fresh windows.
        if (m_isListening)
            showKeyDisplayWindows();
        return;
    }
    // The windows go first, so that no removal of the caps is ever drawn.
    hideKeyDisplayWindows();
    m_currentKeys.clear();
    m_expiryDeadlines.clear();
    keysDidChange();
}

void KeyManager::askForInputMonitoringAccess()
{
    enqueue(Task::ask);
}

void KeyManager::checkInputMonitoringPermission()
{
    const CaptureBackend::Access access = m_backend->checkAccess();
    m_accessGranted = access.granted;
    setPermission(access.granted, access.reason);
}

// ---- Overlay windows ----

QMap<quint32, KeyDisplayWindow *> KeyManager::keyDisplayWindows() const
{
    QMap<quint32, KeyDisplayWindow *> windows;
    for (const auto &[id, window] : m_keyDisplayWindows)
        windows.insert(id, window.get());
    return windows;
}

void KeyManager::showKeyDisplayWindows()
{
    if (!m_displayStore)
        return;
    m_displayStore->syncWithConnectedScreens();
    updateDisplayWindows();
}

void KeyManager::hideKeyDisplayWindows()
{
    for (auto &[id, window] : m_keyDisplayWindows)
        window->close();
    m_keyDisplayWindows.clear();
}

void KeyManager::updateDisplayWindows()
{
    if (!m_displayStore || !m_windowFactory)
        return;
    const ScreenList &screens = m_displayStore->screenList();
    std::map<quint32, std::unique_ptr<KeyDisplayWindow>> windows;
    for (const DisplayConfiguration &configuration : m_displayStore->configurations()) {
        if (!configuration.isEnabled)
            continue;
        const quint32 id = configuration.id;
        // The same window is kept for a display across updates, refitted to its screen.
        if (auto existing = m_keyDisplayWindows.find(id); existing != m_keyDisplayWindows.end()) {
            position(*existing->second, id);
            windows.emplace(id, std::move(existing->second));
            m_keyDisplayWindows.erase(existing);
            continue;
        }
        const std::optional<ScreenList::Screen> screen = screens.screen(id);
        if (!screen)
            continue; // made when the display is connected again
        std::unique_ptr<KeyDisplayWindow> window =
            m_windowFactory->createWindow(id, screen->geometry);
        position(*window, id);
        window->orderFront();
        windows.emplace(id, std::move(window));
    }
    // What is left belongs to displays now disabled or gone.
    for (auto &[id, window] : m_keyDisplayWindows)
        window->close();
    m_keyDisplayWindows = std::move(windows);
}

void KeyManager::position(KeyDisplayWindow &window, quint32 displayID)
{
    if (const auto screen = m_displayStore->screenList().screen(displayID))
        window.setFrame(screen->availableGeometry);
}

void KeyManager::subscribeToDisplayChanges()
{
    if (!m_displayStore)
        return;
    connect(m_displayStore, &DisplaySettingsStore::displaySettingsChanged, this, [this] {
        if (!m_isListening || m_secrecy.hidesKeys())
            return; // no windows while stopped or secret
        m_displayStore->syncWithConnectedScreens();
        updateDisplayWindows();
    });
    // A screen that only moves or resizes leaves the display list alone; refit the windows.
    connect(&m_displayStore->screenList(), &ScreenList::screensChanged, this, [this] {
        if (m_isListening && !m_secrecy.hidesKeys())
            updateDisplayWindows();
    });
}
