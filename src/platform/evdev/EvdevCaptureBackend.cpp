#include "platform/evdev/EvdevCaptureBackend.h"

#include "capture/KeyCode.h"
#include "platform/evdev/EvdevIoctlProbe.h"
#include "platform/evdev/InputGroupMembership.h"
#include "platform/linux/EvdevKeyCodeTable.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"
#include "platform/linux/XkbStateReader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// xkbcommon keys its states by X keycodes: evdev codes offset by 8.
constexpr int evdevOffset = 8;
constexpr int keyReleased = 0;
constexpr int keyPressed = 1;
constexpr int keyRepeated = 2;
const QString defaultFolder = QStringLiteral("/dev/input");

// Modifier keys report changes of the modifier flags, not key presses of their own.
bool isModifierKey(int code)
{
    switch (EvdevKeyCodeTable::keyCode(code).value_or(-1)) {
    case KeyCode::Command:
    case KeyCode::RightCommand:
    case KeyCode::Shift:
    case KeyCode::RightShift:
    case KeyCode::CapsLock:
    case KeyCode::Option:
    case KeyCode::RightOption:
    case KeyCode::Control:
    case KeyCode::RightControl:
    case KeyCode::Function:
        return true;
    default:
        return false;
    }
}

QString folderFromEnvironment(const QString &folder)
{
    if (!folder.isEmpty())
        return folder;
    const QString named = qEnvironmentVariable("VANTREL_INPUT_DIR");
    return named.isEmpty() ? defaultFolder : named;
}

} // namespace

void EvdevCaptureBackend::XkbUnref::operator()(xkb_context *context) const
{
    xkb_context_unref(context);
}

void EvdevCaptureBackend::XkbUnref::operator()(xkb_keymap *keymap) const
{
    xkb_keymap_unref(keymap);
}

void EvdevCaptureBackend::XkbUnref::operator()(xkb_state *state) const
{
    xkb_state_unref(state);
}

EvdevCaptureBackend::EvdevCaptureBackend(std::shared_ptr<XkbKeyboardLayoutSource> layoutSource,
                                         const QString &deviceFolder,
                                         std::unique_ptr<EvdevDeviceProbe> probe,
                                         const QString &helperProgram)
    : m_layoutSource(std::move(layoutSource)), m_folder(folderFromEnvironment(deviceFolder)),
      m_onlyEventNodes(QDir(m_folder) == QDir(defaultFolder)),
      m_probe(probe ? std::move(probe) : std::make_unique<EvdevIoctlProbe>()),
      m_wakeFd(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)), m_helper(helperProgram)
{
    if (!m_layoutSource)
        return;
    m_sourceKeymap = m_layoutSource->keymap();
    m_keymap = m_sourceKeymap;
    // Called for group changes too (ours among them): only a new keymap is taken.
    m_layoutObserver = m_layoutSource->addChangeObserver([this] {
        KeymapRef keymap = m_layoutSource->keymap();
        {
            const std::lock_guard guard(m_keymapLock);
            if (keymap == m_sourceKeymap)
                return;
            m_sourceKeymap = keymap;
        }
        setKeymap(keymap.get());
    });
}

EvdevCaptureBackend::~EvdevCaptureBackend()
{
    if (m_layoutSource)
        m_layoutSource->removeChangeObserver(m_layoutObserver);
    uninstall();
    if (m_wakeFd >= 0)
        close(m_wakeFd);
}

void EvdevCaptureBackend::setKeymap(xkb_keymap *keymap)
{
    if (!keymap)
        return;
    {
        const std::lock_guard guard(m_keymapLock);
        m_keymap = KeymapRef(xkb_keymap_ref(keymap), XkbUnref());
        m_keymapChanged = true;
    }
    const quint64 one = 1;
    [[maybe_unused]] const ssize_t written = write(m_wakeFd, &one, sizeof one);
}

