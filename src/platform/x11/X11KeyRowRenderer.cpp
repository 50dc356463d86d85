#include "platform/x11/X11KeyRowRenderer.h"

#include "overlay/KeyView.h"

#include <QGuiApplication>
#include <QImage>

#include <xcb/render.h>
#include <xcb/shape.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <pthread.h>

namespace {
// Server-side cap images kept at most (least recently used go first), as the client's cache.
constexpr qsizetype pictureBudget = KeyEffectCache::defaultByteBudget;
// Rows of an image sent per request, staying far below the core protocol's request size limit.
constexpr int uploadBytesPerRequest = 64 * 1024;

template <typename Reply> using ReplyPointer = std::unique_ptr<Reply, decltype(&std::free)>;
template <typename Reply> ReplyPointer<Reply> owned(Reply *reply)
{
    return ReplyPointer<Reply>(reply, &std::free);
}

xcb_render_fixed_t fixed(double value)
{
    return static_cast<xcb_render_fixed_t>(std::lround(value * 65536.0));
}

xcb_render_transform_t scaling(double sx, double sy)
{
    return {fixed(sx), 0, 0, 0, fixed(sy), 0, 0, 0, fixed(1.0)};
}

xcb_rectangle_t rectangle(const QRect &r)
{
    return {static_cast<int16_t>(r.x()), static_cast<int16_t>(r.y()),
            static_cast<uint16_t>(r.width()), static_cast<uint16_t>(r.height())};
}

// Without a compositor a window's pixels show unblended: keep what is mostly covered, opaque in
// its own colour, and drop soft edges, shadows and glows, which would show as dark fringes.
QImage opaqueCopy(const QImage &image)
{
    QImage result = image.copy();
    for (int y = 0; y < result.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const QRgb pixel = line[x];
            const int alpha = qAlpha(pixel);
            if (alpha < 128)
                line[x] = 0;
            else if (alpha != 255)
                line[x] = qUnpremultiply(pixel) | 0xff000000u;
        }
    }
    return result;
}
} // namespace

std::unique_ptr<X11KeyRowRenderer> X11KeyRowRenderer::create(quint32 window)
{
    auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!x11)
        return nullptr;
    xcb_connection_t *application = x11->connection();
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const auto fail = [connection] {
        xcb_disconnect(connection);
        return nullptr;
    };
    if (xcb_connection_has_error(connection) ||
        xcb_get_setup(connection)->image_byte_order != XCB_IMAGE_ORDER_LSB_FIRST)
        return fail();
    const auto render = owned(xcb_render_query_version_reply(
        connection, xcb_render_query_version(connection, 0, 11), nullptr));
    const auto shape = owned(
        xcb_shape_query_version_reply(connection, xcb_shape_query_version(connection), nullptr));
    const auto attributes = owned(xcb_get_window_attributes_reply(
        application, xcb_get_window_attributes(application, window), nullptr));
    const auto formats = owned(xcb_render_query_pict_formats_reply(
        connection, xcb_render_query_pict_formats(connection), nullptr));
    if (!render || render->minor_version < 6 || !shape || !attributes || !formats)
        return fail();

    // The window's own format (32 bits with alpha), and a 1-bit alpha format for its shape.
    xcb_render_pictformat_t argb = 0;
    for (auto screens = xcb_render_query_pict_formats_screens_iterator(formats.get());
         screens.rem && !argb; xcb_render_pictscreen_next(&screens))
        for (auto depths = xcb_render_pictscreen_depths_iterator(screens.data); depths.rem && !argb;
             xcb_render_pictdepth_next(&depths))
            for (auto visuals = xcb_render_pictdepth_visuals_iterator(depths.data); visuals.rem;
                 xcb_render_pictvisual_next(&visuals))
                if (visuals.data->visual == attributes->visual && depths.data->depth == 32)
                    argb = visuals.data->format;
    xcb_render_pictformat_t mask = 0;
    for (auto it = xcb_render_query_pict_formats_formats_iterator(formats.get()); it.rem;
         xcb_render_pictforminfo_next(&it))
        if (it.data->type == XCB_RENDER_PICT_TYPE_DIRECT && it.data->depth == 1 &&
            it.data->direct.alpha_mask == 1)
            mask = it.data->id;
    if (!argb || !mask)
        return fail();

    // The server repaints the window from its background and the renderer draws that: the
    // application never paints it, so it need not hear of exposures (a shape that grows with the
    // caps would otherwise wake it on every frame).
    const uint32_t events = attributes->your_event_mask & ~uint32_t(XCB_EVENT_MASK_EXPOSURE);
    xcb_change_window_attributes(application, window, XCB_CW_EVENT_MASK, &events);
    xcb_flush(application);
    return std::unique_ptr<X11KeyRowRenderer>(
        new X11KeyRowRenderer(connection, window, argb, mask));
}

