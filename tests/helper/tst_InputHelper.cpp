// The input helper against a folder of pipes: the test build reads the folder its first argument
// names; the installed one reads /dev/input whatever it is given.
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <linux/input.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <map>

namespace {

struct Record {
    unsigned short type, code;
    int value;
};

} // namespace

class tst_InputHelper final : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;
    std::map<QString, int> m_devices; // the writing ends of the pipes, by name
    QProcess m_helper;
    QByteArray m_output;

    void addDevice(const QString &name)
    {
        const QByteArray path = m_folder.filePath(name).toLocal8Bit();
        QVERIFY(mkfifo(path.constData(), 0600) == 0);
        // Read and write, so that opening does not wait for a reader.
        m_devices[name] = ::open(path.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(m_devices[name] >= 0);
    }
    void send(const QString &device, const QList<Record> &records)
    {
        for (const Record &r : records) {
            input_event event{};
            event.type = r.type;
            event.code = r.code;
            event.value = r.value;
            QCOMPARE(::write(m_devices.at(device), &event, sizeof event), qint64(sizeof event));
        }
    }
    void unplug(const QString &device)
    {
        ::close(m_devices.at(device));
        m_devices.erase(device);
    }
    // What the helper wrote so far, as "type:code:value", reports as "|".
    QString written()
    {
        m_output += m_helper.readAllStandardOutput();
        QString text;
        for (qsizetype at = 0; at + qsizetype(sizeof(input_event)) <= m_output.size();
             at += sizeof(input_event)) {
            input_event event;
            std::memcpy(&event, m_output.constData() + at, sizeof event);
            text +=
                event.type == EV_SYN && event.code == SYN_REPORT
                    ? QStringLiteral("|")
                    : QStringLiteral(" %1:%2:%3").arg(event.type).arg(event.code).arg(event.value);
        }
        return text;
    }

private slots:
    void init()
    {
        for (const QString &name : QDir(m_folder.path()).entryList(QDir::System | QDir::Files))
            QFile::remove(m_folder.filePath(name));
        m_output.clear();
    }
    void cleanup()
    {
        m_helper.closeWriteChannel();
        // Its input closed, the helper ends by itself.
        QVERIFY(m_helper.state() == QProcess::NotRunning || m_helper.waitForFinished(5000));
        for (const auto &[name, fd] : m_devices)
            ::close(fd);
        m_devices.clear();
    }

    void forwardsKeysAsOneKeyboard_data()
    {
        QTest::addColumn<QString>("expected");
        QTest::newRow("keys and buttons pass, other events stay behind")
            << QStringLiteral("| 1:30:1| 1:272:1|");
        QTest::newRow("a key held on two devices goes down and up once")
            << QStringLiteral("| 1:42:1||| 1:42:0|");
        QTest::newRow("an unplugged device lets its keys go") << QStringLiteral("| 1:29:1| 1:29:0|");
        QTest::newRow("records lost: held keys come up, the rest of the report is skipped")
            << QStringLiteral("| 1:30:1| 1:30:0| 1:48:1|");
    }
    void forwardsKeysAsOneKeyboard()
    {
        QFETCH(QString, expected);
        addDevice(QStringLiteral("a"));
        addDevice(QStringLiteral("b"));
        m_helper.start(QStringLiteral(VANTREL_TESTING_HELPER), {m_folder.path()});
        QVERIFY(m_helper.waitForStarted());
        const QString row = QTest::currentDataTag();
        if (row.startsWith(u"keys")) {
            send(u"a"_qs, {{EV_KEY, KEY_A, 1},
                           {EV_REL, REL_X, 3},
                           {EV_MSC, MSC_SCAN, 4},
                           {EV_SYN, SYN_REPORT, 0}});
            send(u"b"_qs,
                 {{EV_KEY, BTN_LEFT, 1}, {EV_KEY, BTN_TRIGGER, 1}, {EV_SYN, SYN_REPORT, 0}});
        } else if (row.startsWith(u"a key held")) {
            int reports = 1; // the one that says it runs
            for (const auto &[device, value] :
                 {std::pair{u"a"_qs, 1}, {u"b"_qs, 1}, {u"a"_qs, 0}, {u"b"_qs, 0}}) {
                send(device, {{EV_KEY, KEY_LEFTSHIFT, value}, {EV_SYN, SYN_REPORT, 0}});
                ++reports; // in this order, device by device
                QTRY_COMPARE(written().count(u'|'), reports);
            }
        } else if (row.startsWith(u"an unplugged")) {
            send(u"a"_qs, {{EV_KEY, KEY_LEFTCTRL, 1}, {EV_SYN, SYN_REPORT, 0}});
            QTRY_VERIFY(written().size() > 1);
            unplug(u"a"_qs);
        } else {
            // Half a record first: records may be split across reads.
            input_event press{{}, EV_KEY, KEY_A, 1};
            QVERIFY(::write(m_devices.at(u"a"_qs), &press, 10) == 10);
            QVERIFY(::write(m_devices.at(u"a"_qs), reinterpret_cast<char *>(&press) + 10,
                            sizeof press - 10) == qint64(sizeof press - 10));
            send(u"a"_qs, {{EV_SYN, SYN_REPORT, 0},
                           {EV_SYN, SYN_DROPPED, 0},
                           {EV_KEY, KEY_C, 1},
                           {EV_SYN, SYN_REPORT, 0},
                           {EV_KEY, KEY_B, 1},
                           {EV_SYN, SYN_REPORT, 0}});
        }
        QTRY_COMPARE(written(), expected);
        m_helper.closeWriteChannel();
        QVERIFY(m_helper.waitForFinished(5000));
        QCOMPARE(m_helper.exitCode(), 0);
    }

    // The installed helper reads /dev/input only, whatever folder it is given.
    void installedHelperIgnoresItsArguments()
    {
        addDevice(QStringLiteral("a"));
        m_helper.start(QStringLiteral(VANTREL_INSTALLED_HELPER), {m_folder.path()});
        QVERIFY(m_helper.waitForStarted());
        send(u"a"_qs, {{EV_KEY, KEY_A, 1}, {EV_SYN, SYN_REPORT, 0}});
        // Where there is no /dev/input it has already ended; otherwise closing its input ends it.
        m_helper.waitForFinished(500);
        m_helper.closeWriteChannel();
        QVERIFY(m_helper.state() == QProcess::NotRunning || m_helper.waitForFinished(5000));
        QCOMPARE(written(), QString());
    }
};

QTEST_GUILESS_MAIN(tst_InputHelper)
#include "tst_InputHelper.moc"
