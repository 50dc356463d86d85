#pragma once

#include "capture/KeyboardLayoutSource.h"

#include <QString>

#include <map>
#include <memory>
#include <mutex>

struct xkb_keymap;

// The current keyboard layout from an xkbcommon keymap and its active group. The X11 side keeps it
// current (`setKeymap` on keymap changes, `setActiveGroup` on group changes) from any thread; the
// translator reads it from the capture thread. The input-source identifier changes with every new
// keymap or group, so a translation picks up a change even before the notification arrives.
class XkbKeyboardLayoutSource final : public KeyboardLayoutSource {
public:
    // Takes its own reference to `keymap`, which must not be null.
    explicit XkbKeyboardLayoutSource(xkb_keymap *keymap, quint32 group = 0);
    ~XkbKeyboardLayoutSource() override;
    XkbKeyboardLayoutSource(const XkbKeyboardLayoutSource &) = delete;
    XkbKeyboardLayoutSource &operator=(const XkbKeyboardLayoutSource &) = delete;

    // A keymap compiled from xkeyboard-config names ("de", "us(dvorak)", "us,de"; an empty model
    // is "pc105"). Returns nullptr and says why on stderr when there is no such layout, variant or
    // option.
    static std::unique_ptr<XkbKeyboardLayoutSource> fromNames(const QString &layouts,
                                                              const QString &variants = {},
                                                              const QString &options = {},
                                                              const QString &model = {});

    void setKeymap(xkb_keymap *keymap);
    // False when `group` was already the active one.
    bool setActiveGroup(quint32 group);
    // The keymap now (a reference of the caller's own), for a capture that types with it.
    std::shared_ptr<xkb_keymap> keymap() const;

    LayoutState fetchCurrentLayoutState() const override;
    ObserverId addChangeObserver(std::function<void()> handler) override;
    void removeChangeObserver(ObserverId id) override;

private:
    // Builds the snapshot for the stored keymap and group; called with m_stateLock held.
    void rebuildLocked();
    void notifyChange();

    mutable std::mutex m_stateLock;
    xkb_keymap *m_keymap = nullptr;
    quint32 m_group = 0;
    LayoutState m_state;

    std::mutex m_observerLock;
    std::map<ObserverId, std::function<void()>> m_observers;
    ObserverId m_nextObserver = 1;
};
