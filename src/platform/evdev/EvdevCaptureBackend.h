#pragma once

#include "capture/CaptureBackend.h"
#include "platform/evdev/EvdevDeviceProbe.h"
#include "platform/evdev/EvdevRecordReader.h"
#include "platform/evdev/InputHelperProcess.h"

#include <QString>

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

class XkbKeyboardLayoutSource;
struct xkb_context;
struct xkb_keymap;
struct xkb_state;

// Global input capture from the kernel's input devices, for sessions where the display server
// shows no global keys (Wayland). It reads `struct input_event` records from every keyboard and
// mouse in a device folder, follows the folder with inotify as devices come and go, and types
// the keys of all keyboards into one xkbcommon state, as the desktop does: Shift on one keyboard
// and K on another is Shift+K. Runs on the capture thread, sleeping in poll() on the devices, the
// folder and an eventfd that stop() and keymap changes write to.
//
// The folder is /dev/input (its event* entries), or every entry of the folder named by
// VANTREL_INPUT_DIR. Character devices are asked what they are (keyboards and mice are read,
// power buttons and joysticks are not); any other entry (a FIFO, a regular file) is read as a
// keyboard with mouse buttons, for the input helper's pipe, tests and hand-picked devices.
class EvdevCaptureBackend final : public CaptureBackend {
public:
    // `layoutSource`: the keymap keys are typed with, followed as it changes; the group that
    // the typed keys select (layout toggles) is published back to it. Without one, the
    // xkeyboard-config defaults. `deviceFolder` empty: as above. `probe` null: the kernel's.
    // `helperProgram` empty: the installed input helper.
    explicit EvdevCaptureBackend(std::shared_ptr<XkbKeyboardLayoutSource> layoutSource = {},
                                 const QString &deviceFolder = {},
                                 std::unique_ptr<EvdevDeviceProbe> probe = {},
                                 const QString &helperProgram = {});
    ~EvdevCaptureBackend() override;
    EvdevCaptureBackend(const EvdevCaptureBackend &) = delete;
    EvdevCaptureBackend &operator=(const EvdevCaptureBackend &) = delete;

    Access checkAccess() override;
    Access requestAccess() override;
    QStringList accessSteps() const override;
    bool canAskForAccess() const override;
    // Starts the input helper through pkexec, which asks for the password.
    Access askForAccess() override;
    bool install() override;
    RunResult run(CaptureEventHandler &handler) override;
    void uninstall() override;
    void stop() override;

    // Types keys with `keymap` (not null) from the next event on; keys held stay held. Callable
    // from any thread.
    void setKeymap(xkb_keymap *keymap);

private:
    struct XkbUnref {
        void operator()(xkb_context *context) const;
        void operator()(xkb_keymap *keymap) const;
        void operator()(xkb_state *state) const;
    };
    using KeymapRef = std::shared_ptr<xkb_keymap>;

    // One open entry of the device folder.
    struct Device {
        QString name;
        int fd = -1;
        bool canTellKeys = false; // a character device: the kernel knows which keys are down
        bool isHelper = false;    // the input helper's pipe, not an entry of the folder
        bool isFifo = false;      // its end is a writer leaving, not the device
        bool dropping = false;    // after SYN_DROPPED, until the next SYN_REPORT
        EvdevRecordReader reader;
        EvdevDeviceProbe::KeyBits down;
    };

    struct OpenedEntry {
        int fd = -1;
        int error = 0; // errno of a failed open
        bool isCharacterDevice = false;
        bool isFifo = false;
        EvdevDeviceProbe::Capabilities capabilities;
    };

    // Whether this process can read a keyboard of the folder.
    Access checkDeviceAccess() const;
    bool isDeviceName(const QString &name) const;
    QStringList deviceNames() const;
    // Opens a keyboard or mouse of the folder; fd -1 for anything else.
    OpenedEntry openEntry(const QString &name) const;

    void addDevice(const QString &name);
    // The input helper's records, read as one more keyboard with mouse buttons.
    void addHelperDevice();
    // The helper ended: started once more, then given up (false).
    bool restartHelper();
    void removeDevice(const QString &name);
    // Closes `device`, releasing what it held; the caller erases it.
    void closeDevice(Device &device);
    // Reads once; false when the device ended.
    bool readDevice(Device &device);
    void handleRecord(Device &device, const input_event &record);
    void handleKey(Device &device, int code, int value, bool announce);
    // Takes the keys down now from the kernel (nothing down where it cannot say).
    void resynchronize(Device &device);
    void handleFolderEvents();
    void rescanFolder();

    bool loadKeymap(KeymapRef keymap);
    void applyPendingKeymap();
    void stateDidChange(int code);
    void reportFlags(int code);
    void deliver(CaptureEvent::Type type, int code);

    const std::shared_ptr<XkbKeyboardLayoutSource> m_layoutSource;
    const QString m_folder;
    const bool m_onlyEventNodes;
    const std::unique_ptr<EvdevDeviceProbe> m_probe;
    quint64 m_layoutObserver = 0;
    int m_wakeFd = -1;
    std::atomic<bool> m_stopRequested{false};

    // The keymap to type with, handed over from any thread; changed until the capture thread
    // takes it.
    std::mutex m_keymapLock;
    KeymapRef m_keymap;
    bool m_keymapChanged = false;
    KeymapRef m_sourceKeymap; // the layout source's keymap last seen

    // The input helper, where the devices cannot be read in this process. Capture thread, but
    // for the state that checkAccess() reads.
    InputHelperProcess m_helper;
    std::atomic<bool> m_helperRunning{false};
    int m_helperRestarts = 0;
    QString m_helperProblem; // guarded by m_keymapLock, as other state shared across threads

    // Capture thread.
    bool m_installed = false;
    int m_inotifyFd = -1;
    std::vector<std::unique_ptr<Device>> m_devices;
    std::vector<input_event> m_records;
    // Per key, how many devices hold it: it is down for the desktop until all release it.
    std::array<quint16, KEY_CNT> m_downCount{};
    std::unique_ptr<xkb_context, XkbUnref> m_context;
    std::unique_ptr<xkb_state, XkbUnref> m_state;
    quint64 m_flags = 0;
    quint64 m_reportedFlags = 0;
    quint32 m_group = 0;
    CaptureEventHandler *m_handler = nullptr; // while run() runs
};
