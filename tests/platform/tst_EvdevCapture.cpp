#include "capture/KeyCode.h"
#include "platform/evdev/EvdevCaptureBackend.h"
#include "platform/evdev/EvdevDeviceProbe.h"
#include "platform/evdev/EvdevRecordReader.h"
#include "platform/evdev/InputGroupMembership.h"
#include "platform/linux/XkbKeyboardLayoutSource.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <csignal>
#include <memory>
#include <mutex>
#include <thread>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct KeyChange {
    int code;
    int value;
};

input_event record(int type, int code, int value)
{
    input_event result{};
    result.type = quint16(type);
    result.code = quint16(code);
    result.value = value;
    return result;
}

// Key changes as a keyboard reports them: each followed by the end of its frame.
std::vector<input_event> frames(const QList<KeyChange> &changes)
{
    std::vector<input_event> records;
    for (const KeyChange &change : changes) {
        records.push_back(record(EV_KEY, change.code, change.value));
        records.push_back(record(EV_SYN, SYN_REPORT, 0));
    }
    return records;
}

bool writeRecords(int fd, const std::vector<input_event> &records)
{
    const auto size = ssize_t(records.size() * sizeof(input_event));
    return write(fd, records.data(), size_t(size)) == size;
}

QString described(const char *kind, int keyCode = -1, quint64 flags = 0)
{
    return QStringLiteral("%1 %2 %3").arg(kind).arg(keyCode).arg(flags, 0, 16);
}
QString down(int keyCode, quint64 flags = 0)
{
    return described("down", keyCode, flags);
}
QString up(int keyCode, quint64 flags = 0)
{
    return described("up", keyCode, flags);
}

// Devices by name: "keyboard", "mouse", anything else neither (a joystick, a power button).
class FakeProbe final : public EvdevDeviceProbe {
public:
    Capabilities capabilities(int, const QString &name) const override
    {
        return {name.startsWith("keyboard"), name.startsWith("mouse")};
    }
    std::optional<KeyBits> keysDown(int) const override { return KeyBits(); }
};

// Writes down every event the backend delivers, on the capture thread.
class Recorder final : public CaptureEventHandler {
public:
    void handleCaptureEvent(const CaptureEvent &captured) override
    {
        static const char *const kinds[] = {"down", "up", "flags", "left", "right"};
        const std::lock_guard guard(m_lock);
        m_events.append(described(kinds[int(captured.type)], captured.keyCode, captured.flags));
        if (captured.type == CaptureEvent::Type::keyDown)
            m_characters.append(captured.characters());
    }
    QStringList events() const
    {
        const std::lock_guard guard(m_lock);
        return m_events;
    }
    QStringList characters() const
    {
        const std::lock_guard guard(m_lock);
        return m_characters;
    }

private:
    mutable std::mutex m_lock;
    QStringList m_events;
    QStringList m_characters;
};

// The backend on a device folder of its own, running on a capture thread as KeyManager runs it.
class Capture final {
public:
    explicit Capture(std::shared_ptr<XkbKeyboardLayoutSource> layout = {},
                     const QString &helperProgram = {})
        : m_backend(std::move(layout), m_dir.path(), std::make_unique<FakeProbe>(), helperProgram)
    {}
    ~Capture()
    {
        for (const int fd : m_writers)
            close(fd);
        m_quit = true;
        m_backend.stop();
        if (m_thread.joinable())
            m_thread.join();
    }

    void start()
    {
        m_thread = std::thread([this] {
            m_installed = m_backend.install();
            while (m_installed && !m_quit &&
                   m_backend.run(m_recorder) == CaptureBackend::RunResult::stopped) {
            }
            m_backend.uninstall();
        });
    }
    EvdevCaptureBackend &backend() { return m_backend; }
    const Recorder &recorder() const { return m_recorder; }
    QString path(const QString &name) const { return m_dir.filePath(name); }

    // Makes a FIFO device and connects to it once the backend reads it; -1 when it never does.
    int plugFifo(const QString &name)
    {
        mkfifo(QFile::encodeName(path(name)).constData(), 0600);
        int fd = -1;
        if (!QTest::qWaitFor([&] {
                fd = open(QFile::encodeName(path(name)).constData(), O_WRONLY | O_NONBLOCK);
                return fd >= 0;
            }))
            return -1;
        m_writers.push_back(fd);
        return fd;
    }

private:
    QTemporaryDir m_dir;
    EvdevCaptureBackend m_backend;
    Recorder m_recorder;
    std::vector<int> m_writers;
    std::atomic<bool> m_installed{false};
    std::atomic<bool> m_quit{false};
    std::thread m_thread;
};

} // namespace

