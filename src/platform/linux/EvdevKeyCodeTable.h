#pragma once

#include <optional>
#include <span>

// Maps Linux evdev key codes (an X11 keycode minus 8) to Vantrel's canonical key codes and back.
// It covers every key of ANSI, ISO and JIS PC keyboards; PC keys with no canonical code of their
// own (Print Screen, Pause, the Japanese conversion keys, media keys, ...) get distinct codes from
// `KeyCode::firstExtended` upward. Both directions are single array look-ups.
class EvdevKeyCodeTable final {
public:
    struct Row {
        int evdevCode;
        int keyCode;
    };

    EvdevKeyCodeTable() = delete;

    // The canonical key code of an evdev code, or nothing for a key the table does not know.
    static std::optional<int> keyCode(int evdevCode);
    // The evdev code of a canonical key code, or nothing.
    static std::optional<int> evdevCode(int keyCode);

    // Every mapping, keys with their own canonical code first, then the extended ones.
    static std::span<const Row> rows();
};