void EvdevCaptureBackend::stop()
{
    m_stopRequested = true;
    const quint64 one = 1;
    // A full counter (never in practice) still leaves the descriptor readable.
    [[maybe_unused]] const ssize_t written = write(m_wakeFd, &one, sizeof one);
}

// ---- Access ----

bool EvdevCaptureBackend::isDeviceName(const QString &name) const
{
    // /dev/input also holds the legacy mouse and joystick nodes and the by-id folders.
    return m_onlyEventNodes ? name.startsWith(QLatin1String("event"))
                            : !name.startsWith(QLatin1Char('.'));
}

QStringList EvdevCaptureBackend::deviceNames() const
{
    QStringList names;
    const QStringList entries = QDir(m_folder).entryList(
        QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
    for (const QString &name : entries)
        if (isDeviceName(name))
            names.append(name);
    return names;
}

EvdevCaptureBackend::OpenedEntry EvdevCaptureBackend::openEntry(const QString &name) const
{
    OpenedEntry entry;
    const QByteArray path = QFile::encodeName(m_folder + QLatin1Char('/') + name);
    struct stat status {};
    if (stat(path.constData(), &status) != 0)
        return entry;
    entry.isCharacterDevice = S_ISCHR(status.st_mode);
    entry.isFifo = S_ISFIFO(status.st_mode);
    if (!entry.isCharacterDevice && !entry.isFifo && !S_ISREG(status.st_mode))
        return entry;
    entry.fd = open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (entry.fd < 0) {
        entry.error = errno;
        return entry;
    }
    entry.capabilities = entry.isCharacterDevice ? m_probe->capabilities(entry.fd, name)
                                                 : EvdevDeviceProbe::Capabilities{true, true};
    if (!entry.capabilities.keyboard && !entry.capabilities.mouse) {
        close(entry.fd);
        entry.fd = -1;
    }
    return entry;
}

CaptureBackend::Access EvdevCaptureBackend::checkAccess()
{
    if (m_helperRunning)
        return {true, {}};
    Access access = checkDeviceAccess();
    // Where the devices stay closed, what became of the helper says more.
    const std::lock_guard guard(m_keymapLock);
    if (!access.granted && !m_helperProblem.isEmpty())
        access.reason = m_helperProblem;
    return access;
}

CaptureBackend::Access EvdevCaptureBackend::checkDeviceAccess() const
{
    if (!QFileInfo(m_folder).isDir())
        return {false,
                QCoreApplication::translate(
                    "EvdevCaptureBackend", "Vantrel finds no input devices: the folder %1 does not "
                                           "exist.")
                    .arg(m_folder)};
    bool denied = false;
    for (const QString &name : deviceNames()) {
        const OpenedEntry entry = openEntry(name);
        if (entry.fd >= 0)
            close(entry.fd);
        if (entry.fd >= 0 && entry.capabilities.keyboard)
            return {true, {}};
        denied = denied || entry.error == EACCES || entry.error == EPERM;
    }
    if (denied &&
        InputGroupMembership::status() == InputGroupMembership::Status::memberFromNextLogin)
        return {false,
                QCoreApplication::translate("EvdevCaptureBackend",
                                            "You are in the input group, but this session began "
                                            "before you joined it: log out and back in.")};
    if (denied)
        return {false, QCoreApplication::translate(
                           "EvdevCaptureBackend",
                           "Vantrel cannot read the input devices in %1 (permission "
                           "denied).")
                           .arg(m_folder)};
    return {false,
            QCoreApplication::translate("EvdevCaptureBackend", "Vantrel finds no keyboard in %1.")
                .arg(m_folder)};
}

CaptureBackend::Access EvdevCaptureBackend::requestAccess()
{
    // Nothing to ask for in this process: access is the devices' permissions.
    return checkAccess();
}

QStringList EvdevCaptureBackend::accessSteps() const
{
    QStringList steps;
    if (canAskForAccess())
        steps << QCoreApplication::translate(
            "EvdevCaptureBackend",
            "Choose Allow and give an administrator's password: Vantrel's "
            "input helper then reads the keyboard until Vantrel quits. If no "
            "password dialog appears, start your desktop's authentication "
            "agent and choose Allow again.");
    steps << QCoreApplication::translate(
                 "EvdevCaptureBackend",
                 "Or add yourself to the input group: sudo usermod -aG input $USER. "
                 "Every program you run can then read every key you type.")
          << QCoreApplication::translate(
                 "EvdevCaptureBackend",
                 "Log out and back in, so that the new group applies, then choose "
                 "Check Again.");
    return steps;
}

bool EvdevCaptureBackend::canAskForAccess() const
{
    return !m_helper.program().isEmpty();
}

CaptureBackend::Access EvdevCaptureBackend::askForAccess()
{
    if (const Access access = checkAccess(); access.granted || !canAskForAccess())
        return access;
    const InputHelperProcess::State state = m_helper.start();
    m_helperRunning = state == InputHelperProcess::State::running;
    m_helperRestarts = 0;
    {
        const std::lock_guard guard(m_keymapLock);
        m_helperProblem = InputHelperProcess::describe(state);
    }
    return checkAccess();
}

// ---- Installation ----

bool EvdevCaptureBackend::install()
{
    if (m_installed)
        return true;
    // Named for profilers and the benchmark's CPU by thread.
    pthread_setname_np(pthread_self(), "KeyCapture");
    if (m_wakeFd < 0)
        return false;
    m_context.reset(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    KeymapRef keymap;
    {
        const std::lock_guard guard(m_keymapLock);
        keymap = m_keymap;
        m_keymapChanged = false;
    }
    if (!keymap && m_context)
        keymap = KeymapRef(
            xkb_keymap_new_from_names(m_context.get(), nullptr, XKB_KEYMAP_COMPILE_NO_FLAGS),
            XkbUnref());
    m_inotifyFd = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    constexpr quint32 folderEvents =
        IN_CREATE | IN_ATTRIB | IN_DELETE | IN_MOVED_TO | IN_MOVED_FROM;
    if (!keymap || !loadKeymap(std::move(keymap)) || m_inotifyFd < 0 ||
        inotify_add_watch(m_inotifyFd, QFile::encodeName(m_folder).constData(), folderEvents) < 0) {
        uninstall();
        return false;
    }
    m_installed = true;
    for (const QString &name : deviceNames())
        addDevice(name);
    if (m_helperRunning)
        addHelperDevice();
    return true;
}

void EvdevCaptureBackend::addHelperDevice()
{
    auto device = std::make_unique<Device>();
    device->name = QStringLiteral("vantrel-input-helper");
    device->fd = fcntl(m_helper.output(), F_DUPFD_CLOEXEC, 0);
    device->isHelper = true;
    if (device->fd < 0)
        return;
    fcntl(device->fd, F_SETFL, fcntl(device->fd, F_GETFL) | O_NONBLOCK);
    m_devices.push_back(std::move(device));
}

bool EvdevCaptureBackend::restartHelper()
{
    if (m_helperRestarts++ == 0 && m_helper.start() == InputHelperProcess::State::running) {
        addHelperDevice();
        return true;
    }
    m_helper.stop();
    m_helperRunning = false;
    const QString problem = QCoreApplication::translate(
        "EvdevCaptureBackend",
        "Vantrel's input helper stopped twice; choose Allow to start it again.");
    {
        const std::lock_guard guard(m_keymapLock);
        m_helperProblem = problem;
    }
    qWarning("Vantrel: the input helper stopped twice; key capture has stopped.");
    return false;
}

void EvdevCaptureBackend::uninstall()
{
    // Nothing is delivered any more (no run() runs): closing releases only the bookkeeping.
    for (const std::unique_ptr<Device> &device : m_devices)
        close(device->fd);
    m_devices.clear();
    if (m_inotifyFd >= 0)
        close(m_inotifyFd);
    m_inotifyFd = -1;
    m_installed = false;
    m_downCount.fill(0);
    m_state.reset();
    m_context.reset();
    m_flags = 0;
    m_reportedFlags = 0;
    m_group = 0;
}

bool EvdevCaptureBackend::loadKeymap(KeymapRef keymap)
{
    std::unique_ptr<xkb_state, XkbUnref> state(xkb_state_new(keymap.get()));
    if (!state)
        return false;
    // Keys held now stay held under the new keymap.
    for (int code = 0; code < KEY_CNT; ++code)
        if (m_downCount[code] > 0)
            xkb_state_update_key(state.get(), xkb_keycode_t(code + evdevOffset), XKB_KEY_DOWN);
    // So do Caps Lock and Num Lock: real modifiers, which have the same bits in every keymap.
    constexpr xkb_mod_mask_t realModifiers = 0xff;
    const xkb_mod_mask_t locked =
        m_state ? xkb_state_serialize_mods(m_state.get(), XKB_STATE_MODS_LOCKED) & realModifiers
                : 0;
    if (locked)
        xkb_state_update_mask(state.get(),
                              xkb_state_serialize_mods(state.get(), XKB_STATE_MODS_DEPRESSED),
                              xkb_state_serialize_mods(state.get(), XKB_STATE_MODS_LATCHED), locked,
                              xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_DEPRESSED),
                              xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_LATCHED),
                              xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_LOCKED));
    m_state = std::move(state);
    // The group is the desktop's to choose until keys toggle it.
    m_group = xkb_state_serialize_layout(m_state.get(), XKB_STATE_LAYOUT_EFFECTIVE);
    m_flags = XkbStateReader::modifierFlags(m_state.get());
    reportFlags(-1);
    return true;
}

