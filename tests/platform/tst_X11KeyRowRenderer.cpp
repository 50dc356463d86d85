#include "VirtualDisplay.h"

#include "overlay/KeyRowRenderer.h"
#include "overlay/KeyView.h"
#include "platform/Platform.h"
#include "settings/SettingsStore.h"

#include <QGuiApplication>
#include <QPainter>
#include <QRegion>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <cstdlib>

namespace {
constexpr QSize windowSize(320, 120);
const QPointF capCenter(150.5, 60.0);

// The window's pixels as the server holds them.
QImage windowImage(xcb_connection_t *c, xcb_window_t window)
{
    xcb_get_image_reply_t *reply = xcb_get_image_reply(
        c,
        xcb_get_image(c, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, uint16_t(windowSize.width()),
                      uint16_t(windowSize.height()), ~0u),
        nullptr);
    if (!reply)
        return {};
    const QImage image = QImage(xcb_get_image_data(reply), windowSize.width(), windowSize.height(),
                                QImage::Format_ARGB32_Premultiplied)
                             .copy();
    std::free(reply);
    return image;
}

QRegion windowShape(xcb_connection_t *c, xcb_window_t window)
{
    xcb_shape_get_rectangles_reply_t *reply = xcb_shape_get_rectangles_reply(
        c, xcb_shape_get_rectangles(c, window, XCB_SHAPE_SK_BOUNDING), nullptr);
    QRegion region;
    if (!reply)
        return region;
    const xcb_rectangle_t *rects = xcb_shape_get_rectangles_rectangles(reply);
    for (int i = 0; i < xcb_shape_get_rectangles_rectangles_length(reply); ++i)
        region += QRect(rects[i].x, rects[i].y, rects[i].width, rects[i].height);
    std::free(reply);
    return region;
}

// Pixels at least half covered.
QRegion coveredRegion(const QImage &image)
{
    QRegion region;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) >= 128)
                region += QRect(x, y, 1, 1);
    return region;
}
} // namespace

// The X server draws a row exactly as the widgets' own painting does.
class tst_X11KeyRowRenderer final : public QObject {
    Q_OBJECT

private slots:
    // Frames the server shows later end where the painter would, and a newer scene leaves
    // nothing of the frames it replaced.
    void drawsAsThePainterDoes_data()
    {
        QTest::addColumn<bool>("opaque");
        QTest::addColumn<QPointF>("movingFrom");
        QTest::addColumn<QPointF>("replacedBy");

        const QPointF none(-1, -1);
        const QPointF left(60.0, 60.0);
        for (const bool opaque : {false, true}) {
            const char *blending = opaque ? "without a compositor" : "with a compositor";
            QTest::addRow("%s: a still cap", blending) << opaque << none << none;
            QTest::addRow("%s: a cap that moves", blending) << opaque << left << none;
            QTest::addRow("%s: a moving cap replaced by a still one", blending)
                << opaque << capCenter << left;
        }
    }
    void drawsAsThePainterDoes()
    {
        QFETCH(bool, opaque);
        QFETCH(QPointF, movingFrom);
        QFETCH(QPointF, replacedBy);
        QTemporaryDir dir;
        SettingsStore settings(dir.filePath(QStringLiteral("s.conf")));
        auto view =
            std::make_shared<const KeyView>(KeyPress{QUuid::createUuid(), QStringLiteral("W"), 25,
                                                     KeyCategory(KeyCategory::Kind::letter), 0.0},
                                            2.0, settings);

        QWindow window;
        window.setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
        QSurfaceFormat format;
        format.setAlphaBufferSize(8);
        window.setFormat(format);
        window.setGeometry(QRect(QPoint(100, 100), windowSize));
        std::unique_ptr<KeyRowRenderer> renderer = Platform::createKeyRowRenderer(window.winId());
        QVERIFY(renderer);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window) || window.isVisible());

        const auto sceneAt = [&](const QPointF &from, const QPointF &to) {
            auto scene = std::make_shared<KeyRowScene>();
            KeyMotion motion;
            motion.placed = true;
            motion.from = from.x() < 0 ? to : from;
            motion.to = to;
            motion.moveTiming = AnimationTiming::easeInOut(0.3);
            scene->caps.push_back({view, motion});
            scene->clock.start();
            scene->opaque = opaque;
            scene->rowOpacity = 0.9;
            scene->windowSize = windowSize;
            return scene;
        };
        // A moving cap is replaced before it arrives; the new scene is drawn at once, and the
        // frames queued for the old one must not draw after it.
        const bool replaced = replacedBy.x() >= 0;
        renderer->setScene(sceneAt(movingFrom, replaced ? QPointF(260.0, 60.0) : capCenter));
        QPointF end = capCenter;
        if (replaced) {
            QTest::qWait(50);
            renderer->setScene(sceneAt(QPointF(-1, -1), replacedBy));
            end = replacedBy;
        }

        QImage expected(windowSize, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::transparent);
        {
            QPainter painter(&expected);
            view->paint(painter, end, 0.0, opaque ? 1.0 : 0.9);
        }
        xcb_connection_t *c = xcb_connect(nullptr, nullptr);
        const auto id = static_cast<xcb_window_t>(window.winId());
        if (opaque) {
            QTRY_COMPARE(windowShape(c, id), coveredRegion(expected));
            // Inside the shape, each pixel shows its colour whole.
            const QImage shown = windowImage(c, id);
            const QPoint middle = end.toPoint();
            QCOMPARE(shown.pixel(middle) | 0xff000000u,
                     qUnpremultiply(expected.pixel(middle)) | 0xff000000u);
        } else {
            QTRY_COMPARE(windowImage(c, id), expected);
            QVERIFY(windowShape(c, id).contains(QRect(QPoint(0, 0), windowSize)));
        }
        // Still so once every queued frame has had its time.
        QTest::qWait(400);
        if (opaque)
            QCOMPARE(windowShape(c, id), coveredRegion(expected));
        else
            QCOMPARE(windowImage(c, id), expected);
        xcb_disconnect(c);
    }
};

int main(int argc, char *argv[])
{
    return VirtualDisplay::execTests<tst_X11KeyRowRenderer>(argc, argv);
}

#include "tst_X11KeyRowRenderer.moc"
