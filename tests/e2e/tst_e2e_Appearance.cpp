// Whole-program test of the Appearance tab: the real vantrel on a private X server with a window
// manager and a compositor, its settings window driven with xdotool, the overlay read back.
#include "X11Session.h"
#include "settings/AppSettings.h"
#include "settings/SettingsStore.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <functional>
#include <memory>

namespace {

using PixelTest = std::function<bool(QRgb)>;

// The neon look's magenta, blended or not.
bool isMagenta(QRgb p)
{
    return qRed(p) > 170 && qGreen(p) < 110 && qBlue(p) > 170;
}

// The accent tint of a selected tile (a light blue), not the grey of the others.
bool isAccentTint(QRgb p)
{
    return qBlue(p) - qRed(p) > 20 && qBlue(p) > 150;
}

int count(const QImage &screen, const QRect &area, const PixelTest &test)
{
    int n = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            n += test(screen.pixel(x, y)) ? 1 : 0;
    return n;
}

// The boxes around groups of matching pixels in `area`, one per band of rows that hold some.
QList<QRect> bands(const QImage &screen, const QRect &area, const PixelTest &test)
{
    QList<QRect> found;
    QRect box;
    for (int y = area.top(); y <= area.bottom() + 1; ++y) {
        QRect row;
        if (y <= area.bottom())
            for (int x = area.left(); x <= area.right(); ++x)
                if (test(screen.pixel(x, y)))
                    row |= QRect(x, y, 1, 1);
        if (!row.isNull()) {
            box |= row;
        } else if (!box.isNull()) {
            found.append(box);
            box = QRect();
        }
    }
    return found;
}

} // namespace

class tst_e2e_Appearance final : public QObject {
    Q_OBJECT

    std::unique_ptr<X11Session> m_session;

    // Where the settings window can be (the overlay's row shows below it).
    static QRect windowArea() { return {0, 0, 3840, 880}; }
    static QRect keyRowArea() { return {0, 920, 1920, 160}; }

    QImage grab(const QString &name) const { return m_session->display().grab(name); }

    SettingsStore settings() const { return SettingsStore(m_session->settingsPath()); }

    // Opens the settings window from the command line and switches to its second tab.
    void openAppearanceTab()
    {
        QVERIFY(m_session->openSettingsWindow());
        QVERIFY(m_session->xdotool(QStringLiteral("key ctrl+Tab")));
        // Let the keys of the tab switch leave the overlay.
        QTest::qWait(2200);
    }

    // The sample keys drawn in the neon look, top to bottom.
    QList<QRect> neonTiles(const QString &name) const
    {
        return bands(grab(name), windowArea(), isMagenta);
    }

    void click(const QPoint &point)
    {
        QVERIFY(m_session->xdotool(
            QStringLiteral("mousemove %1 %2 click 1").arg(point.x()).arg(point.y())));
        QTest::qWait(400);
    }

private slots:
    void init()
    {
        // A window manager, so that the settings window and its sheet take the keyboard; Vantrel
        // is reached over a session bus of the test's own.
        m_session = std::make_unique<X11Session>();
        QString error;
        QVERIFY2(m_session->start({.compositor = true, .windowManager = true, .sessionBus = true},
                                  &error),
                 qPrintable(error));
    }

    void cleanup()
    {
        m_session->stopVantrel();
        m_session.reset();
    }

    void neonTileDrawsKeysInNeon()
    {
        QVERIFY(m_session->startVantrel());
        openAppearanceTab();

        // The first look draws no magenta.
        const QImage modern = m_session->pressAndGrab(u"ctrl+k"_qs, 500, u"modern-keys"_qs);
        QCOMPARE(count(modern, keyRowArea(), isMagenta), 0);
        QTest::qWait(1800);

        const QList<QRect> tiles = neonTiles(QStringLiteral("tab"));
        QCOMPARE(tiles.size(), 1);
        click(tiles.first().center());
        QCOMPARE(settings().value(AppSettings::keyStyle), AppSettings::KeyStyle::neon);

        const QImage keys = m_session->pressAndGrab(u"ctrl+k"_qs, 600, u"neon-keys"_qs);
        // Magenta labels and borders on near-black caps.
        QVERIFY(count(keys, keyRowArea(), isMagenta) > 100);
        QVERIFY(count(keys, keyRowArea(), [](QRgb p) {
                    return qRed(p) < 45 && qGreen(p) < 45 && qBlue(p) < 45;
                }) > 500);
    }

    void savedPresetSurvivesRestart()
    {
        QVERIFY(m_session->startVantrel());
        openAppearanceTab();
        const QList<QRect> tiles = neonTiles(QStringLiteral("tab"));
        QCOMPARE(tiles.size(), 1);
        click(tiles.first().center());

        // From the neon tile the keyboard moves on to "New Preset".
        QVERIFY(m_session->xdotool(QStringLiteral("key Tab space")));
        QTest::qWait(600);
        QVERIFY(m_session->xdotool(QStringLiteral("type Mine")));
        QVERIFY(m_session->xdotool(QStringLiteral("key Return")));
        QTest::qWait(600);

        const QJsonArray presets =
            QJsonDocument::fromJson(settings().value(AppSettings::customKeyStylePresets)).array();
        QCOMPARE(presets.size(), 1);
        QCOMPARE(presets[0][QStringLiteral("name")].toString(), QStringLiteral("Mine"));
        QCOMPARE(settings().value(AppSettings::selectedCustomPresetID),
                 presets[0][QStringLiteral("id")].toString().toUpper());

        m_session->stopVantrel();
        QVERIFY(m_session->startVantrel());
        openAppearanceTab();
        const QImage screen = grab(QStringLiteral("after-restart"));
        const QList<QRect> after = bands(screen, windowArea(), isMagenta);
        QCOMPARE(after.size(), 2);
        // The preset's tile, under the built-in one, is the one marked.
        const auto around = [](const QRect &cap) { return cap.adjusted(-40, -10, 40, 30); };
        QVERIFY(count(screen, around(after[1]), isAccentTint) > 200);
        QCOMPARE(count(screen, around(after[0]), isAccentTint), 0);
    }
};

QTEST_GUILESS_MAIN(tst_e2e_Appearance)
#include "tst_e2e_Appearance.moc"
