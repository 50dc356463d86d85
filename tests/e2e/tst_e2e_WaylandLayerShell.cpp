// The whole program in a Wayland session without XWayland: keys written as input records into a
// device folder of a pipe, caps drawn on layer surfaces and read back from sway's outputs, the
// position customizer driven with a virtual pointer and keyboard. The cases run in order: the
// customizer's place is where the later ones find the row.
#include "FakeShortcutsPortal.h"
#include "FakeStatusNotifierWatcher.h"
#include "WaylandSession.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QDBusArgument>
#include <QDBusInterface>
#include <QDBusReply>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <algorithm>
#include <memory>

namespace {

// Where a bottom-centre row of caps is drawn on the 1920x1080 output.
const QRect bottomBand(0, 1080 - 300, 1920, 300);
// Where the customizer puts the row: centred on (480, 540); clear of window borders.
const QRect placedBand(20, 540 - 150, 1880, 300);
// Longer than Vantrel waits for a tray host before it opens the settings window instead.
constexpr qint64 trayHostWaitMs = 6000;
// A point of the desktop that the customizer dims and no cap covers.
const QPoint desktopPoint(100, 100);

// The labels of a menu layout as com.canonical.dbusmenu gives it: (id, properties, children).
void collectLabels(const QDBusArgument &layout, QMap<QString, int> *labels)
{
    int id = 0;
    QVariantMap properties;
    layout.beginStructure();
    layout >> id >> properties;
    layout.beginArray();
    while (!layout.atEnd()) {
        QDBusVariant child;
        layout >> child;
        collectLabels(child.variant().value<QDBusArgument>(), labels);
    }
    layout.endArray();
    layout.endStructure();
    if (properties.contains(QStringLiteral("label")))
        labels->insert(properties.value(QStringLiteral("label")).toString().remove(u'_'), id);
}

QJsonArray displayRecords(const QString &settingsPath)
{
    return QJsonDocument::fromJson(
               SettingsStore(settingsPath).value(AppSettings::displayConfigurations))
        .array();
}

} // namespace

class tst_e2e_WaylandLayerShell final : public QObject {
    Q_OBJECT

    std::unique_ptr<WaylandSession> m_session;
    FakeStatusNotifierWatcher m_trayHost;
    FakeShortcutsPortal m_portal;
    QElapsedTimer m_sinceStart;

    int caps() const { return m_session->capCount(bottomBand); }
    bool pointer(const QString &commands) const
    {
        return m_session->sway().pointer(commands.split(u' '));
    }
    // Whether the customizer's dimming covers the desktop.
    bool dimmed() const
    {
        const QImage screen = m_session->sway().grab();
        return !screen.isNull() && qGray(screen.pixel(desktopPoint)) < qGray(m_desktop) * 8 / 10;
    }

    QRgb m_desktop = 0;

private slots:
    void initTestCase()
    {
        m_session = std::make_unique<WaylandSession>(HeadlessSway::XWayland::disabled);
        QString error;
        QVERIFY2(m_session->sway().start(&error), qPrintable(error));
        // Windows of Vantrel go out of sight, so that only the overlay shows on the output.
        QVERIFY(m_session->sway().swaymsg(
            {QStringLiteral("for_window [title=\"^Vantrel\"] move scratchpad")}));
        QVERIFY(m_session->startSessionBus());
        QVERIFY(m_trayHost.start(m_session->sessionBus()));
        QVERIFY(m_portal.serve(m_session->sessionBus()));
        SettingsStore settings(m_session->settingsPath());
        settings.setRawValue(QStringLiteral("keyDisplayDuration"), 1.0);
        settings.setRawValue(QStringLiteral("KeyboardShortcuts_toggleVantrel"),
                             QStringLiteral("Ctrl+Alt+K"));
        QProcessEnvironment env = m_session->sway().environment(); // no DISPLAY
        env.remove(QStringLiteral("QT_QPA_PLATFORM"));
        QVERIFY2(m_session->startVantrel(env, &error), qPrintable(error));
        m_sinceStart.start();
        m_desktop = m_session->sway().grab().pixel(desktopPoint);
    }
    void cleanupTestCase() { m_session.reset(); }

    // Ctrl+K: two caps on the overlay layer, gone again after the display duration.
    void keysShowOnALayerSurface()
    {
        QVERIFY(m_session->press({{KEY_LEFTCTRL, 1}, {KEY_K, 1}, {KEY_K, 0}, {KEY_LEFTCTRL, 0}}));
        QTRY_COMPARE_WITH_TIMEOUT(caps(), 2, 5000);
        QTRY_COMPARE_WITH_TIMEOUT(caps(), 0, 5000);
    }

