#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <functional>

// One event of the global input stream, as a capture backend delivers it.
struct CaptureEvent final {
    enum class Type { keyDown, keyUp, flagsChanged, leftMouseDown, rightMouseDown };

    Type type = Type::keyDown;
    // Canonical key code (capture/KeyCode.h); for flagsChanged the key that changed the
    // modifiers when known, otherwise -1; unused for clicks.
    int keyCode = -1;
    // Canonical modifier flags (ModifierFlag::) in force for this event.
    quint64 flags = 0;
    // The text the key types under the full current modifier state. Computed only when called
    // and valid only while the handler runs (it reads the backend's live state).
    std::function<QString()> characters;
};

// Receives a backend's events, on the capture thread.
class CaptureEventHandler {
public:
    virtual ~CaptureEventHandler() = default;
    virtual void handleCaptureEvent(const CaptureEvent &event) = 0;
};

// The system-wide input capture of one platform. Everything except `stop()` and the access
// check is called on the capture thread only: `install()`, then `run()` (repeatedly, since a stop
// request only interrupts it), then `uninstall()`.
class CaptureBackend {
public:
    struct Access {
        bool granted = false;
        // Why access is not granted, for people; empty when granted.
        QString reason;
    };

    enum class RunResult {
        stopped, // stop() was called; the capture stays installed
        ended,   // the event source went away; the capture is unusable and must be uninstalled
    };

    virtual ~CaptureBackend() = default;

    // Whether this process may capture global input. Callable from any thread.
    virtual Access checkAccess() = 0;
    // Asks for access where the platform can (for instance by prompting the user) and returns
    // the resulting state. Called on the capture thread.
    virtual Access requestAccess() = 0;
    // What a person does to give access, one step per entry, in order; none when there is
    // nothing to do.
    virtual QStringList accessSteps() const { return {}; }
    // Whether Vantrel itself can ask the user for access (a password dialog), by askForAccess().
    // Never done unasked: only when the user chooses to.
    virtual bool canAskForAccess() const { return false; }
    // Asks the user for access, waiting for the answer, and returns the resulting state. Called
    // on the capture thread.
    virtual Access askForAccess() { return checkAccess(); }

    // Installs the capture; false when it cannot be installed.
    virtual bool install() = 0;
    // Delivers events to `handler` until stop() is called or the source ends. A stop() made
    // while run() is not running makes the next run() return at once.
    virtual RunResult run(CaptureEventHandler &handler) = 0;
    // Removes the installed capture. Safe to call after `ended`.
    virtual void uninstall() = 0;

    // Makes run() return as soon as possible. Callable from any thread; never blocks.
    virtual void stop() = 0;
};
