#pragma once

#include "platform/evdev/EvdevDeviceProbe.h"

// Asks the kernel through the evdev ioctls (EVIOCGBIT, EVIOCGKEY).
class EvdevIoctlProbe final : public EvdevDeviceProbe {
public:
    Capabilities capabilities(int fd, const QString &name) const override;
    std::optional<KeyBits> keysDown(int fd) const override;
};
