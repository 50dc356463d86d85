#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class KeyboardLayout;

// Where the current keyboard layout comes from. Every member is thread-safe; fetching is cheap
// (no round trip to another thread), so the capture thread may ask for every key press.
class KeyboardLayoutSource {
public:
    struct LayoutState {
        // Identifies `layout`: it changes whenever the layout does.
        std::optional<QString> inputSourceID;
        std::shared_ptr<const KeyboardLayout> layout;
    };
    using ObserverId = quint64;

    virtual ~KeyboardLayoutSource() = default;

    virtual LayoutState fetchCurrentLayoutState() const = 0;

    // Registers `handler`, called after each change of the current layout on the thread that made
    // the change. A handler must not add or remove observers. Removing waits for a running call.
    virtual ObserverId addChangeObserver(std::function<void()> handler) = 0;
    virtual void removeChangeObserver(ObserverId id) = 0;
};
