#include "shortcuts/KeyboardShortcuts.h"

#include "settings/SettingsStore.h"
#include "shortcuts/HotKeyGrabber.h"

#include <QScopeGuard>

namespace {

const QString keyPrefix = QStringLiteral("KeyboardShortcuts_");

KeyboardShortcuts::SetResult toSetResult(HotKeyGrabber::GrabResult result)
{
    switch (result) {
    case HotKeyGrabber::GrabResult::grabbed:
        return KeyboardShortcuts::SetResult::set;
    case HotKeyGrabber::GrabResult::taken:
        return KeyboardShortcuts::SetResult::takenByAnotherProgram;
    case HotKeyGrabber::GrabResult::unavailable:
        break;
    }
    return KeyboardShortcuts::SetResult::unavailable;
}

} // namespace

bool KeyboardShortcuts::isModifierKey(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
        return true;
    default:
        return false;
    }
}

KeyboardShortcuts::KeyboardShortcuts(SettingsStore &store, std::unique_ptr<HotKeyGrabber> grabber,
                                     QObject *parent)
    : QObject(parent), m_store(store), m_grabber(std::move(grabber))
{
    // Changes from anywhere (this object, a reset of all settings) renew the grab and are
    // announced.
    connect(&m_store, &SettingsStore::valueChanged, this, [this](const QString &key) {
        if (!key.startsWith(keyPrefix))
            return;
        const QString name = key.mid(keyPrefix.size());
        m_knownNames.insert(name);
        updateGrab(name);
        emit shortcutByNameDidChange(name);
    });
    if (m_grabber) {
        connect(m_grabber.get(), &HotKeyGrabber::pressed, this, &KeyboardShortcuts::handlePress);
        connect(m_grabber.get(), &HotKeyGrabber::released, this, &KeyboardShortcuts::handleRelease);
        connect(m_grabber.get(), &HotKeyGrabber::keymapChanged, this,
                &KeyboardShortcuts::retryTakenGrabs);
    }
}

KeyboardShortcuts::~KeyboardShortcuts()
{
    if (m_grabber)
        for (auto it = m_grabbed.cbegin(); it != m_grabbed.cend(); ++it)
            m_grabber->release(it.key());
}

QString KeyboardShortcuts::settingsKey(const QString &name)
{
    return keyPrefix + name;
}

std::optional<QKeyCombination> KeyboardShortcuts::decode(const QString &text)
{
    if (text.trimmed().isEmpty())
        return std::nullopt;
    const QKeySequence sequence = QKeySequence::fromString(text, QKeySequence::PortableText);
    if (sequence.count() != 1)
        return std::nullopt;
    const QKeyCombination combination = sequence[0];
    const int key = combination.key();
    if (key == 0 || key == Qt::Key_unknown || isModifierKey(key) || !isAllowed(combination))
        return std::nullopt;
    return combination;
}

bool KeyboardShortcuts::isAllowed(QKeyCombination combination)
{
    const int key = combination.key();
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return true;
    return (combination.keyboardModifiers() &
            (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

std::optional<QKeyCombination> KeyboardShortcuts::storedCombination(const QString &name) const
{
    const std::optional<QVariant> stored = m_store.rawValue(settingsKey(name));
    if (!stored || stored->typeId() != QMetaType::QString)
        return std::nullopt;
    return decode(stored->toString());
}

QKeySequence KeyboardShortcuts::shortcut(const QString &name) const
{
    m_knownNames.insert(name);
    if (const std::optional<QKeyCombination> combination = storedCombination(name))
        return QKeySequence(*combination);
    return {};
}

KeyboardShortcuts::SetResult KeyboardShortcuts::setShortcut(const QString &name,
                                                            const QKeySequence &sequence)
{
    m_knownNames.insert(name);
    if (sequence.isEmpty()) {
        if (m_store.contains(settingsKey(name)))
            m_store.remove(settingsKey(name));
        return SetResult::set;
    }
    const QString text = sequence.toString(QKeySequence::PortableText);
    const std::optional<QKeyCombination> combination = decode(text);
    if (!combination)
        return SetResult::unavailable;
    if (storedCombination(name) == combination)
        return SetResult::set;
    for (const QString &other : std::as_const(m_knownNames))
        if (other != name && storedCombination(other) == combination)
            return SetResult::takenByAnotherShortcut;

    if (m_grabber) {
        // Try the grab first: a combination that another program holds is refused and the old
        // shortcut stays.
        const HotKeyGrabber::GrabResult result = m_grabber->grab(name, *combination);
        if (result != HotKeyGrabber::GrabResult::grabbed) {
            m_grabbed.remove(name);
            updateGrab(name);
            return toSetResult(result);
        }
        m_grabbed.insert(name, *combination);
    }
    // The store's change notice lets go of the grab again when nothing is to fire.
    m_store.setRawValue(settingsKey(name), text);
    return SetResult::set;
}

void KeyboardShortcuts::onKeyUp(const QString &name, std::function<void()> action)
{
    m_knownNames.insert(name);
    m_handlers.insert(name, std::move(action));
    updateGrab(name);
}

void KeyboardShortcuts::retryTakenGrabs()
{
    for (const QString &name : QSet<QString>(m_takenNames))
        updateGrab(name);
}

void KeyboardShortcuts::setRecorderActive(const QObject *recorder, bool active)
{
    const bool wasActive = isRecorderActive();
    if (active)
        m_activeRecorders.insert(recorder);
    else
        m_activeRecorders.remove(recorder);
    if (wasActive == isRecorderActive())
        return;
    m_held.clear();
    for (const QString &name : m_handlers.keys())
        updateGrab(name);
    emit recorderActiveStatusDidChange(isRecorderActive());
}

bool KeyboardShortcuts::wantsGrab(const QString &name) const
{
    return m_grabber && m_handlers.contains(name) && !isRecorderActive();
}

void KeyboardShortcuts::updateGrab(const QString &name)
{
    if (!m_grabber)
        return;
    const std::optional<QKeyCombination> wanted =
        wantsGrab(name) ? storedCombination(name) : std::nullopt;
    const bool wasTaken = m_takenNames.remove(name);
    // Set last, once the grab has been tried.
    const auto announce = qScopeGuard([this, &name, wasTaken] {
        if (wasTaken != m_takenNames.contains(name))
            emit takenStatusDidChange(name);
    });
    const auto current = m_grabbed.constFind(name);
    if (current != m_grabbed.cend() && wanted == *current)
        return;
    if (!wanted) {
        if (current != m_grabbed.cend()) {
            m_grabber->release(name);
            m_grabbed.remove(name);
        }
        return;
    }
    // A combination taken meanwhile by another program stays without effect; the recorder
    // tells why.
    const HotKeyGrabber::GrabResult result = m_grabber->grab(name, *wanted);
    if (result == HotKeyGrabber::GrabResult::grabbed)
        m_grabbed.insert(name, *wanted);
    else
        m_grabbed.remove(name);
    if (result == HotKeyGrabber::GrabResult::taken)
        m_takenNames.insert(name);
}

void KeyboardShortcuts::handlePress(const QString &name)
{
    if (!isRecorderActive())
        m_held.insert(name);
}

void KeyboardShortcuts::handleRelease(const QString &name)
{
    // Only a release that ends a press seen outside recording fires, once.
    if (!m_held.remove(name) || isRecorderActive())
        return;
    // A copy, since the action may register handlers itself.
    if (const std::function<void()> action = m_handlers.value(name))
        action();
}