X11KeyRowRenderer::X11KeyRowRenderer(xcb_connection_t *connection, std::uint32_t window,
                                     std::uint32_t argbFormat, std::uint32_t maskFormat)
    : m_connection(connection), m_window(window), m_argbFormat(argbFormat), m_maskFormat(maskFormat)
{
    m_thread = std::thread([this] {
        pthread_setname_np(pthread_self(), "KeyRowRenderer");
        run();
    });
}

X11KeyRowRenderer::~X11KeyRowRenderer()
{
    {
        std::lock_guard lock(m_mutex);
        m_stop = true;
    }
    m_wake.notify_one();
    m_thread.join();
    // The window may be gone already; the server frees what a closed connection made.
    xcb_disconnect(m_connection);
}

void X11KeyRowRenderer::setScene(std::shared_ptr<const KeyRowScene> scene)
{
    std::unique_lock lock(m_mutex);
    const bool wasMoving = m_moving;
    m_scene = std::move(scene);
    m_capImages.assign(m_scene->caps.size(), {});
    // Errors (about a window closed meanwhile) are of no use; drop them now and then rather than
    // read the connection on every frame.
    while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection))
        std::free(event);
    if (wasMoving && !m_scene->urgent)
        return; // the next frame shows it
    // Drawn at once rather than by the thread: a key shows as soon as it is pressed.
    m_moving = drawFrame();
    if (!m_moving)
        return;
    const auto interval = std::chrono::duration_cast<Clock::duration>(
        std::chrono::duration<double>(m_scene->frameInterval));
    // A frame drawn early for a change restarts the beat, so fast typing costs no extra frames.
    m_due = Clock::now() + interval;
    lock.unlock();
    if (!wasMoving)
        m_wake.notify_one();
}

void X11KeyRowRenderer::warmUp(const std::vector<std::shared_ptr<const KeyView>> &views,
                               double opacity, bool opaque, double devicePixelRatio)
{
    std::lock_guard lock(m_mutex);
    setOpaque(opaque);
    for (const auto &view : views)
        pictureFor(view->image(0.0, devicePixelRatio, &m_effects, opacity).image, false);
    xcb_flush(m_connection);
}

void X11KeyRowRenderer::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_stop) {
        if (!m_moving) {
            m_wake.wait(lock);
            continue;
        }
        const Clock::time_point now = Clock::now();
        if (now < m_due) {
            m_wake.wait_until(lock, m_due);
            continue;
        }
        m_moving = drawFrame();
        // A steady beat: a late frame is not made up for by early ones.
        const auto interval = std::chrono::duration_cast<Clock::duration>(
            std::chrono::duration<double>(m_scene->frameInterval));
        m_due += interval;
        if (m_due < now + interval / 2)
            m_due = now + interval;
    }
}

