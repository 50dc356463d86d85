#pragma once

#include <QByteArray>

// The keymap text a compositor hands over as a file (wl_keyboard.keymap).
class WaylandKeymapFile final {
public:
    WaylandKeymapFile() = delete;

    // The text of the keymap in `fd` of `size` bytes; empty when it cannot be read. The file
    // stays open.
    static QByteArray read(int fd, quint32 size);
};
