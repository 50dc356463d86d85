// The whole program in a Wayland session without XWayland: keys written as input records into a
// device folder of a pipe, caps drawn on a layer surface and read back from sway's output.
#include "WaylandSession.h"
#include "settings/SettingsStore.h"

#include <QTest>

#include <memory>

namespace {

// Where a bottom-centre row of caps is drawn on the 1920x1080 output.
const QRect bottomBand(0, 1080 - 300, 1920, 300);

} // namespace

class tst_e2e_WaylandLayerShell final : public QObject {
    Q_OBJECT

    std::unique_ptr<WaylandSession> m_session;

    int caps() const { return m_session->capCount(bottomBand); }

private slots:
    void initTestCase()
    {
        m_session = std::make_unique<WaylandSession>(HeadlessSway::XWayland::disabled);
        QString error;
        QVERIFY2(m_session->sway().start(&error), qPrintable(error));
        // No tray host: the settings window opens after a while; it goes out of sight so that
        // only the overlay shows on the output.
        QVERIFY(m_session->sway().swaymsg(
            {QStringLiteral("for_window [title=\".*\"] move scratchpad")}));
        SettingsStore(m_session->settingsPath())
            .setRawValue(QStringLiteral("keyDisplayDuration"), 1.0);
        QProcessEnvironment env = m_session->sway().environment(); // no DISPLAY
        env.remove(QStringLiteral("QT_QPA_PLATFORM"));
        QVERIFY2(m_session->startVantrel(env, &error), qPrintable(error));
    }
    void cleanupTestCase() { m_session.reset(); }

    // Ctrl+K: two caps on the overlay layer, gone again after the display duration.
    void keysShowOnALayerSurface()
    {
        QVERIFY(m_session->press({{KEY_LEFTCTRL, 1}, {KEY_K, 1}, {KEY_K, 0}, {KEY_LEFTCTRL, 0}}));
        QTRY_COMPARE_WITH_TIMEOUT(caps(), 2, 5000);
        QTRY_COMPARE_WITH_TIMEOUT(caps(), 0, 5000);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_WaylandLayerShell)
#include "tst_e2e_WaylandLayerShell.moc"