void EvdevCaptureBackend::applyPendingKeymap()
{
    KeymapRef keymap;
    {
        const std::lock_guard guard(m_keymapLock);
        if (std::exchange(m_keymapChanged, false))
            keymap = m_keymap;
    }
    if (keymap)
        loadKeymap(std::move(keymap));
}

// ---- Devices ----

void EvdevCaptureBackend::addDevice(const QString &name)
{
    if (!m_installed || !isDeviceName(name) ||
        std::any_of(
            m_devices.begin(), m_devices.end(),
            [&name](const std::unique_ptr<Device> &device) { return device->name == name; }))
        return;
    const OpenedEntry entry = openEntry(name);
    if (entry.fd < 0)
        return;
    auto device = std::make_unique<Device>();
    device->name = name;
    device->fd = entry.fd;
    device->canTellKeys = entry.isCharacterDevice;
    device->isFifo = entry.isFifo;
    // Keys already held (Shift while Vantrel starts) count, so their modifiers apply.
    resynchronize(*device);
    m_devices.push_back(std::move(device));
}

void EvdevCaptureBackend::removeDevice(const QString &name)
{
    const auto found = std::find_if(
        m_devices.begin(), m_devices.end(),
        [&name](const std::unique_ptr<Device> &device) { return device->name == name; });
    if (found == m_devices.end())
        return;
    closeDevice(**found);
    m_devices.erase(found);
}

