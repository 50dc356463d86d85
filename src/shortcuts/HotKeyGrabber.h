#pragma once

#include <QKeyCombination>
#include <QObject>
#include <QString>

// A platform's system-wide key grabs. Each grab is known by a shortcut name; the grabber reports
// presses and releases of the grabbed combinations on the thread it lives in (the main thread).
// It keeps its grabs working by itself when the keyboard map changes.
class HotKeyGrabber : public QObject {
    Q_OBJECT

public:
    enum class GrabResult {
        grabbed,
        taken,      // another program holds the combination
        unavailable // no key of the current keyboard produces it, or no grabs are possible
    };

    using QObject::QObject;

    // Grabs `combination` for `name`, replacing that name's previous grab. On failure the name
    // holds no grab.
    virtual GrabResult grab(const QString &name, QKeyCombination combination) = 0;
    // Releases the grab of `name`, if any.
    virtual void release(const QString &name) = 0;

signals:
    // The grabbed combination of `name` went down; repeated while held when the key repeats.
    void pressed(const QString &name);
    // Its key came up.
    void released(const QString &name);
    // The keyboard map changed and the grabs held were made again; a combination refused
    // before may be free now.
    void keymapChanged();
};