    // Without X11 the shortcuts are the portal's: its key down of "toggleVantrel" switches
    // Vantrel off, the next one on again.
    void portalShortcutsFire()
    {
        QTRY_COMPARE_WITH_TIMEOUT(m_portal.binds().size(), 1, 5000);
        QCOMPARE(m_portal.binds().constFirst().value(QStringLiteral("toggleVantrel")),
                 QStringLiteral("CTRL+ALT+k"));
        const auto toggle = [this] {
            m_portal.emitShortcut(QStringLiteral("Activated"), QStringLiteral("toggleVantrel"));
            m_portal.emitShortcut(QStringLiteral("Deactivated"), QStringLiteral("toggleVantrel"));
        };
        const auto ctrlK = [this] {
            return m_session->press({{KEY_LEFTCTRL, 1}, {KEY_K, 1}, {KEY_K, 0}, {KEY_LEFTCTRL, 0}});
        };
        toggle();
        QTRY_VERIFY_WITH_TIMEOUT(
            !SettingsStore(m_session->settingsPath()).value(AppSettings::isVantrelEnabled), 5000);
        QVERIFY(ctrlK());
        QTest::qWait(300);
        QCOMPARE(caps(), 0);
        toggle();
        QTRY_VERIFY_WITH_TIMEOUT(
            SettingsStore(m_session->settingsPath()).value(AppSettings::isVantrelEnabled), 5000);
        QVERIFY(ctrlK());
        QTRY_COMPARE_WITH_TIMEOUT(caps(), 2, 5000);
        QTRY_COMPARE_WITH_TIMEOUT(caps(), 0, 5000);
    }

    // The customizer on a layer surface of its own: the sample cap dragged from where new rows
    // start (0.5, 0.85) to (0.25, 0.5), a click elsewhere stores that place and closes it; Escape
    // closes the next one. Keys then show at the new place.
    void customizerPlacesTheRow()
    {
        QVERIFY(m_session->command({QStringLiteral("--position-customizer")}));
        QTRY_VERIFY_WITH_TIMEOUT(dimmed(), 5000);
        QVERIFY(pointer(QStringLiteral("move 960 918 wait 100 press wait 50 move 700 700 wait 50 "
                                       "move 480 540 wait 100 release wait 100 move 1500 300 "
                                       "wait 100 click")));
        QTRY_VERIFY_WITH_TIMEOUT(!dimmed(), 5000);
        const QJsonObject record = displayRecords(m_session->settingsPath()).at(0).toObject();
        QCOMPARE(record[u"position"].toString(), QStringLiteral("Custom"));
        QVERIFY(qAbs(record[u"customOffsetX"].toDouble() - 0.25) < 0.01);
        QVERIFY(qAbs(record[u"customOffsetY"].toDouble() - 0.5) < 0.01);

        QVERIFY(m_session->command({QStringLiteral("--position-customizer")}));
        QTRY_VERIFY_WITH_TIMEOUT(dimmed(), 5000);
        QVERIFY(m_session->sway().run(QStringLiteral("wtype"),
                                      {QStringLiteral("-k"), QStringLiteral("Escape")}));
        QTRY_VERIFY_WITH_TIMEOUT(!dimmed(), 5000);

        QVERIFY(m_session->press({{KEY_LEFTCTRL, 1}, {KEY_K, 1}, {KEY_K, 0}, {KEY_LEFTCTRL, 0}}));
        QTRY_COMPARE_WITH_TIMEOUT(m_session->capCount(placedBand), 2, 5000);
        QTRY_COMPARE_WITH_TIMEOUT(m_session->capCount(placedBand), 0, 5000);
    }

