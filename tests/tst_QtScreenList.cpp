#include "settings/DisplaySettingsStore.h"
#include "settings/QtScreenList.h"
#include "settings/SettingsStore.h"

#include <QGuiApplication>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

// Identifiers of the test's monitors and of one real monitor, as every version must compute them.
constexpr quint32 LEFT_ID = 2263011829u;
constexpr quint32 RIGHT_ID = 3064683438u;
constexpr quint32 DELL_ID = 1838786876u;

// Two monitors side by side on one X screen of a private Xvfb; LEFT is the primary one.
const QStringList leftMonitor{"--setmonitor", "*LEFT", "1920/508x1080/286+0+0", "screen"};
const QStringList rightMonitor{"--setmonitor", "RIGHT", "1920/508x1080/286+1920+0", "none"};

bool runXrandr(const QStringList &arguments)
{
    QProcess xrandr;
    xrandr.start(QStringLiteral("xrandr"), arguments);
    return xrandr.waitForFinished(10000) && xrandr.exitStatus() == QProcess::NormalExit &&
           xrandr.exitCode() == 0;
}

} // namespace

// The screens as Qt reports them on a real X server, and the display store on top of them.
class tst_QtScreenList final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    void identityIgnoresEdidPadding()
    {
        QCOMPARE(QtScreenList::identityText(QStringLiteral("DEL-"), QStringLiteral(" U2720Q-"),
                                            QStringLiteral("7XK1-"), QStringLiteral("DP-1")),
                 QtScreenList::identityText(QStringLiteral("DEL"), QStringLiteral("U2720Q"),
                                            QStringLiteral("7XK1"), QStringLiteral("DP-1")));
        // The connector is a name, not EDID text: its "-" stays.
        QVERIFY(QtScreenList::identityText({}, {}, {}, QStringLiteral("DP-")) !=
                QtScreenList::identityText({}, {}, {}, QStringLiteral("DP")));
        // Parts do not run into each other.
        QVERIFY(QtScreenList::identityText(QStringLiteral("AB"), QStringLiteral("C"), {}, {}) !=
                QtScreenList::identityText(QStringLiteral("A"), QStringLiteral("BC"), {}, {}));
    }

    void identifiersAreFixedAcrossRunsAndVersions()
    {
        // Stored display settings are keyed by these numbers: they must never change.
        QCOMPARE(QtScreenList::identifiers({QtScreenList::identityText({}, {}, {}, "LEFT")}),
                 QList<quint32>{LEFT_ID});
        QCOMPARE(QtScreenList::identifiers({QtScreenList::identityText({}, {}, {}, "RIGHT")}),
                 QList<quint32>{RIGHT_ID});
        QCOMPARE(QtScreenList::identifiers({QtScreenList::identityText(
                     QStringLiteral("DEL"), QStringLiteral("DELL U2720Q"), QStringLiteral("7XK1"),
                     QStringLiteral("DP-1"))}),
                 QList<quint32>{DELL_ID});
    }

    void alikeScreensGetDistinctStableIdentifiers_data()
    {
        QTest::addColumn<QStringList>("identities");
        QTest::newRow("two alike") << QStringList{"same", "same"};
        QTest::newRow("three alike, one other") << QStringList{"x", "same", "same", "same"};
        QTest::newRow("all different") << QStringList{"a", "b", "c"};
    }
    void alikeScreensGetDistinctStableIdentifiers()
    {
        QFETCH(QStringList, identities);
        const QList<quint32> ids = QtScreenList::identifiers(identities);
        QCOMPARE(QSet<quint32>(ids.begin(), ids.end()).size(), identities.size());
        QVERIFY(!ids.contains(0u));

        // Reported in the opposite order, each identity keeps its number.
        QStringList reversed = identities;
        std::reverse(reversed.begin(), reversed.end());
        QList<quint32> reversedIds = QtScreenList::identifiers(reversed);
        std::reverse(reversedIds.begin(), reversedIds.end());
        QCOMPARE(QSet<quint32>(reversedIds.begin(), reversedIds.end()),
                 QSet<quint32>(ids.begin(), ids.end()));
        for (qsizetype i = 0; i < identities.size(); ++i)
            if (identities.count(identities.at(i)) == 1)
                QCOMPARE(reversedIds.at(i), ids.at(i));
    }

    void twoMonitors()
    {
        QtScreenList screens;
        const QList<ScreenList::Screen> list = screens.screens();
        QCOMPARE(list.size(), 2);
        const ScreenList::Screen left = *screens.screen(LEFT_ID);
        const ScreenList::Screen right = *screens.screen(RIGHT_ID);
        QCOMPARE(left.localizedName, QStringLiteral("LEFT"));
        QCOMPARE(right.localizedName, QStringLiteral("RIGHT"));
        QCOMPARE(left.geometry, QRect(0, 0, 1920, 1080));
        QCOMPARE(right.geometry, QRect(1920, 0, 1920, 1080));
        QVERIFY(left.geometry.contains(left.availableGeometry));
        QCOMPARE(screens.mainScreenID(), std::optional<quint32>(LEFT_ID));
        QVERIFY(screens.qScreen(RIGHT_ID));
        QCOMPARE(screens.qScreen(RIGHT_ID)->name(), QStringLiteral("RIGHT"));
        QVERIFY(!screens.qScreen(12345));
    }

    void displayStoreFollowsMonitorsComingAndGoing()
    {
        SettingsStore settings(m_dir.filePath(QStringLiteral("s.conf")));
        QtScreenList screens;
        DisplaySettingsStore store(settings, screens);
        QCOMPARE(store.configurations().size(), 2);
        QCOMPARE(store.configurations().at(0).name, QStringLiteral("LEFT"));
        QCOMPARE(store.configurations().at(0).isEnabled, true);
        QCOMPARE(store.configurations().at(1).isEnabled, false);
        store.setEnabled(true, RIGHT_ID);
        store.setPosition(AppSettings::KeyPosition::topRight, RIGHT_ID);

        QSignalSpy changed(&store, &DisplaySettingsStore::displaySettingsChanged);
        QVERIFY(runXrandr({"--delmonitor", "RIGHT"}));
        QTRY_COMPARE(store.configurations().size(), 1);
        QVERIFY(changed.count() >= 1);
        QCOMPARE(store.configurations().at(0).id, LEFT_ID);

        QVERIFY(runXrandr(rightMonitor));
        QTRY_COMPARE(store.configurations().size(), 2);
        const DisplayConfiguration back = store.configurations().at(1);
        QCOMPARE(back.id, RIGHT_ID);
        QCOMPARE(back.isEnabled, true);
        QCOMPARE(back.position, AppSettings::KeyPosition::topRight);
    }
};

int main(int argc, char *argv[])
{
    QProcess xvfb;
    xvfb.start(QStringLiteral("Xvfb"), {"-displayfd", "1", "-screen", "0", "3840x1080x24",
                                        "+extension", "RANDR", "-noreset", "-nolisten", "tcp"});
    if (!xvfb.waitForStarted(10000) || !xvfb.waitForReadyRead(20000)) {
        qWarning("Xvfb did not start");
        return 1;
    }
    const QByteArray display = ':' + xvfb.readLine().trimmed();
    qputenv("DISPLAY", display);
    qputenv("QT_QPA_PLATFORM", "xcb");

    int result = 1;
    if (runXrandr(leftMonitor) && runXrandr(rightMonitor)) {
        QGuiApplication app(argc, argv);
        tst_QtScreenList test;
        result = QTest::qExec(&test, argc, argv);
    } else {
        qWarning("xrandr could not set up the monitors");
    }
    xvfb.terminate();
    if (!xvfb.waitForFinished(5000))
        xvfb.kill();
    return result;
}

#include "tst_QtScreenList.moc"
