#pragma once

#include <linux/input.h>

#include <array>
#include <map>
#include <string>

// The input helper's whole work, run as root for a user who may not read the input devices: it
// reads every keyboard and mouse in one device folder, follows devices that come and go, and
// writes their key and button records, nothing else, to one output in the kernel's own record
// format, after one empty report that says it runs. The streams are merged as one keyboard would send them: a key held on two devices goes
// down once and up once, and the keys held on a device that goes away come up. It ends when its
// input closes (the program that started it has gone) or its output cannot be written.
class InputForwarder final {
public:
    // `folder` is read as it is; nothing else of the caller decides what is opened. Its
    // character devices named event* are opened; pipes only when `pipesAreDevices` (tests).
    InputForwarder(std::string folder, int input, int output, bool pipesAreDevices);
    ~InputForwarder();
    InputForwarder(const InputForwarder &) = delete;
    InputForwarder &operator=(const InputForwarder &) = delete;

    // Forwards until the input closes; the exit status for the program.
    int run();

private:
    struct Device {
        int fd = -1;
        std::array<unsigned char, sizeof(input_event)> partial{};
        size_t partialSize = 0;
        // Keys this device holds down, by code.
        std::map<unsigned short, bool> down;
        // Records were lost: the rest up to the next report is skipped.
        bool dropping = false;
    };

    void scan();
    void open(const std::string &name);
    void close(const std::string &name);
    void releaseAll(Device &device);
    bool readDevice(Device &device);
    void forward(Device &device, const input_event &record);
    bool write(unsigned short type, unsigned short code, int value);
    bool readFolderChanges();

    std::string m_folder;
    int m_input;
    int m_output;
    bool m_pipesAreDevices;
    int m_watch = -1;
    bool m_failed = false;
    std::map<std::string, Device> m_devices;
    // How many devices hold each key down: the merged stream changes only at 0 and 1.
    std::map<unsigned short, int> m_held;
};