Q_DECLARE_METATYPE(QList<KeyChange>)

// The evdev capture fed through FIFOs and files in a temporary device folder.
class tst_EvdevCapture final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // A writer whose reader is gone fails instead of ending the test.
        std::signal(SIGPIPE, SIG_IGN);
    }

    void recordReader_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QList<int>>("writes"); // byte counts; the rest in one last write
        QTest::newRow("one record") << 1 << QList<int>{};
        QTest::newRow("split records") << 3 << QList<int>{7, 30, 1, 11};
        QTest::newRow("more than one read") << 300 << QList<int>{5};
    }
    void recordReader()
    {
        QFETCH(int, count);
        QFETCH(QList<int>, writes);
        std::vector<input_event> sent;
        for (int i = 0; i < count; ++i)
            sent.push_back(record(EV_KEY, i, i % 3));
        int pipeFds[2];
        QCOMPARE(pipe2(pipeFds, O_NONBLOCK), 0);
        EvdevRecordReader reader;
        std::vector<input_event> received;
        QCOMPARE(reader.read(pipeFds[0], received), EvdevRecordReader::Result::empty);
        const auto *bytes = reinterpret_cast<const char *>(sent.data());
        const qsizetype total = qsizetype(sent.size() * sizeof(input_event));
        qsizetype offset = 0;
        writes.append(int(total));
        for (const int size : writes) {
            const qsizetype part = std::min<qsizetype>(size, total - offset);
            QCOMPARE(write(pipeFds[1], bytes + offset, size_t(part)), part);
            offset += part;
            while (reader.read(pipeFds[0], received) == EvdevRecordReader::Result::records) {
            }
        }
        close(pipeFds[1]);
        QCOMPARE(reader.read(pipeFds[0], received), EvdevRecordReader::Result::end);
        close(pipeFds[0]);
        QCOMPARE(received.size(), sent.size());
        for (std::size_t i = 0; i < sent.size(); ++i)
            QVERIFY(received[i].code == sent[i].code && received[i].value == sent[i].value);
    }

    void discovery_data()
    {
        // Character devices are links to /dev/null, which the fake probe names by their entries.
        QTest::addColumn<QStringList>("devices");
        QTest::addColumn<QStringList>("others");
        QTest::addColumn<bool>("granted");
        QTest::newRow("empty") << QStringList{} << QStringList{} << false;
        QTest::newRow("joystick, power button, mouse")
            << QStringList{"joystick", "power-button", "mouse"} << QStringList{} << false;
        QTest::newRow("keyboard") << QStringList{"joystick", "keyboard"} << QStringList{} << true;
        QTest::newRow("fifo") << QStringList{} << QStringList{"fifo"} << true;
        QTest::newRow("regular file") << QStringList{} << QStringList{"file"} << true;
        QTest::newRow("folder") << QStringList{} << QStringList{"folder"} << false;
    }
    void discovery()
    {
        QFETCH(QStringList, devices);
        QFETCH(QStringList, others);
        QFETCH(bool, granted);
        QTemporaryDir dir;
        for (const QString &name : devices)
            QVERIFY(QFile::link("/dev/null", dir.filePath(name)));
        for (const QString &kind : others) {
            const QByteArray path = QFile::encodeName(dir.filePath(kind));
            if (kind == "fifo")
                QCOMPARE(mkfifo(path.constData(), 0600), 0);
            else if (kind == "file")
                QVERIFY(QFile(path).open(QIODevice::WriteOnly));
            else
                QVERIFY(QDir(dir.path()).mkdir(kind));
        }
        EvdevCaptureBackend backend({}, dir.path(), std::make_unique<FakeProbe>());
        const CaptureBackend::Access access = backend.checkAccess();
        QCOMPARE(access.granted, granted);
        QCOMPARE(access.reason.isEmpty(), granted);
        QVERIFY(granted || access.reason.contains(dir.path()));
    }

    void deviceFolderFromEnvironment()
    {
        QTemporaryDir dir;
        qputenv("VANTREL_INPUT_DIR", QFile::encodeName(dir.filePath("missing")));
        EvdevCaptureBackend missing({}, {}, std::make_unique<FakeProbe>());
        QVERIFY(missing.checkAccess().reason.contains(dir.filePath("missing")));
        QVERIFY(!missing.install());

        qputenv("VANTREL_INPUT_DIR", QFile::encodeName(dir.path()));
        QCOMPARE(mkfifo(QFile::encodeName(dir.filePath("kbd")).constData(), 0600), 0);
        EvdevCaptureBackend present({}, {}, std::make_unique<FakeProbe>());
        qunsetenv("VANTREL_INPUT_DIR");
        QVERIFY(present.checkAccess().granted);
    }

    // A file moved in is read to its end; what it left held is released then. (Every FIFO of
    // the other cases is plugged in after the start, too.)
    void hotPlugAFile()
    {
        Capture capture;
        capture.start();
        QVERIFY(capture.plugFifo("kbd") >= 0); // the backend runs
        QTemporaryDir elsewhere;
        QFile file(elsewhere.filePath("recorded"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const std::vector<input_event> records = frames({{KEY_Q, 1}, {KEY_Q, 0}, {KEY_W, 1}});
        file.write(reinterpret_cast<const char *>(records.data()),
                   qint64(records.size() * sizeof(input_event)));
        file.close();
        QVERIFY(file.rename(capture.path("recorded")));
        QTRY_COMPARE(capture.recorder().events(), QStringList({down(KeyCode::Q), up(KeyCode::Q),
                                                               down(KeyCode::W), up(KeyCode::W)}));
    }

    void unpluggedKeyboardReleasesKeys_data()
    {
        QTest::addColumn<bool>("removed"); // or the writer leaves the FIFO
        QTest::newRow("device removed") << true;
        QTest::newRow("writer gone") << false;
    }
    void unpluggedKeyboardReleasesKeys()
    {
        QFETCH(bool, removed);
        Capture capture;
        capture.start();
        const int fifo = capture.plugFifo("kbd");
        QVERIFY(fifo >= 0);
        QVERIFY(writeRecords(fifo, frames({{KEY_LEFTSHIFT, 1}, {KEY_K, 1}})));
        QTRY_COMPARE(capture.recorder().events().size(), 2);
        if (removed) {
            QVERIFY(QFile::remove(capture.path("kbd")));
        } else {
            // The writer's end closes; its descriptor stays valid for the capture to close.
            const int devNull = open("/dev/null", O_WRONLY);
            QVERIFY(dup2(devNull, fifo) == fifo);
            close(devNull);
        }
        const QStringList released{up(KeyCode::K, ModifierFlag::Shift),
                                   described("flags", KeyCode::Shift)};
        QTRY_COMPARE(capture.recorder().events().mid(2), released);

        // Plugged again, the keyboard types as before.
        const int again = capture.plugFifo("kbd");
        QVERIFY(again >= 0);
        QVERIFY(writeRecords(again, frames({{KEY_J, 1}})));
        QTRY_COMPARE(capture.recorder().events().mid(4), QStringList{down(KeyCode::J)});
    }

    void droppedRecordsResynchronize()
    {
        Capture capture;
        capture.start();
        const int fifo = capture.plugFifo("kbd");
        QVERIFY(fifo >= 0);
        std::vector<input_event> records = frames({{KEY_K, 1}, {KEY_J, 1}});
        // What comes up to the next report is incomplete and dropped; a FIFO cannot be asked which
        // keys are down, so none are.
        records.push_back(record(EV_SYN, SYN_DROPPED, 0));
        records.push_back(record(EV_KEY, KEY_L, 1));
        records.push_back(record(EV_SYN, SYN_REPORT, 0));
        for (const input_event &after : frames({{KEY_M, 1}}))
            records.push_back(after);
        QVERIFY(writeRecords(fifo, records));
        QTRY_COMPARE(capture.recorder().events(),
                     QStringList({down(KeyCode::K), down(KeyCode::J), up(KeyCode::J),
                                  up(KeyCode::K), down(KeyCode::M)}));
    }

    void keyboardsShareModifiers()
    {
        Capture capture;
        capture.start();
        const int first = capture.plugFifo("first");
        const int second = capture.plugFifo("second");
        QVERIFY(first >= 0 && second >= 0);
        // The two devices are read in no fixed order: each step ends with a marker key (End) and
        // waits for it before the next.
        int steps = 0;
        const auto markedEvents = [&capture](bool markers) {
            const QString marker = QStringLiteral(" %1 ").arg(KeyCode::End);
            QStringList events = capture.recorder().events();
            events.removeIf([&](const QString &line) { return line.contains(marker) != markers; });
            return events;
        };
        for (const auto &[fd, change] : std::initializer_list<std::pair<int, KeyChange>>{
                 {first, {KEY_LEFTSHIFT, 1}},
                 {second, {KEY_K, 1}},
                 {second, {KEY_LEFTSHIFT, 1}},
                 {first, {KEY_LEFTSHIFT, 0}}, // still held on the second keyboard
                 {second, {KEY_J, 1}},
                 {second, {KEY_LEFTSHIFT, 0}}}) {
            QVERIFY(writeRecords(fd, frames({change, {KEY_END, 1}, {KEY_END, 0}})));
            ++steps;
            QTRY_COMPARE(markedEvents(true).size(), 2 * steps);
        }
        const quint64 shift = ModifierFlag::Shift;
        QCOMPARE(markedEvents(false),
                 QStringList({described("flags", KeyCode::Shift, shift), down(KeyCode::K, shift),
                              down(KeyCode::J, shift), described("flags", KeyCode::Shift)}));
        QStringList characters = capture.recorder().characters();
        characters.removeAll(QString()); // End types nothing
        QCOMPARE(characters, QStringList({"K", "J"}));
    }
    void keyChanges_data()
    {
        QTest::addColumn<QList<KeyChange>>("changes");
        QTest::addColumn<QStringList>("events");
        const quint64 shift = ModifierFlag::Shift;
        QTest::newRow("auto-repeat")
            << QList<KeyChange>{{KEY_K, 1}, {KEY_K, 2}, {KEY_K, 2}, {KEY_K, 0}}
            << QStringList{down(KeyCode::K), down(KeyCode::K), down(KeyCode::K), up(KeyCode::K)};
        QTest::newRow("held modifier repeats nothing")
            << QList<KeyChange>{{KEY_LEFTSHIFT, 1},
                                {KEY_LEFTSHIFT, 2},
                                {KEY_K, 1},
                                {KEY_LEFTSHIFT, 0}}
            << QStringList{described("flags", KeyCode::Shift, shift), down(KeyCode::K, shift),
                           described("flags", KeyCode::Shift)};
        QTest::newRow("second press and release")
            << QList<KeyChange>{{KEY_K, 2}, {KEY_K, 1}, {KEY_K, 1}, {KEY_K, 0}, {KEY_K, 0}}
            << QStringList{down(KeyCode::K), up(KeyCode::K)};
        QTest::newRow("mouse buttons")
            << QList<KeyChange>{{BTN_LEFT, 1}, {BTN_LEFT, 0}, {BTN_MIDDLE, 1}, {BTN_RIGHT, 1}}
            << QStringList{described("left"), described("right")};
        QTest::newRow("caps lock")
            << QList<KeyChange>{{KEY_CAPSLOCK, 1}, {KEY_CAPSLOCK, 0}, {KEY_K, 1}}
            << QStringList{described("flags", KeyCode::CapsLock, ModifierFlag::CapsLock),
                           down(KeyCode::K, ModifierFlag::CapsLock)};
    }
    void keyChanges()
    {
        QFETCH(QList<KeyChange>, changes);
        QFETCH(QStringList, events);
        Capture capture;
        capture.start();
        const int fifo = capture.plugFifo("kbd");
        QVERIFY(fifo >= 0);
        QVERIFY(writeRecords(fifo, frames(changes)));
        // A last key marks the end: nothing before it may be missing or extra.
        QVERIFY(writeRecords(fifo, frames({{KEY_END, 1}})));
        const QString end = QStringLiteral("down %1 ").arg(KeyCode::End);
        QTRY_VERIFY(capture.recorder().events().join(',').contains(end));
        QStringList delivered = capture.recorder().events();
        delivered.removeLast();
        QCOMPARE(delivered, events);
    }

    void layoutTypesCharacters()
    {
        const std::shared_ptr<XkbKeyboardLayoutSource> layout =
            XkbKeyboardLayoutSource::fromNames("de");
        QVERIFY(layout);
        Capture capture(layout);
        // A device present at start is found by the first scan, not by a folder event.
        QCOMPARE(mkfifo(QFile::encodeName(capture.path("kbd")).constData(), 0600), 0);
        capture.start();
        const int fifo = capture.plugFifo("kbd");
        QVERIFY(fifo >= 0);
        // The US Y position types z on a German keyboard; AltGr+Q types @.
        QVERIFY(
            writeRecords(fifo, frames({{KEY_Y, 1}, {KEY_Y, 0}, {KEY_RIGHTALT, 1}, {KEY_Q, 1}})));
        QTRY_COMPARE(capture.recorder().characters(), QStringList({"z", "@"}));
        QVERIFY(capture.recorder().events().contains(down(KeyCode::Q, ModifierFlag::Option)));

        // A new keymap from the layout source applies to the next key, with AltGr still held and
        // Caps Lock still on.
        QVERIFY(writeRecords(fifo, frames({{KEY_CAPSLOCK, 1}, {KEY_CAPSLOCK, 0}})));
        QTRY_VERIFY(capture.recorder().events().contains(
            described("flags", KeyCode::CapsLock, ModifierFlag::CapsLock | ModifierFlag::Option)));
        const std::shared_ptr<XkbKeyboardLayoutSource> us =
            XkbKeyboardLayoutSource::fromNames("us");
        layout->setKeymap(us->keymap().get());
        QVERIFY(writeRecords(fifo, frames({{KEY_RIGHTALT, 0}, {KEY_Q, 0}, {KEY_Y, 1}})));
        QTRY_COMPARE(capture.recorder().characters(), QStringList({"z", "@", "Y"}));

        // A desktop's remap shows as the desktop does it: Caps Lock as Control is Control.
        layout->setKeymap(
            XkbKeyboardLayoutSource::fromNames("us", {}, "ctrl:nocaps")->keymap().get());
        QVERIFY(writeRecords(fifo, frames({{KEY_Y, 0}, {KEY_CAPSLOCK, 1}})));
        QTRY_VERIFY(capture.recorder().events().contains(
            described("flags", KeyCode::CapsLock, ModifierFlag::Control | ModifierFlag::CapsLock)));
    }

    void inputGroupMembership_data()
    {
        using Status = InputGroupMembership::Status;
        QTest::addColumn<QString>("groups"); // a group database in /etc/group's format
        QTest::addColumn<Status>("status");
        const QString user = QString::fromLocal8Bit(getpwuid(getuid())->pw_name);
        QTest::newRow("joined, session from before")
            << "audio:x:29:\ninput:x:4242:alice," + user << Status::memberFromNextLogin;
        QTest::newRow("not listed") << "input:x:4242:alice" << Status::notMember;
        QTest::newRow("in this session")
            << QStringLiteral("input:x:%1:").arg(getegid()) << Status::member;
        QTest::newRow("no input group") << "audio:x:29:" + user << Status::notMember;
    }
    // Which of the access steps applies: the group database is a file of the test's own.
    void inputGroupMembership()
    {
        QFETCH(QString, groups);
        QFETCH(InputGroupMembership::Status, status);
        QTemporaryDir dir;
        QFile file(dir.filePath("group"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(groups.toLocal8Bit() + '\n');
        file.close();
        QCOMPARE(InputGroupMembership::status(file.fileName()), status);
    }

    void accessThroughTheHelper_data()
    {
        QTest::addColumn<QString>("pkexec"); // what the fake pkexec does
        QTest::addColumn<QString>("problem");
        QTest::newRow("password dialog closed")
            << u"exit 126"_qs << u"The password dialog was closed"_qs;
        QTest::newRow("no authentication agent") << u"exit 127"_qs << u"No authentication agent"_qs;
        QTest::newRow("allowed") << "exec " VANTREL_TESTING_HELPER " \"$HELPER_FOLDER\""
                                 << QString();
    }
    // No device can be read here; "Allow" starts the input helper through pkexec (a fake on the
    // PATH), whose records then count as a keyboard's.
    void accessThroughTheHelper()
    {
        QFETCH(QString, pkexec);
        QFETCH(QString, problem);
        QTemporaryDir bin, helperFolder;
        QFile script(bin.filePath("pkexec"));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write(("#!/bin/sh\n" + pkexec + "\n").toUtf8());
        script.close();
        script.setPermissions(QFile::ExeOwner | QFile::ReadOwner);
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(bin.path()) + ':' + path);
        qputenv("HELPER_FOLDER", QFile::encodeName(helperFolder.path()));
        const QByteArray fifo = QFile::encodeName(helperFolder.filePath("kbd"));
        QVERIFY(mkfifo(fifo.constData(), 0600) == 0);
        const int writer = open(fifo.constData(), O_RDWR | O_NONBLOCK); // before the helper reads
        QVERIFY(writer >= 0);

        Capture capture({}, QStringLiteral("/bin/true"));
        QVERIFY(capture.backend().canAskForAccess());
        QVERIFY(!capture.backend().checkAccess().granted);
        const CaptureBackend::Access access = capture.backend().askForAccess();
        qputenv("PATH", path);
        QCOMPARE(access.granted, problem.isEmpty());
        QVERIFY2(access.reason.startsWith(problem), qPrintable(access.reason));
        if (access.granted) {
            capture.start();
            QVERIFY(writeRecords(writer, frames({{KEY_J, 1}})));
            QTRY_COMPARE(capture.recorder().events(), QStringList{down(KeyCode::J)});
        }
        close(writer);
    }
};

QTEST_GUILESS_MAIN(tst_EvdevCapture)
#include "tst_EvdevCapture.moc"
