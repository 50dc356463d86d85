#include "helper/InputForwarder.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <utility>
#include <vector>

namespace {

constexpr size_t recordSize = sizeof(input_event);

bool testBit(const unsigned char *bits, int bit)
{
    return (bits[bit / CHAR_BIT] >> (bit % CHAR_BIT)) & 1;
}

// Keyboard keys and the two mouse buttons that show as clicks; joystick, pad and pen buttons
// stay behind.
bool isForwardedKey(unsigned short code)
{
    return code < BTN_MISC || code >= KEY_OK || code == BTN_LEFT || code == BTN_RIGHT;
}

// A device with letter keys or with left and right buttons: power buttons, lid switches,
// joysticks and the like are left closed.
bool isKeyboardOrMouse(int fd)
{
    unsigned char keys[KEY_MAX / CHAR_BIT + 1] = {};
    if (ioctl(fd, EVIOCGBIT(EV_KEY, sizeof keys), keys) < 0)
        return false;
    return (testBit(keys, KEY_A) && testBit(keys, KEY_Z)) ||
           (testBit(keys, BTN_LEFT) && testBit(keys, BTN_RIGHT));
}

} // namespace

InputForwarder::InputForwarder(std::string folder, int input, int output, bool pipesAreDevices)
    : m_folder(std::move(folder)), m_input(input), m_output(output),
      m_pipesAreDevices(pipesAreDevices)
{}

InputForwarder::~InputForwarder()
{
    for (auto &[name, device] : m_devices)
        ::close(device.fd);
    if (m_watch >= 0)
        ::close(m_watch);
}

int InputForwarder::run()
{
    m_watch = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    if (m_watch < 0 ||
        inotify_add_watch(m_watch, m_folder.c_str(), IN_CREATE | IN_ATTRIB | IN_DELETE) < 0)
        return 1;
    scan();
    // An empty report says the helper runs: the password dialog, if any, is behind.
    write(EV_SYN, SYN_REPORT, 0);
    while (!m_failed) {
        std::vector<pollfd> fds{{m_input, POLLIN, 0}, {m_watch, POLLIN, 0}};
        std::vector<std::string> names;
        for (const auto &[name, device] : m_devices) {
            fds.push_back({device.fd, POLLIN, 0});
            names.push_back(name);
        }
        if (poll(fds.data(), fds.size(), -1) < 0) {
            if (errno == EINTR)
                continue;
            return 1;
        }
        // Anything on the input, or its end, means the program that started the helper is done.
        if (fds[0].revents)
            return 0;
        if (fds[1].revents && !readFolderChanges())
            return 1;
        for (size_t i = 2; i < fds.size() && !m_failed; ++i) {
            if (!fds[i].revents)
                continue;
            const auto it = m_devices.find(names[i - 2]);
            if (it != m_devices.end() && !readDevice(it->second))
                close(it->first);
        }
    }
    return 0;
}

void InputForwarder::scan()
{
    DIR *dir = opendir(m_folder.c_str());
    if (!dir)
        return;
    while (const dirent *entry = readdir(dir))
        if (entry->d_name[0] != '.')
            open(entry->d_name);
    closedir(dir);
}

void InputForwarder::open(const std::string &name)
{
    if (m_devices.count(name) || name.find('/') != std::string::npos)
        return;
    const std::string path = m_folder + '/' + name;
    // Only the folder's own entries, never what a link points to.
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOFOLLOW);
    if (fd < 0)
        return;
    struct stat info {};
    const bool known = fstat(fd, &info) == 0;
    const bool character = known && S_ISCHR(info.st_mode);
    const bool pipe = known && S_ISFIFO(info.st_mode);
    const bool wanted = character ? name.rfind("event", 0) == 0 && isKeyboardOrMouse(fd)
                                  : pipe && m_pipesAreDevices;
    if (!wanted) {
        ::close(fd);
        return;
    }
    m_devices[name].fd = fd;
}

void InputForwarder::close(const std::string &name)
{
    const auto it = m_devices.find(name);
    if (it == m_devices.end())
        return;
    // Keys held on a device that went away come up.
    releaseAll(it->second);
    ::close(it->second.fd);
    m_devices.erase(it);
}

void InputForwarder::releaseAll(Device &device)
{
    device.dropping = false;
    for (const auto &[code, held] : device.down)
        if (held)
            forward(device, input_event{{}, EV_KEY, code, 0});
    write(EV_SYN, SYN_REPORT, 0);
}

bool InputForwarder::readDevice(Device &device)
{
    unsigned char buffer[64 * recordSize];
    const ssize_t count = read(device.fd, buffer, sizeof buffer);
    if (count < 0)
        return errno == EAGAIN || errno == EINTR;
    if (count == 0)
        return false; // the device, or the pipe's writer, is gone
    for (ssize_t at = 0; at < count;) {
        const size_t take = std::min(recordSize - device.partialSize, size_t(count - at));
        std::memcpy(device.partial.data() + device.partialSize, buffer + at, take);
        device.partialSize += take;
        at += ssize_t(take);
        if (device.partialSize < recordSize)
            break;
        input_event record;
        std::memcpy(&record, device.partial.data(), recordSize);
        device.partialSize = 0;
        forward(device, record);
    }
    return true;
}

void InputForwarder::forward(Device &device, const input_event &record)
{
    if (device.dropping) {
        // Records were lost; whatever the device still holds comes up, as if unplugged, and
        // the records up to the next report are stale.
        if (record.type == EV_SYN && record.code == SYN_REPORT)
            device.dropping = false;
        return;
    }
    if (record.type == EV_SYN && record.code == SYN_DROPPED) {
        releaseAll(device);
        device.dropping = true;
        return;
    }
    if (record.type == EV_SYN && record.code == SYN_REPORT) {
        write(EV_SYN, SYN_REPORT, 0);
        return;
    }
    if (record.type != EV_KEY || !isForwardedKey(record.code) || record.value < 0 ||
        record.value > 2)
        return;
    if (record.value == 2) { // auto-repeat of a key that is down
        if (device.down[record.code])
            write(EV_KEY, record.code, 2);
        return;
    }
    const bool pressed = record.value == 1;
    if (device.down[record.code] == pressed)
        return;
    device.down[record.code] = pressed;
    int &held = m_held[record.code];
    held += pressed ? 1 : -1;
    if ((pressed && held == 1) || (!pressed && held == 0))
        write(EV_KEY, record.code, record.value);
}

bool InputForwarder::write(unsigned short type, unsigned short code, int value)
{
    input_event record{};
    gettimeofday(&record.time, nullptr);
    record.type = type;
    record.code = code;
    record.value = value;
    const auto *bytes = reinterpret_cast<const unsigned char *>(&record);
    for (size_t done = 0; done < recordSize;) {
        const ssize_t written = ::write(m_output, bytes + done, recordSize - done);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            m_failed = true; // nobody reads any more: stop rather than linger as root
            return false;
        }
        done += size_t(written);
    }
    return true;
}

bool InputForwarder::readFolderChanges()
{
    alignas(inotify_event) char buffer[4096];
    for (;;) {
        const ssize_t count = read(m_watch, buffer, sizeof buffer);
        if (count < 0)
            return errno == EAGAIN || errno == EINTR;
        for (ssize_t at = 0; at < count;) {
            const auto *event = reinterpret_cast<const inotify_event *>(buffer + at);
            if (event->len > 0) {
                if (event->mask & IN_DELETE)
                    close(event->name);
                else
                    open(event->name); // new, or readable now that its permissions are set
            }
            at += ssize_t(sizeof(inotify_event) + event->len);
        }
    }
}