void EvdevCaptureBackend::closeDevice(Device &device)
{
    // A keyboard unplugged with a key down must not leave the key held.
    for (int code = 0; code < KEY_CNT; ++code)
        if (device.down[code])
            handleKey(device, code, keyReleased, true);
    close(device.fd);
    device.fd = -1;
}

bool EvdevCaptureBackend::readDevice(Device &device)
{
    const EvdevRecordReader::Result result = device.reader.read(device.fd, m_records);
    for (const input_event &record : m_records)
        handleRecord(device, record);
    m_records.clear();
    return result != EvdevRecordReader::Result::end;
}

void EvdevCaptureBackend::handleRecord(Device &device, const input_event &record)
{
    if (device.dropping) {
        // The kernel's buffer overflowed: what follows up to the report is incomplete.
        if (record.type == EV_SYN && record.code == SYN_REPORT) {
            device.dropping = false;
            resynchronize(device);
        }
        return;
    }
    if (record.type == EV_SYN && record.code == SYN_DROPPED)
        device.dropping = true;
    else if (record.type == EV_KEY && record.code < KEY_CNT && record.value >= keyReleased &&
             record.value <= keyRepeated)
        handleKey(device, record.code, record.value, true);
}

void EvdevCaptureBackend::resynchronize(Device &device)
{
    std::optional<EvdevDeviceProbe::KeyBits> now;
    if (device.canTellKeys)
        now = m_probe->keysDown(device.fd);
    const EvdevDeviceProbe::KeyBits down = now.value_or(EvdevDeviceProbe::KeyBits());
    for (int code = 0; code < KEY_CNT; ++code)
        if (device.down[code] != down[code])
            // A key pressed meanwhile is taken as held, not shown as a press nobody saw.
            handleKey(device, code, down[code] ? keyPressed : keyReleased, !down[code]);
}

