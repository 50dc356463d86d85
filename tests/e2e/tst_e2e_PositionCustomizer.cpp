// Whole-program test of the position customizer: the real vantrel on a private two-monitor X
// server, opened from the command line, the sample cap dragged with xdotool.
#include "X11Session.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <xcb/xcb.h>

#include <memory>

namespace {

const QRgb desktopColor = X11Session::desktopColor;
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

    std::unique_ptr<X11Session> m_session;
    xcb_connection_t *m_desktop = nullptr;

    // A plain window over both monitors stands for the desktop: unlike the root window it
    // shows the same colour with and without a compositing manager.
    void showDesktop()
    {
        m_desktop = xcb_connect(m_session->display().displayName().toLatin1().constData(), nullptr);
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
        // Vantrel is reached over a session bus of the test's own.
        m_session = std::make_unique<X11Session>();
        QString error;
        QVERIFY2(m_session->start({.sessionBus = true}, &error), qPrintable(error));
    }

    void cleanup()
    {
        m_session->stopVantrel();
        xcb_disconnect(m_desktop);
        m_desktop = nullptr;
        m_session.reset();
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
            QVERIFY(m_session->display().startCompositor());
        showDesktop();
        QVERIFY(m_session->startVantrel());

        // Opens on the monitor under the pointer.
        QVERIFY(m_session->xdotool(QStringLiteral("mousemove 1500 500")));
        QCOMPARE(m_session->runVantrel({QStringLiteral("--position-customizer")}).first, 0);
        QTest::qWait(800);
        const QString suffix =
            compositor ? QStringLiteral("-composited") : QStringLiteral("-plain");
        const QImage open = m_session->display().grab(u"customizer" + suffix);
        // The desktop shows through, dimmed; the other monitor is untouched.
        QVERIFY2(near(open.pixel(1500, 500), dimmedColor, 4),
                 qPrintable(QColor(open.pixel(1500, 500)).name()));
        QCOMPARE(open.pixel(2500, 500), desktopColor);
        // The sample starts where a display never customised has it.
        const QPoint cap = changedCentre(open, QRect(760, 760, 400, 300), dimmedColor);
        QVERIFY2((cap - QPoint(960, 918)).manhattanLength() <= 6,
                 qPrintable(QString::number(cap.y())));

        // Drag it up to the left, let go, then click anywhere to save.
        QVERIFY(m_session->xdotool(
            QStringLiteral("mousemove %1 %2 mousedown 1").arg(cap.x()).arg(cap.y())));
        for (const char *step : {"mousemove 700 600", "mousemove 400 300", "mousemove 240 150"})
            QVERIFY(m_session->xdotool(QString::fromLatin1(step)));
        QVERIFY(m_session->xdotool(QStringLiteral("mouseup 1")));
        QTest::qWait(200);
        QVERIFY(m_session->xdotool(QStringLiteral("mousemove 1200 600 click 1")));
        QTest::qWait(500);

        const SettingsStore settings(m_session->settingsPath());
        QJsonObject left;
        for (const QJsonValue record :
             QJsonDocument::fromJson(settings.value(AppSettings::displayConfigurations)).array())
            if (record[QStringLiteral("name")] == QStringLiteral("LEFT"))
                left = record.toObject();
        QCOMPARE(left[QStringLiteral("position")].toString(), QStringLiteral("Custom"));
        QVERIFY(qAbs(left[QStringLiteral("customOffsetX")].toDouble() * 1920 - 240) <= 1.0);
        QVERIFY(qAbs(left[QStringLiteral("customOffsetY")].toDouble() * 1080 - 150) <= 1.0);

        // The customizer is gone and keys show centred where the sample was left.
        QVERIFY(m_session->xdotool(QStringLiteral("key ctrl+k")));
        QTest::qWait(600);
        const QImage keys = m_session->display().grab(u"keys" + suffix);
        QCOMPARE(keys.pixel(1500, 500), desktopColor);
        const QPoint row = changedCentre(keys, QRect(0, 0, 960, 540), desktopColor);
        QVERIFY2((row - QPoint(240, 150)).manhattanLength() <= 6,
                 qPrintable(QStringLiteral("%1,%2").arg(row.x()).arg(row.y())));
    }
};

QTEST_GUILESS_MAIN(tst_e2e_PositionCustomizer)
#include "tst_e2e_PositionCustomizer.moc"
