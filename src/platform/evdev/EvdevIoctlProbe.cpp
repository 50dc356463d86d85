#include "platform/evdev/EvdevIoctlProbe.h"

#include <array>
#include <climits>
#include <utility>

#include <sys/ioctl.h>

namespace {

constexpr std::size_t bitsPerLong = sizeof(unsigned long) * CHAR_BIT;
using KeyWords = std::array<unsigned long, (KEY_CNT + bitsPerLong - 1) / bitsPerLong>;

// The letter keys of a keyboard, row by row (QWERTY positions).
constexpr std::array<std::pair<unsigned, unsigned>, 3> letterRows{
    {{KEY_Q, KEY_P}, {KEY_A, KEY_L}, {KEY_Z, KEY_M}}};

bool testBit(const KeyWords &words, unsigned bit)
{
    return (words[bit / bitsPerLong] >> (bit % bitsPerLong)) & 1ul;
}

} // namespace

EvdevDeviceProbe::Capabilities EvdevIoctlProbe::capabilities(int fd, const QString &) const
{
    KeyWords keys{};
    // Not an evdev device (or no keys at all): neither a keyboard nor a mouse.
    if (ioctl(fd, EVIOCGBIT(EV_KEY, sizeof keys), keys.data()) < 0)
        return {};
    Capabilities result;
    // Power buttons, lid switches and multimedia remotes have keys too, but never all letters.
    result.keyboard = true;
    for (const auto &[first, last] : letterRows)
        for (unsigned key = first; key <= last; ++key)
            result.keyboard = result.keyboard && testBit(keys, key);
    result.mouse = testBit(keys, BTN_LEFT) || testBit(keys, BTN_RIGHT);
    return result;
}

std::optional<EvdevDeviceProbe::KeyBits> EvdevIoctlProbe::keysDown(int fd) const
{
    KeyWords words{};
    if (ioctl(fd, EVIOCGKEY(sizeof words), words.data()) < 0)
        return std::nullopt;
    KeyBits keys;
    for (unsigned key = 0; key < KEY_CNT; ++key)
        keys[key] = testBit(words, key);
    return keys;
}