bool X11KeyRowRenderer::drawFrame()
{
    if (!m_scene)
        return false;
    const KeyRowScene &scene = *m_scene;
    const double dpr = scene.devicePixelRatio;
    const QSize pixels = (QSizeF(scene.windowSize) * dpr).toSize();
    if (pixels.isEmpty())
        return false;
    if (scene.lookGeneration != m_lookGeneration) {
        forgetPictures();
        m_effects.clear();
        m_lookGeneration = scene.lookGeneration;
        m_redrawAll = true;
    }
    setOpaque(scene.opaque);
    if (pixels != m_bufferSize) {
        resizeBuffers(pixels);
        m_redrawAll = true;
    }

    // Where each cap's image goes this frame, in window pixels.
    struct Placement {
        std::uint32_t picture;
        std::uint32_t mask;
        QRect rect;
        double sx;
        double sy;
    };
    std::vector<Placement> placements;
    placements.reserve(scene.caps.size());
    const double time = scene.time();
    bool moving = false;
    QRect covered;
    for (std::size_t index = 0; index < scene.caps.size(); ++index) {
        const KeyRowScene::Cap &cap = scene.caps[index];
        const KeyView &view = *cap.view;
        if (cap.motion.isGone(time))
            continue;
        moving = moving || cap.motion.isMoving(view, time);
        const KeyMotion::Drawing drawing =
            cap.motion.drawing(view, time, scene.rowOpacity, scene.opaque);
        if (!drawing.isVisible())
            continue;
        const bool transient = view.isAnimating(time);
        // A cap's image changes only with its label (or when it fades and no longer has the
        // row's opacity baked in): look it up once per scene otherwise.
        CapImage &image = m_capImages[index];
        if (transient || image.image.isNull() || image.opacity != drawing.imageOpacity) {
            const KeyEffectCache::Effect effect =
                view.image(time, dpr, &m_effects, drawing.imageOpacity);
            image = {effect.image, effect.offset, drawing.imageOpacity};
        }
        if (image.image.isNull())
            continue;
        // The image's top-left corner; growing or shrinking caps are sampled on whole pixels.
        const double scale = drawing.scale;
        const QSizeF frame = drawing.frameSize;
        const QPointF corner =
            (drawing.center - QPointF(scene.origin) +
             scale * (QPointF(-frame.width() / 2.0, -frame.height() / 2.0) + image.offset)) *
            dpr;
        const QSize size = scale == 1.0
                               ? image.image.size()
                               : QSize(static_cast<int>(std::lround(image.image.width() * scale)),
                                       static_cast<int>(std::lround(image.image.height() * scale)));
        if (size.isEmpty())
            continue;
        const QRect rect(QPoint(static_cast<int>(std::lround(corner.x())),
                                static_cast<int>(std::lround(corner.y()))),
                         size);
        placements.push_back(
            {pictureFor(image.image, transient),
             drawing.drawOpacity < 1.0 ? opacityMask(drawing.drawOpacity) : std::uint32_t{XCB_NONE},
             rect, double(image.image.width()) / size.width(),
             double(image.image.height()) / size.height()});
        covered |= rect;
    }
    const QRect window(QPoint(0, 0), pixels);
    covered &= window;
    const QRect dirty = m_redrawAll ? window : (covered | m_drawn) & window;
    m_drawn = covered;
    m_redrawAll = false;
    if (dirty.isEmpty())
        return moving;

    // Every image drawn lies within `dirty`, so no clip is needed.
    const xcb_rectangle_t clip = rectangle(dirty);
    const xcb_render_color_t transparent{0, 0, 0, 0};
    xcb_render_fill_rectangles(m_connection, XCB_RENDER_PICT_OP_SRC, m_bufferPicture, transparent,
                               1, &clip);
    for (const Placement &placement : placements) {
        const bool scaled = placement.sx != 1.0 || placement.sy != 1.0;
        if (scaled)
            xcb_render_set_picture_transform(m_connection, placement.picture,
                                             scaling(placement.sx, placement.sy));
        xcb_render_composite(
            m_connection, XCB_RENDER_PICT_OP_OVER, placement.picture, placement.mask,
            m_bufferPicture, 0, 0, 0, 0, static_cast<int16_t>(placement.rect.x()),
            static_cast<int16_t>(placement.rect.y()), static_cast<uint16_t>(placement.rect.width()),
            static_cast<uint16_t>(placement.rect.height()));
        if (scaled)
            xcb_render_set_picture_transform(m_connection, placement.picture, scaling(1.0, 1.0));
    }
    for (const uint32_t picture : m_transient)
        xcb_render_free_picture(m_connection, picture);
    m_transient.clear();

    if (m_opaque) {
        // The shape follows the caps: every pixel the frame covers at least half. Nothing
        // shows outside `dirty`, so a mask of that part alone is the whole shape.
        const uint32_t mask = xcb_generate_id(m_connection);
        xcb_create_pixmap(m_connection, 1, mask, m_window, clip.width, clip.height);
        const uint32_t maskPicture = xcb_generate_id(m_connection);
        xcb_render_create_picture(m_connection, maskPicture, mask, m_maskFormat, 0, nullptr);
        xcb_render_composite(m_connection, XCB_RENDER_PICT_OP_SRC, m_bufferPicture, XCB_NONE,
                             maskPicture, clip.x, clip.y, 0, 0, 0, 0, clip.width, clip.height);
        xcb_shape_mask(m_connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, m_window, clip.x,
                       clip.y, mask);
        xcb_render_free_picture(m_connection, maskPicture);
        xcb_free_pixmap(m_connection, mask);
        m_shaped = true;
    } else if (m_shaped) {
        xcb_shape_mask(m_connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, m_window, 0, 0,
                       XCB_NONE);
        m_shaped = false;
    }
    xcb_clear_area(m_connection, 0, m_window, clip.x, clip.y, clip.width, clip.height);
    xcb_flush(m_connection);
    return moving;
}