    // A window under the row gets a click on a shown cap.
    void clicksPassThroughTheRow()
    {
        QProcess target;
        QProcessEnvironment env = m_session->sway().environment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("wayland"));
        target.setProcessEnvironment(env);
        target.start(QStringLiteral(VANTREL_CLICK_TARGET), {});
        QByteArray said;
        const auto targetSays = [&](const char *text) {
            said += target.readAllStandardOutput();
            return said.contains(text);
        };
        QTRY_VERIFY_WITH_TIMEOUT(targetSays("shown"), 10000);
        QVERIFY(m_session->press({{KEY_LEFTCTRL, 1}, {KEY_K, 1}}));
        QTRY_COMPARE_WITH_TIMEOUT(m_session->capCount(placedBand), 2, 5000);
        QVERIFY(pointer(QStringLiteral("move 480 540 wait 50 click")));
        QTRY_VERIFY_WITH_TIMEOUT(targetSays("press"), 5000);
        QVERIFY(m_session->press({{KEY_K, 0}, {KEY_LEFTCTRL, 0}}));
        target.terminate();
        target.waitForFinished(5000);
    }

    // The tray is a status notifier item whose menu opens the settings window; with a tray
    // host, no window opened by itself.
    void trayMenuOpensTheSettings()
    {
        QTRY_COMPARE_WITH_TIMEOUT(m_trayHost.items().size(), 1, 5000);
        // Without a tray host the window would have opened by now.
        QTest::qWait(std::max<qint64>(0, trayHostWaitMs - m_sinceStart.elapsed()));
        QVERIFY(!m_session->sway().hasWindow(QStringLiteral("Vantrel Settings")));
        const QDBusConnection bus = QDBusConnection::connectToBus(m_session->sessionBus(), "test");
        QDBusInterface item(m_trayHost.items().first(), QStringLiteral("/StatusNotifierItem"),
                            QStringLiteral("org.kde.StatusNotifierItem"), bus);
        const QString menuPath = item.property("Menu").value<QDBusObjectPath>().path();
        QDBusInterface menu(item.service(), menuPath, QStringLiteral("com.canonical.dbusmenu"),
                            bus);
        const QDBusMessage layout = menu.call(QStringLiteral("GetLayout"), 0, -1, QStringList());
        QCOMPARE(layout.type(), QDBusMessage::ReplyMessage);
        QMap<QString, int> labels;
        collectLabels(layout.arguments().at(1).value<QDBusArgument>(), &labels);
        const auto settings =
            std::find_if(labels.keyBegin(), labels.keyEnd(),
                         [](const QString &label) { return label.startsWith(u"Settings"); });
        QVERIFY2(settings != labels.keyEnd(), qPrintable(labels.keys().join(u", ")));
        menu.call(QStringLiteral("Event"), labels.value(*settings), QStringLiteral("clicked"),
                  QVariant::fromValue(QDBusVariant(QString())), 0u);
        QTRY_VERIFY_WITH_TIMEOUT(m_session->sway().hasWindow(QStringLiteral("Vantrel Settings")),
                                 5000);
    }

    // An output added while Vantrel runs becomes a display that is off until it is enabled; with
    // only that one (at scale 2) enabled, keys show there and on no other output.
    void keysShowOnTheEnabledOutputOnly()
    {
        QVERIFY(m_session->sway().swaymsg({QStringLiteral("create_output")}));
        QVERIFY(m_session->sway().swaymsg(
            {QStringLiteral("output HEADLESS-2 resolution 1920x1080 position 1920 0 scale 2")}));
        QTRY_COMPARE_WITH_TIMEOUT(displayRecords(m_session->settingsPath()).size(), 2, 5000);
        QVERIFY(m_session->stopVantrel());
        QJsonArray records = displayRecords(m_session->settingsPath());
        for (auto entry : records) {
            QJsonObject record = entry.toObject();
            record[u"isEnabled"] = record[u"name"].toString().contains(u"HEADLESS-2");
            entry = record;
        }
        SettingsStore(m_session->settingsPath())
            .setValue(AppSettings::displayConfigurations,
                      QJsonDocument(records).toJson(QJsonDocument::Compact));
        QProcessEnvironment env = m_session->sway().environment();
        env.remove(QStringLiteral("QT_QPA_PLATFORM"));
        QString error;
        QVERIFY2(m_session->startVantrel(env, &error), qPrintable(error));

        const QRect all(0, 0, 1920, 1080); // each output's pixels
        QVERIFY(m_session->press({{KEY_LEFTCTRL, 1}, {KEY_K, 1}, {KEY_K, 0}, {KEY_LEFTCTRL, 0}}));
        QTRY_COMPARE_WITH_TIMEOUT(m_session->capCount(all, QStringLiteral("HEADLESS-2")), 2, 5000);
        QCOMPARE(m_session->capCount(all, QStringLiteral("HEADLESS-1")), 0);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_WaylandLayerShell)
#include "tst_e2e_WaylandLayerShell.moc"
