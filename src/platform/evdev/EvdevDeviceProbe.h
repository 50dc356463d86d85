#pragma once

#include <linux/input.h>

#include <QString>

#include <bitset>
#include <optional>

// Asks an open input device (a character device) what it is and which keys are down. Behind an
// interface so that tests, which have no input devices, can describe devices of their own.
// Implementations are stateless: any thread may call them.
class EvdevDeviceProbe {
public:
    using KeyBits = std::bitset<KEY_CNT>;
    struct Capabilities {
        bool keyboard = false; // has the letter keys
        bool mouse = false;    // has a left or right button
    };

    virtual ~EvdevDeviceProbe() = default;

    // What the device open as `fd` offers; `name` is its entry in the device folder.
    virtual Capabilities capabilities(int fd, const QString &name) const = 0;
    // The keys and buttons down now, or nothing when the device does not say.
    virtual std::optional<KeyBits> keysDown(int fd) const = 0;
};