void X11KeyRowRenderer::resizeBuffers(const QSize &pixels)
{
    freeBuffers();
    m_bufferSize = pixels;
    const auto width = static_cast<uint16_t>(pixels.width());
    const auto height = static_cast<uint16_t>(pixels.height());
    m_buffer = xcb_generate_id(m_connection);
    xcb_create_pixmap(m_connection, 32, m_buffer, m_window, width, height);
    m_bufferPicture = xcb_generate_id(m_connection);
    xcb_render_create_picture(m_connection, m_bufferPicture, m_buffer, m_argbFormat, 0, nullptr);
    const xcb_render_color_t transparent{0, 0, 0, 0};
    const xcb_rectangle_t all{0, 0, width, height};
    xcb_render_fill_rectangles(m_connection, XCB_RENDER_PICT_OP_SRC, m_bufferPicture, transparent,
                               1, &all);
    xcb_change_window_attributes(m_connection, m_window, XCB_CW_BACK_PIXMAP, &m_buffer);
}

void X11KeyRowRenderer::freeBuffers()
{
    if (!m_buffer)
        return;
    xcb_render_free_picture(m_connection, m_bufferPicture);
    xcb_free_pixmap(m_connection, m_buffer);
    m_buffer = m_bufferPicture = 0;
}

std::uint32_t X11KeyRowRenderer::pictureFor(const QImage &image, bool transient)
{
    if (transient) {
        const uint32_t picture = upload(m_opaque ? opaqueCopy(image) : image);
        m_transient.push_back(picture);
        return picture;
    }
    const qint64 key = image.cacheKey();
    if (const auto found = m_pictures.find(key); found != m_pictures.end()) {
        found->second.lastUse = ++m_useCounter;
        return found->second.picture;
    }
    Picture entry;
    entry.picture = upload(m_opaque ? opaqueCopy(image) : image);
    entry.bytes = image.sizeInBytes();
    entry.lastUse = ++m_useCounter;
    m_pictures.emplace(key, entry);
    m_pictureBytes += entry.bytes;
    while (m_pictureBytes > pictureBudget && m_pictures.size() > 1) {
        const auto oldest = std::min_element(
            m_pictures.begin(), m_pictures.end(),
            [](const auto &a, const auto &b) { return a.second.lastUse < b.second.lastUse; });
        m_pictureBytes -= oldest->second.bytes;
        xcb_render_free_picture(m_connection, oldest->second.picture);
        m_pictures.erase(oldest);
    }
    return entry.picture;
}

std::uint32_t X11KeyRowRenderer::upload(const QImage &source)
{
    const QImage image = source.format() == QImage::Format_ARGB32_Premultiplied
                             ? source
                             : source.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const auto width = static_cast<uint16_t>(image.width());
    const auto height = static_cast<uint16_t>(image.height());
    const uint32_t pixmap = xcb_generate_id(m_connection);
    xcb_create_pixmap(m_connection, 32, pixmap, m_window, width, height);
    const uint32_t gc = xcb_generate_id(m_connection);
    xcb_create_gc(m_connection, gc, pixmap, 0, nullptr);
    const int stride = width * 4;
    const int rowsPerRequest = std::max(1, uploadBytesPerRequest / std::max(1, stride));
    for (int y = 0; y < height; y += rowsPerRequest) {
        // Rows of 32-bit pixels are packed as the protocol wants them.
        const int rows = std::min(rowsPerRequest, height - y);
        xcb_put_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, gc, width,
                      static_cast<uint16_t>(rows), 0, static_cast<int16_t>(y), 0, 32,
                      static_cast<uint32_t>(rows * stride), image.constScanLine(y));
    }
    xcb_free_gc(m_connection, gc);
    const uint32_t picture = xcb_generate_id(m_connection);
    xcb_render_create_picture(m_connection, picture, pixmap, m_argbFormat, 0, nullptr);
    // The picture keeps the pixmap's pixels alive.
    xcb_free_pixmap(m_connection, pixmap);
    return picture;
}

std::uint32_t X11KeyRowRenderer::opacityMask(double opacity)
{
    const int alpha = std::clamp(static_cast<int>(std::lround(opacity * 255.0)), 0, 255);
    if (const auto found = m_opacityMasks.find(alpha); found != m_opacityMasks.end())
        return found->second;
    const uint32_t picture = xcb_generate_id(m_connection);
    const auto value = static_cast<uint16_t>(alpha * 257);
    xcb_render_create_solid_fill(m_connection, picture, xcb_render_color_t{0, 0, 0, value});
    m_opacityMasks.emplace(alpha, picture);
    return picture;
}

void X11KeyRowRenderer::setOpaque(bool opaque)
{
    if (opaque == m_opaque)
        return;
    forgetPictures();
    m_opaque = opaque;
    m_redrawAll = true;
}

void X11KeyRowRenderer::forgetPictures()
{
    for (const auto &[key, entry] : m_pictures)
        xcb_render_free_picture(m_connection, entry.picture);
    m_pictures.clear();
    m_pictureBytes = 0;
}
