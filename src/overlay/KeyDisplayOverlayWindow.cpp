#include "overlay/KeyDisplayOverlayWindow.h"

#include "capture/KeyManager.h"
#include "overlay/CompositorWatcher.h"
#include "overlay/KeyDisplayView.h"
#include "overlay/KeyRowRenderer.h"
#include "overlay/KeyView.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"

#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include <algorithm>

namespace {
// A shape must never be empty: Qt treats an empty mask as "no mask" (the whole window).
// A single pixel outside the window hides everything.
const QRegion hiddenShape(-1, -1, 1, 1);
} // namespace

KeyDisplayOverlayWindow::KeyDisplayOverlayWindow(quint32 displayID, KeyManager &keyManager,
                                                 DisplaySettingsStore &displayStore,
                                                 SettingsStore &settings,
                                                 CompositorWatcher *compositor,
                                                 const RendererFactory &makeRenderer)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus | Qt::Tool |
                           Qt::X11BypassWindowManagerHint),
      m_displayID(displayID), m_settings(settings),
      m_view(std::make_unique<KeyDisplayView>(settings))
{
    setWindowTitle(QStringLiteral("Vantrel"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_X11DoNotAcceptFocus);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setAutoFillBackground(false);

    m_view->setConfiguration(displayStore.configuration(displayID));
    m_view->setKeys(keyManager.currentKeys());
    connect(&keyManager, &KeyManager::currentKeysChanged, this, [this, &keyManager] {
        // Windows opened since (a full-screen player, say) may have covered the overlay: it
        // comes back on top whenever keys start to show.
        if (!m_view->isShowingKeys() && isVisible())
            raise();
        m_view->setKeys(keyManager.currentKeys());
    });
    connect(&displayStore, &DisplaySettingsStore::displaySettingsChanged, this,
            [this, &displayStore] {
                m_view->setConfiguration(displayStore.configuration(m_displayID));
            });
    connect(m_view.get(), &KeyDisplayView::updateRequested, this,
            &KeyDisplayOverlayWindow::onUpdateRequested);
    connect(m_view.get(), &KeyDisplayView::drawingAreaChanged, this,
            &KeyDisplayOverlayWindow::fitToDrawingArea);

    if (compositor)
        connect(compositor, &CompositorWatcher::compositingChanged, this,
                &KeyDisplayOverlayWindow::setCompositing);
    m_compositing = compositor && compositor->isCompositing();
    m_view->setOpaque(!m_compositing);
    if (makeRenderer)
        m_renderer = makeRenderer(winId());
    // Queued only now: making the native window delivers what was posted to this one before,
    // and the warm-up must find the renderer.
    QTimer::singleShot(0, this, &KeyDisplayOverlayWindow::warmUp);
    if (m_renderer) {
        m_view->setFramesDrawnByRenderer(true);
        connect(m_view.get(), &KeyDisplayView::sceneChanged, this,
                &KeyDisplayOverlayWindow::publishScene);
        return;
    }
    if (!m_compositing)
        setMask(hiddenShape);
}

KeyDisplayOverlayWindow::~KeyDisplayOverlayWindow() = default;

void KeyDisplayOverlayWindow::setFrame(const QRect &frame)
{
    m_frame = frame;
    if (const QScreen *display = QGuiApplication::screenAt(frame.center()))
        m_view->setRefreshRate(display->refreshRate());
    m_view->setSize(frame.size());
    fitToDrawingArea();
    if (m_renderer)
        publishScene();
    else
        update();
}

void KeyDisplayOverlayWindow::publishScene()
{
    std::shared_ptr<KeyRowScene> scene = m_view->scene();
    scene->origin = m_area.topLeft();
    scene->windowSize = m_area.size();
    scene->devicePixelRatio = devicePixelRatioF();
    m_renderer->setScene(std::move(scene));
}

void KeyDisplayOverlayWindow::fitToDrawingArea()
{
    QRect area = m_view->drawingArea();
    if (area.isEmpty())
        area = QRect(0, 0, std::max(1, m_frame.width()), 1);
    if (area == m_area && geometry() == area.translated(m_frame.topLeft()))
        return;
    m_area = area;
    setGeometry(area.translated(m_frame.topLeft()));
    if (m_renderer)
        return; // the scene that follows the change brings the new area
    if (!m_compositing)
        renderShapedFrame();
    update();
}

void KeyDisplayOverlayWindow::warmUp()
{
    // A one-character cap and a function key's wider one: the shadows and glows of the caps
    // shown most often are then cached before the first key.
    const double opacity = m_compositing ? m_settings.value(AppSettings::keyOpacity) : 1.0;
    std::vector<std::shared_ptr<const KeyView>> samples;
    for (const KeyPress &sample :
         {KeyPress{QUuid(), QStringLiteral("W"), 0, KeyCategory(KeyCategory::Kind::letter), 0.0},
          KeyPress{QUuid(), QStringLiteral("F5"), 96, KeyCategory(KeyCategory::Kind::function),
                   0.0}})
        samples.push_back(std::make_shared<const KeyView>(
            sample, m_settings.value(AppSettings::keySize), m_settings));
    if (m_renderer) {
        m_renderer->warmUp(samples, opacity, !m_compositing, devicePixelRatioF());
        return;
    }
    QImage scratch(1, 1, QImage::Format_ARGB32_Premultiplied);
    scratch.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&scratch);
    for (const auto &view : samples)
        view->paint(painter, QPointF(0.0, 0.0), 0.0, opacity);
}