void EvdevCaptureBackend::handleKey(Device &device, int code, int value, bool announce)
{
    if (value == keyRepeated) {
        // The kernel repeats as the keyboard does; a held modifier is not pressed again.
        if (device.down[code] && !isModifierKey(code))
            deliver(CaptureEvent::Type::keyDown, code);
        return;
    }
    const bool press = value == keyPressed;
    // A second press or release changes nothing.
    if (device.down[code] == press)
        return;
    device.down[code] = press;
    quint16 &count = m_downCount[code];
    count = press ? count + 1 : count - 1;
    // A key held on another device too stays down until that one releases it as well.
    const bool changed = count == (press ? 1 : 0);
    if (changed) {
        xkb_state_update_key(m_state.get(), xkb_keycode_t(code + evdevOffset),
                             press ? XKB_KEY_DOWN : XKB_KEY_UP);
        stateDidChange(code);
    }
    if (!announce || (!press && !changed) || isModifierKey(code))
        return;
    if (press && (code == BTN_LEFT || code == BTN_RIGHT)) {
        CaptureEvent click;
        click.type = code == BTN_LEFT ? CaptureEvent::Type::leftMouseDown
                                      : CaptureEvent::Type::rightMouseDown;
        click.flags = m_flags;
        if (m_handler)
            m_handler->handleCaptureEvent(click);
        return;
    }
    deliver(press ? CaptureEvent::Type::keyDown : CaptureEvent::Type::keyUp, code);
}

void EvdevCaptureBackend::stateDidChange(int code)
{
    const quint32 group = xkb_state_serialize_layout(m_state.get(), XKB_STATE_LAYOUT_EFFECTIVE);
    if (group != m_group) {
        m_group = group;
        // The naming source follows a layout toggle at once, so the next key is named in it.
        if (m_layoutSource)
            m_layoutSource->setActiveGroup(group);
    }
    m_flags = XkbStateReader::modifierFlags(m_state.get());
    reportFlags(code);
}

void EvdevCaptureBackend::reportFlags(int code)
{
    if (!m_handler || m_flags == m_reportedFlags)
        return;
    m_reportedFlags = m_flags;
    CaptureEvent changed;
    changed.type = CaptureEvent::Type::flagsChanged;
    changed.keyCode = code >= 0 ? EvdevKeyCodeTable::keyCode(code).value_or(-1) : -1;
    changed.flags = m_flags;
    m_handler->handleCaptureEvent(changed);
}

