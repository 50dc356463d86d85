#include "HeadlessSway.h"

#include "overlay/KeyRowScene.h"
#include "overlay/KeyView.h"
#include "platform/wayland/WaylandKeyRowRenderer.h"
#include "settings/SettingsStore.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdlib>

namespace {
const QRect band(100, 200, 320, 120); // on the output, in logical pixels
const QPointF capCenter(150.5, 60.0); // in the band
// The compositor blends in 8 bits with its own rounding.
constexpr int tolerance = 1;

// `over` premultiplied, blended over the opaque `under`, as the compositor shows it.
QImage composed(const QImage &over, const QImage &under)
{
    QImage result = under.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x) {
            const QRgb top = over.pixel(x, y);
            const QRgb bottom = result.pixel(x, y);
            const int keep = 255 - qAlpha(top);
            const auto channel = [&](int a, int b) { return a + (b * keep + 127) / 255; };
            result.setPixel(x, y,
                            qRgb(channel(qRed(top), qRed(bottom)),
                                 channel(qGreen(top), qGreen(bottom)),
                                 channel(qBlue(top), qBlue(bottom))));
        }
    }
    return result;
}

int largestDifference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(p) - qRed(q)),
                                std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return largest;
}
} // namespace

// A layer surface on a real compositor (headless sway without XWayland) shows a row exactly as
// the widgets' own painting does, and an idle row asks the compositor for nothing.
class tst_WaylandKeyRowRenderer final : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QString error;
        QVERIFY2(m_sway.start(&error), qPrintable(error));
        QVERIFY(WaylandKeyRowRenderer::isOffered(m_sway.waylandDisplay().toLocal8Bit()));
    }

    void drawsAsThePainterDoes_data()
    {
        QTest::addColumn<QPointF>("movingFrom");
        QTest::addColumn<int>("scale");
        QTest::addColumn<bool>("rescaled"); // the scale changes while the cap shows
        QTest::addRow("a still cap") << QPointF(-1, -1) << 1 << false;
        QTest::addRow("a cap that moves") << QPointF(40.0, 60.0) << 1 << false;
        QTest::addRow("a still cap on an output of scale 2") << QPointF(-1, -1) << 2 << false;
        QTest::addRow("a still cap on an output turned to scale 2") << QPointF(-1, -1) << 2 << true;
    }
    void drawsAsThePainterDoes()
    {
        QFETCH(QPointF, movingFrom);
        QFETCH(int, scale);
        QFETCH(bool, rescaled);
        const auto setScale = [this](int factor) {
            return m_sway.swaymsg({QStringLiteral("output"), QStringLiteral("HEADLESS-1"),
                                   QStringLiteral("scale"), QString::number(factor)});
        };
        QVERIFY(setScale(rescaled ? 1 : scale));
        // The screenshot has the output's pixels.
        const QRect pixels(band.topLeft() * scale, band.size() * scale);
        // The output keeps its pixels when its scale changes: the same ones lie below.
        const QImage background = m_sway.grab().copy(pixels);
        QVERIFY(!background.isNull());
        QTemporaryDir dir;
        SettingsStore settings(dir.filePath(QStringLiteral("s.conf")));
        auto view =
            std::make_shared<const KeyView>(KeyPress{QUuid::createUuid(), QStringLiteral("W"), 25,
                                                     KeyCategory(KeyCategory::Kind::letter), 0.0},
                                            2.0, settings);
        std::unique_ptr<WaylandKeyRowRenderer> renderer = WaylandKeyRowRenderer::create(
            QStringLiteral("HEADLESS-1"), band, m_sway.waylandDisplay().toLocal8Bit());
        QVERIFY(renderer);
        QTRY_VERIFY(renderer->isShowing());

        auto scene = std::make_shared<KeyRowScene>();
        KeyMotion motion;
        motion.placed = true;
        motion.from = movingFrom.x() < 0 ? capCenter : movingFrom;
        motion.to = capCenter;
        motion.moveTiming = AnimationTiming::easeInOut(0.3);
        scene->caps.push_back({view, motion});
        scene->clock.start();
        scene->rowOpacity = 0.9;
        scene->windowSize = band.size();
        renderer->setScene(scene);
        if (rescaled)
            QVERIFY(setScale(scale));

        QImage painted(pixels.size(), QImage::Format_ARGB32_Premultiplied);
        painted.setDevicePixelRatio(scale);
        painted.fill(Qt::transparent);
        {
            QPainter painter(&painted);
            view->paint(painter, capCenter, 0.0, 0.9);
        }
        const QImage expected = composed(painted, background);
        QTRY_VERIFY_WITH_TIMEOUT(
            largestDifference(m_sway.grab().copy(pixels), expected) <= tolerance, 5000);

        // Once the cap rests, no frame is asked for and nothing is committed.
        QTest::qWait(100);
        const quint64 requested = renderer->frameCallbacksRequested();
        const quint64 committed = renderer->framesCommitted();
        QCOMPARE(requested > 0, movingFrom.x() >= 0);
        QTest::qWait(300);
        QCOMPARE(renderer->frameCallbacksRequested(), requested);
        QCOMPARE(renderer->framesCommitted(), committed);
        QCOMPARE(largestDifference(m_sway.grab().copy(pixels), expected) <= tolerance, true);
    }

private:
    HeadlessSway m_sway{HeadlessSway::XWayland::disabled};
};

QTEST_MAIN(tst_WaylandKeyRowRenderer)
#include "tst_WaylandKeyRowRenderer.moc"