void KeyDisplayOverlayWindow::orderFront()
{
    const bool wasVisible = isVisible();
    show();
    raise();
    // The window's image and its shared memory with the X server are made on its first paint:
    // paint the empty window now rather than on the first key.
    if (!wasVisible && !m_renderer)
        repaint();
}

void KeyDisplayOverlayWindow::close()
{
    QWidget::close();
}

void KeyDisplayOverlayWindow::setCompositing(bool compositing)
{
    if (compositing == m_compositing)
        return;
    m_compositing = compositing;
    m_view->setOpaque(!compositing);
    if (m_renderer)
        return;
    m_shapedFrame = QImage();
    m_shapedRect = QRect();
    m_shape = QRegion();
    if (compositing)
        clearMask();
    else
        renderShapedFrame();
    update();
}

void KeyDisplayOverlayWindow::onUpdateRequested(const QRegion &region)
{
    // Painted at once rather than on a later pass of the event loop: a key shows as soon as
    // it is pressed.
    // One rectangle: under a clip of several, Qt blends every image the slow, generic way.
    if (m_renderer)
        return;
    if (m_compositing) {
        repaint(region.boundingRect().translated(-m_area.topLeft()));
        return;
    }
    const QRegion before = m_shape;
    renderShapedFrame();
    // The old and new caps' areas both change.
    repaint(region.boundingRect()
                .translated(-m_area.topLeft())
                .united(before.boundingRect())
                .united(m_shape.boundingRect()));
}

void KeyDisplayOverlayWindow::renderShapedFrame()
{
    m_shapedRect =
        m_view->contentRegion().boundingRect().translated(-m_area.topLeft()).intersected(rect());
    if (m_shapedRect.isEmpty()) {
        m_shapedFrame = QImage();
        m_shape = QRegion();
        hideShape();
        return;
    }
    const qreal ratio = devicePixelRatioF();
    QImage frame(m_shapedRect.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    frame.setDevicePixelRatio(ratio);
    frame.fill(Qt::transparent);
    {
        QPainter painter(&frame);
        painter.translate(-m_shapedRect.topLeft() - m_area.topLeft());
        m_view->paint(painter);
    }
    // Keep what is mostly covered, drawn opaque in its own colour; drop soft edges, shadows and
    // glows, which would show as dark fringes without blending. The shape is built from the
    // kept runs of each pixel row, rows with the same runs merged into one band.
    QList<QRect> rects;
    QList<QRect> band; // runs of the current band, at its first row
    QList<QRect> runs; // runs of the current row
    const auto flush = [&](int bandEnd) {
        for (QRect r : band) {
            r.setBottom(bandEnd);
            rects.append(r);
        }
        band.clear();
    };
    const int width = frame.width();
    const int height = frame.height();
    for (int y = 0; y < height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(frame.scanLine(y));
        runs.clear();
        int runStart = -1;
        for (int x = 0; x < width; ++x) {
            const QRgb pixel = line[x];
            const int alpha = qAlpha(pixel);
            if (alpha < 128) {
                line[x] = 0;
                if (runStart >= 0) {
                    runs.append(QRect(runStart, y, x - runStart, 1));
                    runStart = -1;
                }
                continue;
            }
            if (alpha != 255)
                line[x] = qUnpremultiply(pixel) | 0xff000000u;
            if (runStart < 0)
                runStart = x;
        }
        if (runStart >= 0)
            runs.append(QRect(runStart, y, width - runStart, 1));
        const bool sameRuns = runs.size() == band.size() &&
                              std::equal(runs.cbegin(), runs.cend(), band.cbegin(),
                                         [](const QRect &a, const QRect &b) {
                                             return a.left() == b.left() && a.right() == b.right();
                                         });
        if (!sameRuns) {
            flush(y - 1);
            band = runs;
        }
    }
    flush(height - 1);
    QRegion shape;
    shape.setRects(rects.constData(), int(rects.size()));
    if (ratio != 1.0) {
        // The runs are in device pixels; the shape is in window coordinates.
        QRegion scaled;
        for (const QRect &r : shape)
            scaled +=
                QRectF(QPointF(r.topLeft()) / ratio, QSizeF(r.size()) / ratio).toAlignedRect();
        shape = scaled;
    }
    shape.translate(m_shapedRect.topLeft());
    m_shapedFrame = frame;
    m_shape = shape;
    if (shape.isEmpty())
        hideShape();
    else
        setMask(shape);
}

void KeyDisplayOverlayWindow::hideShape()
{
    if (mask() == hiddenShape)
        return;
    setMask(hiddenShape);
    // Nothing is painted inside an empty shape, so no paint sends the change to the display
    // server; send it now.
    QGuiApplication::sync();
}

void KeyDisplayOverlayWindow::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(event->rect(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (m_compositing) {
        painter.translate(-m_area.topLeft());
        m_view->paint(painter, event->rect().translated(m_area.topLeft()));
        return;
    }
    if (!m_shapedFrame.isNull())
        painter.drawImage(m_shapedRect.topLeft(), m_shapedFrame);
}
