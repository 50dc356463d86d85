#pragma once

#include "capture/KeyboardLayoutSource.h"

#include <QString>

#include <memory>
#include <mutex>
#include <optional>

class KeyboardLayout;

// Translates canonical key codes into the text of the user's current keyboard layout. It caches
// the layout of the last input-source identifier it saw and refreshes the cache when the source
// reports a change, or lazily when a translation sees another identifier or no layout.
//
// The process-wide instance, `shared()`, reads the source installed with `installSharedSource()`;
// the application installs the platform's source at start-up, before any key is named. Without a
// source every translation yields nothing and naming falls back to the event's own characters.
class KeyboardLayoutTranslator final {
public:
    explicit KeyboardLayoutTranslator(std::shared_ptr<KeyboardLayoutSource> source);
    ~KeyboardLayoutTranslator();
    KeyboardLayoutTranslator(const KeyboardLayoutTranslator &) = delete;
    KeyboardLayoutTranslator &operator=(const KeyboardLayoutTranslator &) = delete;

    static KeyboardLayoutTranslator &shared();
    // Sets the source that `shared()` is created with. Returns false, changing nothing, once the
    // shared instance exists.
    static bool installSharedSource(std::shared_ptr<KeyboardLayoutSource> source);

    // The text `keyCode` produces in the current layout under the canonical modifier `flags`,
    // or nothing. Thread-safe.
    std::optional<QString> string(int keyCode, quint64 flags);

private:
    void ensureCurrentLayout(bool force);
    void updateLayoutData();
    KeyboardLayoutSource::LayoutState fetchCurrentLayoutState() const;
    static quint32 carbonModifiers(quint64 flags);
    void handleInputSourceChanged();

    const std::shared_ptr<KeyboardLayoutSource> m_source;
    KeyboardLayoutSource::ObserverId m_observer = 0;

    // Guards the two fields below; never held while fetching from the source.
    std::mutex m_lock;
    std::shared_ptr<const KeyboardLayout> m_layoutData;
    std::optional<QString> m_currentInputSourceID;
};