void EvdevCaptureBackend::deliver(CaptureEvent::Type type, int code)
{
    const std::optional<int> keyCode = EvdevKeyCodeTable::keyCode(code);
    if (!m_handler || !keyCode)
        return;
    CaptureEvent event;
    event.type = type;
    event.keyCode = *keyCode;
    event.flags = m_flags;
    event.characters = [this, code] {
        return XkbStateReader::characters(m_state.get(), quint32(code + evdevOffset));
    };
    m_handler->handleCaptureEvent(event);
}

// ---- The folder ----

void EvdevCaptureBackend::handleFolderEvents()
{
    alignas(inotify_event) char buffer[4096];
    for (;;) {
        const ssize_t size = read(m_inotifyFd, buffer, sizeof buffer);
        if (size <= 0)
            return;
        for (ssize_t offset = 0; offset < size;) {
            const auto *event = reinterpret_cast<const inotify_event *>(buffer + offset);
            offset += ssize_t(sizeof(inotify_event) + event->len);
            if (event->mask & IN_Q_OVERFLOW) {
                rescanFolder();
                continue;
            }
            if (event->len == 0)
                continue;
            const QString name = QFile::decodeName(event->name);
            if (event->mask & (IN_DELETE | IN_MOVED_FROM))
                removeDevice(name);
            // Also after a change of permissions: udev grants access after making the node.
            else if (event->mask & (IN_CREATE | IN_ATTRIB | IN_MOVED_TO))
                addDevice(name);
        }
    }
}

void EvdevCaptureBackend::rescanFolder()
{
    const QStringList names = deviceNames();
    QStringList gone;
    for (const std::unique_ptr<Device> &device : m_devices)
        if (!names.contains(device->name))
            gone.append(device->name);
    for (const QString &name : gone)
        removeDevice(name);
    for (const QString &name : names)
        addDevice(name);
}

// ---- The loop ----

CaptureBackend::RunResult EvdevCaptureBackend::run(CaptureEventHandler &handler)
{
    if (!m_installed)
        return RunResult::ended;
    m_handler = &handler;
    // Modifiers held when the devices were opened.
    reportFlags(-1);
    std::vector<pollfd> descriptors;
    std::vector<Device *> polled;
    for (;;) {
        if (m_stopRequested.exchange(false)) {
            m_handler = nullptr;
            return RunResult::stopped;
        }
        descriptors.assign({{m_wakeFd, POLLIN, 0}, {m_inotifyFd, POLLIN, 0}});
        polled.clear();
        for (const std::unique_ptr<Device> &device : m_devices) {
            descriptors.push_back({device->fd, POLLIN, 0});
            polled.push_back(device.get());
        }
        if (poll(descriptors.data(), descriptors.size(), -1) < 0) {
            if (errno == EINTR)
                continue;
            qWarning("Vantrel: waiting for input devices failed; key capture has stopped.");
            m_handler = nullptr;
            return RunResult::ended;
        }
        if (descriptors[0].revents & POLLIN) {
            quint64 count = 0;
            [[maybe_unused]] const ssize_t read = ::read(m_wakeFd, &count, sizeof count);
            applyPendingKeymap();
        }
        // Devices first: a device removed from the folder still delivers what it had sent.
        std::vector<std::pair<QString, bool>> ended; // name, reopen
        bool helperEnded = false;
        for (std::size_t i = 0; i < polled.size(); ++i)
            if (descriptors[i + 2].revents != 0 && !readDevice(*polled[i])) {
                ended.emplace_back(polled[i]->name, polled[i]->isFifo);
                helperEnded = helperEnded || polled[i]->isHelper;
            }
        for (const auto &[name, reopen] : ended) {
            removeDevice(name);
            // A FIFO ends when its writer leaves; the next writer finds it open again.
            if (reopen)
                addDevice(name);
        }
        if (helperEnded && !restartHelper()) {
            m_handler = nullptr;
            return RunResult::ended;
        }
        if (descriptors[1].revents & POLLIN)
            handleFolderEvents();
    }
}
