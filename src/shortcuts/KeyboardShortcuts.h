#pragma once

#include <QHash>
#include <QKeySequence>
#include <QObject>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class HotKeyGrabber;
class SettingsStore;

// System-wide shortcuts by name. A name's shortcut is stored in the settings under
// "KeyboardShortcuts_" + name as portable key-sequence text ("Ctrl+Alt+K"); absent or unreadable
// text means none. A name with a key-up handler holds a system-wide grab of its shortcut,
// renewed whenever the stored shortcut changes; the handler runs on the main thread when the
// combination is released, never while it is held and never repeated. While any recorder
// records, no shortcut fires and the grabs are let go, so that the recorder sees the keys.
class KeyboardShortcuts final : public QObject {
    Q_OBJECT

public:
    enum class SetResult {
        set,
        takenByAnotherProgram,
        takenByAnotherShortcut, // another name of this program has the same combination
        unavailable             // no key of the current keyboard gives it
    };

    // `grabber` may be null: shortcuts are then stored and shown but grab nothing.
    KeyboardShortcuts(SettingsStore &store, std::unique_ptr<HotKeyGrabber> grabber,
                      QObject *parent = nullptr);
    ~KeyboardShortcuts() override;

    static QString settingsKey(const QString &name);
    // The one combination that `text` stands for, or nothing when it is not a usable shortcut.
    static std::optional<QKeyCombination> decode(const QString &text);
    // Whether `combination` may be a global shortcut: a key with at least one of Ctrl, Alt and
    // Super, or a function key with any modifiers. A plain or shifted key would steal typing.
    static bool isAllowed(QKeyCombination combination);
    // Whether `key` is a modifier or lock key, which is never a shortcut's key on its own.
    static bool isModifierKey(int key);

    // The stored shortcut of `name`; empty when there is none.
    QKeySequence shortcut(const QString &name) const;
    // Stores `sequence` (empty: clears) unless its combination is taken; the stored shortcut is
    // unchanged on failure.
    SetResult setShortcut(const QString &name, const QKeySequence &sequence);
    void reset(const QString &name) { setShortcut(name, {}); }

    // Runs `action` each time the shortcut of `name` is released. One handler per name.
    void onKeyUp(const QString &name, std::function<void()> action);

    // Whether the grab of `name` failed because another program holds its combination (one
    // that took it while Vantrel was not running, say).
    bool isTakenByAnotherProgram(const QString &name) const { return m_takenNames.contains(name); }
    // Tries again the grabs that another program held; done by itself after a keymap change.
    void retryTakenGrabs();

    bool isRecorderActive() const { return !m_activeRecorders.isEmpty(); }
    // Recorders report here when they start and stop recording.
    void setRecorderActive(const QObject *recorder, bool active);

signals:
    void shortcutByNameDidChange(const QString &name);
    void recorderActiveStatusDidChange(bool active);
    // Whether another program holds the combination of `name` changed.
    void takenStatusDidChange(const QString &name);

private:
    std::optional<QKeyCombination> storedCombination(const QString &name) const;
    // Brings the grab of `name` in line with its stored shortcut, handler and the recorders.
    void updateGrab(const QString &name);
    bool wantsGrab(const QString &name) const;
    void handlePress(const QString &name);
    void handleRelease(const QString &name);

    SettingsStore &m_store;
    std::unique_ptr<HotKeyGrabber> m_grabber;
    QHash<QString, std::function<void()>> m_handlers;
    QHash<QString, QKeyCombination> m_grabbed;
    QSet<QString> m_held;
    QSet<QString> m_takenNames;
    QSet<const QObject *> m_activeRecorders;
    // Every name asked about, so that a combination is never given to two of them.
    mutable QSet<QString> m_knownNames;
};
