#pragma once

#include "shortcuts/HotKeyGrabber.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QTimer>

#include <memory>

class QSocketNotifier;
struct xcb_connection_t;
struct xkb_context;
struct xkb_keymap;

// Global shortcuts on X11: passive key grabs on the root window, on a connection of the
// grabber's own that is read on the thread it lives in. Each combination is grabbed with every
// set of the lock modifiers (Caps Lock, Num Lock, Mod5), so that it works whatever lock is on.
// XKB detectable auto-repeat makes a held combination give repeated presses and one release.
// After a keymap change every combination is grabbed again, since its key may have moved.
class X11HotKeyGrabber final : public HotKeyGrabber {
    Q_OBJECT

public:
    // Connects to `displayName` (empty: $DISPLAY); nullptr when no X server with XKB is there.
    static std::unique_ptr<X11HotKeyGrabber> create(const QByteArray &displayName = {});
    ~X11HotKeyGrabber() override;

    GrabResult grab(const QString &name, QKeyCombination combination) override;
    void release(const QString &name) override;

    // The X modifier mask of Shift, Ctrl, Alt (Mod1) and Super (Mod4) in `modifiers`.
    static quint16 modifierMask(Qt::KeyboardModifiers modifiers);
    // The masks grabbed for `mask`: it combined with every subset of Lock, Mod2 and Mod5.
    static QList<quint16> lockVariants(quint16 mask);
    // The keysym that a Qt key stands for; 0 when there is none.
    static quint32 keysymForKey(int key);

private:
    struct Grab {
        QKeyCombination combination;
        quint8 keycode = 0;
        quint16 mask = 0;
    };

    X11HotKeyGrabber(xcb_connection_t *connection, xkb_context *context, int deviceId,
                     quint8 firstXkbEvent);
    bool loadKeymap();
    quint8 keycodeForKeysym(quint32 keysym) const;
    GrabResult grabKeys(Grab &grab);
    void ungrabKeys(const Grab &grab);
    void regrabAll();
    void processEvents();
    void processLater();

    xcb_connection_t *m_connection;
    xkb_context *m_context;
    xkb_keymap *m_keymap = nullptr;
    int m_deviceId;
    quint8 m_firstXkbEvent;
    quint32 m_root = 0;
    QHash<QString, Grab> m_grabs;
    // The names whose combination is down, by the keycode whose release ends it.
    QHash<quint8, QString> m_down;
    std::unique_ptr<QSocketNotifier> m_notifier;
    // Keymap changes come in bursts; the keys are grabbed again once they settle.
    QTimer m_regrab;
};
