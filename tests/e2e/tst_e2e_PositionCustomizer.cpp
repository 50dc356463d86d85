// Whole-program test of the position customizer: the real vantrel on a private two-monitor X
// server, opened from the command line, the sample cap dragged with xdotool.
#include "VirtualDisplay.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <xcb/xcb.h>

#include <memory>

namespace {

const QRgb desktopColor = qRgb(0x20, 0x40, 0x60);
const QRgb dimmedColor = qRgb(0x20 * 6 / 10, 0x40 * 6 / 10, 0x60 * 6 / 10); // black at 0.4 over it

bool near(QRgb a, QRgb b, int tolerance)
{
    return qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b)) <=
           tolerance;
}

// The centre of what differs clearly from the background in `area`.
QPoint changedCentre(const QImage &screen, const QRect &area, QRgb background)
{
    QRect box;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (!near(screen.pixel(x, y), background, 60))
                box |= QRect(x, y, 1, 1);
    return box.center();
}

} // namespace

class tst_e2e_PositionCustomizer final : public QObject {
    Q_OBJECT

    std::unique_ptr<VirtualDisplay> m_display;
    QTemporaryDir m_config;
    std::unique_ptr<QProcess> m_vantrel;
    xcb_connection_t *m_desktop = nullptr;
    QProcessEnvironment m_env;

    bool xdotool(const QString &arguments) const
    {
        return m_display->xdotool(arguments.split(u' '));
    }

    QImage grab(const QString &name) const { return m_display->grab(name); }

    // A plain window over both monitors stands for the desktop: unlike the root window it
    // shows the same colour with and without a compositing manager.
    void showDesktop()
    {
        m_desktop = xcb_connect(m_display->displayName().toLatin1().constData(), nullptr);
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_desktop)).data;
        const xcb_window_t window = xcb_generate_id(m_desktop);
        const uint32_t background = desktopColor & 0xffffff;
        xcb_create_window(m_desktop, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 3840, 1080,
                          0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_BACK_PIXEL,
                          &background);
        xcb_map_window(m_desktop, window);
        xcb_flush(m_desktop);
        QTest::qWait(300);
    }

private slots:
    void init()
    {
        m_display = std::make_unique<VirtualDisplay>();
        QString error;
        QVERIFY2(m_display->start(&error), qPrintable(error));
        // Vantrel is reached over a session bus of the test's own.
        const QString bus = m_display->startSessionBus();
        QVERIFY(!bus.isEmpty());
        m_env = m_display->environment();
        m_env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_config.path());
        m_env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), bus);
    }

    void cleanup()
    {
        if (m_vantrel) {
            m_vantrel->terminate();
            QVERIFY(m_vantrel->waitForFinished(5000));
            const QByteArray output = m_vantrel->readAll() + m_vantrel->readAllStandardError();
            QVERIFY2(!output.contains("⌃") && !output.contains("K\n"), output.constData());
            m_vantrel.reset();
        }
        xcb_disconnect(m_desktop);
        m_display.reset();
        QFile::remove(m_config.filePath(QStringLiteral("Vantrel/Vantrel.conf")));
    }

    void dragToUpperLeft_data()
    {
        QTest::addColumn<bool>("compositor");
        QTest::newRow("without compositor") << false;
        QTest::newRow("with compositor") << true;
    }
    void dragToUpperLeft()
    {
        QFETCH(bool, compositor);
        if (compositor)
            QVERIFY(m_display->startCompositor());
        showDesktop();
        m_vantrel = std::make_unique<QProcess>();
        m_vantrel->setProcessEnvironment(m_env);
        m_vantrel->start(QStringLiteral(VANTREL_BINARY), {});
        QByteArray said;
        QTRY_VERIFY_WITH_TIMEOUT((said += m_vantrel->readAll()).contains("showing pressed keys"),
                                 10000);

        // Opens on the monitor under the pointer.
        QVERIFY(xdotool(QStringLiteral("mousemove 1500 500")));
        QProcess call;
        call.setProcessEnvironment(m_env);
        call.start(QStringLiteral(VANTREL_BINARY), {QStringLiteral("--position-customizer")});
        QVERIFY(call.waitForFinished(10000) && call.exitCode() == 0);
        QTest::qWait(800);
        const QString suffix =
            compositor ? QStringLiteral("-composited") : QStringLiteral("-plain");
        const QImage open = grab(u"customizer" + suffix);
        // The desktop shows through, dimmed; the other monitor is untouched.
        QVERIFY2(near(open.pixel(1500, 500), dimmedColor, 4),
                 qPrintable(QColor(open.pixel(1500, 500)).name()));
        QCOMPARE(open.pixel(2500, 500), desktopColor);
        // The sample starts where a display never customised has it.
        const QPoint cap = changedCentre(open, QRect(760, 760, 400, 300), dimmedColor);
        QVERIFY2((cap - QPoint(960, 918)).manhattanLength() <= 6,
                 qPrintable(QString::number(cap.y())));

        // Drag it up to the left, let go, then click anywhere to save.
        QVERIFY(xdotool(QStringLiteral("mousemove %1 %2 mousedown 1").arg(cap.x()).arg(cap.y())));
        for (const char *step : {"mousemove 700 600", "mousemove 400 300", "mousemove 240 150"})
            QVERIFY(xdotool(QString::fromLatin1(step)));
        QVERIFY(xdotool(QStringLiteral("mouseup 1")));
        QTest::qWait(200);
        QVERIFY(xdotool(QStringLiteral("mousemove 1200 600 click 1")));
        QTest::qWait(500);

        const SettingsStore settings(m_config.filePath(QStringLiteral("Vantrel/Vantrel.conf")));
        QJsonObject left;
        for (const QJsonValue record :
             QJsonDocument::fromJson(settings.value(AppSettings::displayConfigurations)).array())
            if (record[QStringLiteral("name")] == QStringLiteral("LEFT"))
                left = record.toObject();
        QCOMPARE(left[QStringLiteral("position")].toString(), QStringLiteral("Custom"));
        QVERIFY(qAbs(left[QStringLiteral("customOffsetX")].toDouble() * 1920 - 240) <= 1.0);
        QVERIFY(qAbs(left[QStringLiteral("customOffsetY")].toDouble() * 1080 - 150) <= 1.0);

        // The customizer is gone and keys show centred where the sample was left.
        QVERIFY(xdotool(QStringLiteral("key ctrl+k")));
        QTest::qWait(600);
        const QImage keys = grab(u"keys" + suffix);
        QCOMPARE(keys.pixel(1500, 500), desktopColor);
        const QPoint row = changedCentre(keys, QRect(0, 0, 960, 540), desktopColor);
        QVERIFY2((row - QPoint(240, 150)).manhattanLength() <= 6,
                 qPrintable(QStringLiteral("%1,%2").arg(row.x()).arg(row.y())));
    }
};

QTEST_GUILESS_MAIN(tst_e2e_PositionCustomizer)
#include "tst_e2e_PositionCustomizer.moc"
