#pragma once

#include "overlay/CompositorWatcher.h"

#include <memory>

class QSocketNotifier;
struct xcb_connection_t;

// Follows the owner of the _NET_WM_CM_S<screen> selection: a compositing manager holds it while
// it runs. Changes arrive as XFixes selection notifications on a connection of its own, read on
// the thread that created the watcher.
class X11CompositorWatcher final : public CompositorWatcher {
    Q_OBJECT

public:
    // Nothing when no X display can be reached.
    static std::unique_ptr<X11CompositorWatcher> create();
    ~X11CompositorWatcher() override;

    bool isCompositing() const override { return m_compositing; }

private:
    X11CompositorWatcher(xcb_connection_t *connection, unsigned int selectionAtom);
    void readEvents();
    void refresh();

    xcb_connection_t *m_connection;
    unsigned int m_selectionAtom;
    std::unique_ptr<QSocketNotifier> m_notifier;
    bool m_compositing = false;
};
