#include "platform/x11/X11KeyRowRenderer.h"

#include "overlay/KeyView.h"

#include <QGuiApplication>
#include <QImage>
#include <QTimer>

#include <xcb/render.h>
#include <xcb/shape.h>
#include <xcb/sync.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string_view>

namespace {
// Server-side cap images kept at most (least recently used go first), as the client's cache.
constexpr qsizetype pictureBudget = KeyEffectCache::defaultByteBudget;
// Rows of an image sent per request, staying far below the core protocol's request size limit.
constexpr int uploadBytesPerRequest = 64 * 1024;
// Frames worked out and queued at a time. More are queued half a frame before the third last is
// due, so the server never runs dry even if the GUI thread is a few frames late; a newer scene
// replaces those queued.
constexpr int framesPerRun = 10;
constexpr int framesLeftWhenQueuingMore = 3;
// Errors from frames of replaced runs are read off the connections after this many runs: a
// handful each, not worth a read on every run.
constexpr std::uint64_t runsBetweenDrains = 64;
// The server's clock is compared with ours now and then (it may run on another machine).
constexpr double calibrationInterval = 60.0;

template <typename Reply> using ReplyPointer = std::unique_ptr<Reply, decltype(&std::free)>;
template <typename Reply> ReplyPointer<Reply> owned(Reply *reply)
{
    return ReplyPointer<Reply>(reply, &std::free);
}

xcb_render_fixed_t fixed(double value)
{
    return static_cast<xcb_render_fixed_t>(std::lround(value * 65536.0));
}

// Scales by `sx`, `sy` and then takes the pixel at `origin` as the first one.
xcb_render_transform_t scaling(double sx, double sy, const QPoint &origin = {})
{
    return {fixed(sx), 0, fixed(-origin.x()), 0, fixed(sy), fixed(-origin.y()), 0, 0, fixed(1.0)};
}

// The X server samples a scaled picture as pixman does, in 16.16 fixed point: pixel i of the
// destination shows source pixel (f * (i + 1/2) - 1/65536) >> 16 for the factor f. For each
// pixel of a destination `length` long: the pixel of the inked part [inkedStart, inkedStart +
// inkedLength) it shows, or -1 for one outside (transparent).
std::vector<int> nearestSamples(int length, double scale, int inkedStart, int inkedLength)
{
    const std::int64_t factor = fixed(scale);
    const std::int64_t first = ((factor * 0x8000 + 0x8000) >> 16) - 1;
    std::vector<int> samples(std::size_t(std::max(0, length)));
    for (int i = 0; i < length; ++i) {
        const int source = static_cast<int>((first + factor * i) >> 16) - inkedStart;
        samples[std::size_t(i)] = source >= 0 && source < inkedLength ? source : -1;
    }
    return samples;
}

// The range of `samples` that shows the inked part (it is one range: samples only grow).
std::pair<int, int> sampledRange(const std::vector<int> &samples)
{
    const auto first = std::find_if(samples.begin(), samples.end(), [](int s) { return s >= 0; });
    const auto last = std::find_if(samples.rbegin(), samples.rend(), [](int s) { return s >= 0; });
    if (first == samples.end())
        return {0, 0};
    return {int(first - samples.begin()), int(samples.rend() - last)};
}

xcb_sync_int64_t int64(std::int64_t value)
{
    return {static_cast<int32_t>(value >> 32), static_cast<uint32_t>(value & 0xffffffffu)};
}

// Holds a connection's requests back until `counter` reaches `value`.
xcb_sync_waitcondition_t reaching(std::uint32_t counter, std::int64_t value)
{
    xcb_sync_waitcondition_t condition{};
    condition.trigger.counter = counter;
    condition.trigger.wait_type = XCB_SYNC_VALUETYPE_ABSOLUTE;
    condition.trigger.wait_value = int64(value);
    condition.trigger.test_type = XCB_SYNC_TESTTYPE_POSITIVE_COMPARISON;
    // No CounterNotify event when the wait ends.
    condition.event_threshold = int64(std::numeric_limits<std::int64_t>::max());
    return condition;
}

double monotonicMilliseconds()
{
    return std::chrono::duration<double, std::milli>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// The server's millisecond clock; xcb's iterator misreads the list's names, so it is read here.
std::uint32_t serverTimeCounter(xcb_connection_t *c)
{
    const auto reply =
        owned(xcb_sync_list_system_counters_reply(c, xcb_sync_list_system_counters(c), nullptr));
    if (!reply)
        return 0;
    const auto *entry = reinterpret_cast<const std::uint8_t *>(reply.get() + 1);
    const std::uint8_t *const end = entry + 4 * std::size_t(reply->length);
    constexpr std::string_view name = "SERVERTIME";
    // Each entry: counter (4 bytes), resolution (8), name length (2), name, padding to 4.
    for (std::uint32_t i = 0; i < reply->counters_len && entry + 14 <= end; ++i) {
        std::uint32_t counter = 0;
        std::uint16_t length = 0;
        std::memcpy(&counter, entry, 4);
        std::memcpy(&length, entry + 12, 2);
        if (entry + 14 + length > end)
            break;
        if (std::string_view(reinterpret_cast<const char *>(entry + 14), length) == name)
            return counter;
        entry += (14 + length + 3) & ~3;
    }
    return 0;
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

struct X11KeyRowRenderer::Connection {
    xcb_connection_t *control = nullptr;
    xcb_connection_t *timed = nullptr;
    std::uint32_t window = 0;
    std::uint32_t argbFormat = 0;
    std::uint32_t maskFormat = 0;
    std::uint32_t serverTimeCounter = 0;
};

std::unique_ptr<X11KeyRowRenderer> X11KeyRowRenderer::create(quint32 window)
{
    auto *x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!x11)
        return nullptr;
    xcb_connection_t *application = x11->connection();
    Connection found;
    found.window = window;
    found.control = xcb_connect(nullptr, nullptr);
    found.timed = xcb_connect(nullptr, nullptr);
    const auto fail = [&found] {
        xcb_disconnect(found.control);
        xcb_disconnect(found.timed);
        return nullptr;
    };
    if (xcb_connection_has_error(found.control) || xcb_connection_has_error(found.timed) ||
        xcb_get_setup(found.control)->image_byte_order != XCB_IMAGE_ORDER_LSB_FIRST)
        return fail();
    xcb_connection_t *c = found.control;
    const auto render =
        owned(xcb_render_query_version_reply(c, xcb_render_query_version(c, 0, 11), nullptr));
    const auto shape = owned(xcb_shape_query_version_reply(c, xcb_shape_query_version(c), nullptr));
    const auto sync = owned(xcb_sync_initialize_reply(c, xcb_sync_initialize(c, 3, 1), nullptr));
    const auto timedSync = owned(
        xcb_sync_initialize_reply(found.timed, xcb_sync_initialize(found.timed, 3, 1), nullptr));
    const auto attributes = owned(xcb_get_window_attributes_reply(
        application, xcb_get_window_attributes(application, window), nullptr));
    const auto formats =
        owned(xcb_render_query_pict_formats_reply(c, xcb_render_query_pict_formats(c), nullptr));
    if (!render || render->minor_version < 6 || !shape || !sync || !timedSync || !attributes ||
        !formats)
        return fail();
    found.serverTimeCounter = serverTimeCounter(c);
    // The timed connection must never stop for a reply while the server holds it back, so it
    // learns its extensions' request codes now.
    for (xcb_extension_t *extension : {&xcb_render_id, &xcb_shape_id})
        xcb_get_extension_data(found.timed, extension);
    if (!found.serverTimeCounter)
        return fail();

    // The window's own format (32 bits with alpha), and a 1-bit alpha format for its shape.
    for (auto screens = xcb_render_query_pict_formats_screens_iterator(formats.get());
         screens.rem && !found.argbFormat; xcb_render_pictscreen_next(&screens))
        for (auto depths = xcb_render_pictscreen_depths_iterator(screens.data);
             depths.rem && !found.argbFormat; xcb_render_pictdepth_next(&depths))
            for (auto visuals = xcb_render_pictdepth_visuals_iterator(depths.data); visuals.rem;
                 xcb_render_pictvisual_next(&visuals))
                if (visuals.data->visual == attributes->visual && depths.data->depth == 32)
                    found.argbFormat = visuals.data->format;
    for (auto it = xcb_render_query_pict_formats_formats_iterator(formats.get()); it.rem;
         xcb_render_pictforminfo_next(&it))
        if (it.data->type == XCB_RENDER_PICT_TYPE_DIRECT && it.data->depth == 1 &&
            it.data->direct.alpha_mask == 1)
            found.maskFormat = it.data->id;
    if (!found.argbFormat || !found.maskFormat)
        return fail();

    // The server repaints the window from its background and the renderer draws that: the
    // application never paints it, so it need not hear of exposures (a shape that grows with the
    // caps would otherwise wake it on every frame).
    const uint32_t events = attributes->your_event_mask & ~uint32_t(XCB_EVENT_MASK_EXPOSURE);
    xcb_change_window_attributes(application, window, XCB_CW_EVENT_MASK, &events);
    xcb_flush(application);
    return std::unique_ptr<X11KeyRowRenderer>(new X11KeyRowRenderer(found));
}

X11KeyRowRenderer::X11KeyRowRenderer(const Connection &connection)
    : m_control(connection.control), m_timed(connection.timed), m_window(connection.window),
      m_argbFormat(connection.argbFormat), m_maskFormat(connection.maskFormat),
      m_serverTimeCounter(connection.serverTimeCounter), m_runCounter(xcb_generate_id(m_control)),
      m_nextRun(std::make_unique<QTimer>())
{
    xcb_sync_create_counter(m_control, m_runCounter, int64(0));
    calibrateServerClock();
    m_nextRun->setSingleShot(true);
    m_nextRun->setTimerType(Qt::PreciseTimer);
    QObject::connect(m_nextRun.get(), &QTimer::timeout, m_nextRun.get(), [this] {
        if (!m_scene || !m_moving)
            return;
        // From the next frame on the beat; the one before has run.
        const double interval = m_scene->frameInterval;
        startRun(m_beat + std::floor((m_scene->time() - m_beat) / interval + 1.0) * interval,
                 false);
    });
}

X11KeyRowRenderer::~X11KeyRowRenderer()
{
    // Frames still waiting draw nothing and are let go; the server frees the rest with the
    // connections (the window may be gone already).
    cancelRun();
    xcb_sync_set_counter(m_control, m_runCounter, int64(std::numeric_limits<std::int64_t>::max()));
    xcb_flush(m_control);
    xcb_disconnect(m_timed);
    xcb_disconnect(m_control);
}

void X11KeyRowRenderer::setScene(std::shared_ptr<const KeyRowScene> scene)
{
    m_scene = std::move(scene);
    m_capImages.assign(m_scene->caps.size(), {});
    const double now = m_scene->time();
    const double interval = m_scene->frameInterval;
    const bool framesRunning = m_moving || (!m_frames.empty() && m_frames.back().time > now);
    if (m_scene->urgent || !framesRunning) {
        // Drawn at once; a frame drawn early for a change restarts the beat, so fast typing
        // costs no extra frames.
        m_beat = now;
        startRun(now, true);
        return;
    }
    // Frames already run: the change shows with the next one.
    m_beat += std::floor((now - m_beat) / interval + 1.0) * interval;
    startRun(m_beat, false);
}

void X11KeyRowRenderer::warmUp(const std::vector<std::shared_ptr<const KeyView>> &views,
                               double opacity, bool opaque, double devicePixelRatio)
{
    setOpaque(opaque);
    for (const auto &view : views)
        pictureFor(view->image(0.0, devicePixelRatio, &m_effects, opacity).image, false);
    xcb_flush(m_control);
}

void X11KeyRowRenderer::startRun(double start, bool drawNow)
{
    m_nextRun->stop();
    if (m_runNumber % runsBetweenDrains == 0)
        drainEvents();
    const KeyRowScene &scene = *m_scene;
    const QSize pixels = (QSizeF(scene.windowSize) * scene.devicePixelRatio).toSize();
    if (!drawNow && monotonicMilliseconds() / 1000.0 - m_calibratedAt > calibrationInterval)
        calibrateServerClock();
    // Frames still waiting on the server draw nothing from now on, and are let go below. Run n
    // waits for the counter to reach 2n before it starts and gives way when it reaches 2n + 1.
    // The run replaced before is freed once the first frame is out.
    Run older = std::move(m_cancelled);
    m_cancelled = {};
    cancelRun();
    const auto replaced = int64(2 * std::int64_t(m_runNumber) + 1);
    m_frames.clear();
    m_moving = false;
    if (pixels.isEmpty()) {
        freeRun(older);
        xcb_sync_set_counter(m_control, m_runCounter, replaced);
        xcb_flush(m_control);
        return;
    }
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
    m_runFirstUse = m_useCounter + 1;
    const QRect window(QPoint(0, 0), pixels);
    // What each frame redraws: where its caps are and where the frame before had ink. Whether
    // the frames of a replaced run ran is not known here, so the first frame also covers all of
    // theirs; a frame drawn at once settles that.
    QRect before = m_redrawAll ? window : m_ink;
    m_redrawAll = false;
    m_moving = true;
    const double interval = scene.frameInterval;
    if (drawNow) {
        // The first frame goes out before the others are worked out: a key shows at once.
        Frame &frame = m_frames.emplace_back();
        frame.time = start;
        m_moving = placeFrame(start, frame);
        frame.covered &= window;
        frame.dirty = (frame.covered | before) & window;
        drawFrameNow(frame);
        m_ink = before = frame.covered;
        start += interval;
        xcb_sync_set_counter(m_control, m_runCounter, replaced);
        xcb_flush(m_control);
    } else {
        xcb_sync_set_counter(m_control, m_runCounter, replaced);
    }
    freeRun(older);
    if (!m_moving) {
        xcb_flush(m_control);
        return;
    }

    // The frames that follow, until nothing moves or the run is full, queued on the server.
    const std::size_t queuedFrom = m_frames.size();
    QRect area = before;
    for (int index = 0; m_frames.size() < std::size_t(framesPerRun) && m_moving; ++index) {
        Frame &frame = m_frames.emplace_back();
        frame.time = start + index * interval;
        m_moving = placeFrame(frame.time, frame);
        frame.covered &= window;
        frame.dirty = (frame.covered | before) & window;
        before = frame.covered;
        area |= frame.covered;
        m_ink |= frame.covered;
    }

    // The run's own objects, made before any of its frames starts.
    m_run.number = ++m_runNumber;
    m_run.target = xcb_generate_id(m_control);
    xcb_render_create_picture(m_control, m_run.target, m_buffer, m_argbFormat, 0, nullptr);
    m_run.copier = xcb_generate_id(m_control);
    const uint32_t noExposures = 0;
    xcb_create_gc(m_control, m_run.copier, m_window, XCB_GC_GRAPHICS_EXPOSURES, &noExposures);
    if (m_opaque && !area.isEmpty()) {
        // Nothing of the run shows outside `area`, so a mask of that part is the whole shape.
        m_run.shape = xcb_generate_id(m_control);
        xcb_create_pixmap(m_control, 1, m_run.shape, m_window, uint16_t(area.width()),
                          uint16_t(area.height()));
        m_run.shapeTarget = xcb_generate_id(m_control);
        xcb_render_create_picture(m_control, m_run.shapeTarget, m_run.shape, m_maskFormat, 0,
                                  nullptr);
        m_run.shapeOrigin = area.topLeft();
        // The buffer is transparent outside the ink, and every frame copies all of the ink it
        // covers: an empty mask to start with is the buffer's.
        const xcb_rectangle_t all{0, 0, uint16_t(area.width()), uint16_t(area.height())};
        xcb_render_fill_rectangles(m_control, XCB_RENDER_PICT_OP_SRC, m_run.shapeTarget,
                                   xcb_render_color_t{0, 0, 0, 0}, 1, &all);
    }
    for (std::size_t index = queuedFrom; index < m_frames.size(); ++index)
        for (const Placement &placement : m_frames[index].placements)
            if (placement.shared && (placement.sx != 1.0 || placement.sy != 1.0))
                scaledView(placement.source);
    const auto number = std::int64_t(m_run.number);
    xcb_sync_set_counter(m_control, m_runCounter, int64(2 * number));
    xcb_flush(m_control);

    const double sceneNow = scene.time();
    const double monotonicNow = monotonicMilliseconds();
    const xcb_sync_waitcondition_t ready = reaching(m_runCounter, 2 * number);
    xcb_sync_await(m_timed, 1, &ready);
    for (std::size_t index = queuedFrom; index < m_frames.size(); ++index) {
        const Frame &frame = m_frames[index];
        // Its time, or a newer run, whichever comes first.
        const xcb_sync_waitcondition_t due[] = {
            reaching(m_serverTimeCounter, serverTime(frame.time, sceneNow, monotonicNow)),
            reaching(m_runCounter, 2 * number + 1)};
        xcb_sync_await(m_timed, 2, due);
        queueFrame(frame);
    }
    xcb_flush(m_timed);
    m_run.queued = true;
    if (m_moving) {
        // Between two frames, so that the frame before has surely run and the next has not.
        const double at = m_frames[m_frames.size() - framesLeftWhenQueuingMore].time - interval / 2;
        m_nextRun->start(std::max(0, static_cast<int>(std::lround((at - scene.time()) * 1000.0))));
    }
}

bool X11KeyRowRenderer::placeFrame(double time, Frame &frame)
{
    const KeyRowScene &scene = *m_scene;
    const double dpr = scene.devicePixelRatio;
    bool moving = false;
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
        const QRect rect = drawing.imageRect(image.image.size(), image.offset, scene.origin, dpr);
        if (rect.isEmpty())
            continue;
        Placement placement{pictureFor(image.image, transient),
                            !transient,
                            drawing.drawOpacity < 1.0 ? opacityMask(drawing.drawOpacity)
                                                      : std::uint32_t{XCB_NONE},
                            rect,
                            double(image.image.width()) / rect.width(),
                            double(image.image.height()) / rect.height(),
                            {},
                            {}};
        // Only the pixels that show the inked part are drawn.
        const QRect &inked = placement.source.inked;
        if (placement.sx == 1.0 && placement.sy == 1.0) {
            placement.target = inked.translated(rect.topLeft());
        } else {
            const auto [left, right] =
                sampledRange(nearestSamples(rect.width(), placement.sx, inked.x(), inked.width()));
            const auto [top, bottom] = sampledRange(
                nearestSamples(rect.height(), placement.sy, inked.y(), inked.height()));
            placement.target = QRect(rect.x() + left, rect.y() + top, right - left, bottom - top);
            placement.sourceOrigin = QPoint(left, top);
        }
        if (!placement.source.picture || placement.target.isEmpty())
            continue;
        frame.covered |= placement.target;
        frame.placements.push_back(std::move(placement));
    }
    return moving;
}

void X11KeyRowRenderer::drawFrameNow(const Frame &frame)
{
    if (frame.dirty.isEmpty())
        return;
    // Every image drawn lies within `dirty`, so no clip is needed.
    const xcb_rectangle_t dirty = rectangle(frame.dirty);
    const xcb_render_color_t transparent{0, 0, 0, 0};
    xcb_render_fill_rectangles(m_control, XCB_RENDER_PICT_OP_SRC, m_bufferPicture, transparent, 1,
                               &dirty);
    for (const Placement &placement : frame.placements) {
        const bool scaled = placement.sx != 1.0 || placement.sy != 1.0;
        if (scaled)
            xcb_render_set_picture_transform(
                m_control, placement.source.picture,
                scaling(placement.sx, placement.sy, placement.source.inked.topLeft()));
        composite(m_control, placement, placement.source.picture, m_bufferPicture);
        if (scaled)
            xcb_render_set_picture_transform(m_control, placement.source.picture,
                                             scaling(1.0, 1.0));
    }
    for (const std::uint32_t picture : m_run.pictures)
        xcb_render_free_picture(m_control, picture);
    m_run.pictures.clear();

    if (m_opaque) {
        // The shape follows the caps: every pixel the frame covers at least half. Nothing
        // shows outside `dirty`, so a mask of that part alone is the whole shape.
        const uint32_t mask = xcb_generate_id(m_control);
        xcb_create_pixmap(m_control, 1, mask, m_window, dirty.width, dirty.height);
        const uint32_t maskPicture = xcb_generate_id(m_control);
        xcb_render_create_picture(m_control, maskPicture, mask, m_maskFormat, 0, nullptr);
        xcb_render_composite(m_control, XCB_RENDER_PICT_OP_SRC, m_bufferPicture, XCB_NONE,
                             maskPicture, dirty.x, dirty.y, 0, 0, 0, 0, dirty.width, dirty.height);
        xcb_shape_mask(m_control, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, m_window, dirty.x,
                       dirty.y, mask);
        xcb_render_free_picture(m_control, maskPicture);
        xcb_free_pixmap(m_control, mask);
        m_shaped = true;
    } else if (m_shaped) {
        xcb_shape_mask(m_control, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, m_window, 0, 0,
                       XCB_NONE);
        m_shaped = false;
    }
    xcb_clear_area(m_control, 0, m_window, dirty.x, dirty.y, dirty.width, dirty.height);
}

void X11KeyRowRenderer::composite(xcb_connection_t *c, const Placement &placement,
                                  std::uint32_t source, std::uint32_t target)
{
    xcb_render_composite(c, XCB_RENDER_PICT_OP_OVER, source, placement.mask, target,
                         static_cast<int16_t>(placement.sourceOrigin.x()),
                         static_cast<int16_t>(placement.sourceOrigin.y()), 0, 0,
                         static_cast<int16_t>(placement.target.x()),
                         static_cast<int16_t>(placement.target.y()),
                         static_cast<uint16_t>(placement.target.width()),
                         static_cast<uint16_t>(placement.target.height()));
}

void X11KeyRowRenderer::queueFrame(const Frame &frame)
{
    if (frame.dirty.isEmpty())
        return;
    xcb_connection_t *const c = m_timed;
    const xcb_rectangle_t dirty = rectangle(frame.dirty);
    const xcb_render_color_t transparent{0, 0, 0, 0};
    xcb_render_fill_rectangles(c, XCB_RENDER_PICT_OP_SRC, m_run.target, transparent, 1, &dirty);
    for (const Placement &placement : frame.placements) {
        std::uint32_t source = placement.source.picture;
        if (placement.sx != 1.0 || placement.sy != 1.0) {
            // Scaled through a picture of this run's own (or a run's own image): no frame of
            // another run sees this transform.
            if (placement.shared)
                source = m_run.scaledViews.at(placement.source.picture);
            xcb_render_set_picture_transform(
                c, source, scaling(placement.sx, placement.sy, placement.source.inked.topLeft()));
        }
        composite(c, placement, source, m_run.target);
    }
    if (m_run.shape) {
        xcb_render_composite(c, XCB_RENDER_PICT_OP_SRC, m_run.target, XCB_NONE, m_run.shapeTarget,
                             dirty.x, dirty.y, 0, 0, int16_t(dirty.x - m_run.shapeOrigin.x()),
                             int16_t(dirty.y - m_run.shapeOrigin.y()), dirty.width, dirty.height);
        xcb_shape_mask(c, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, m_window,
                       int16_t(m_run.shapeOrigin.x()), int16_t(m_run.shapeOrigin.y()), m_run.shape);
    }
    xcb_copy_area(c, m_buffer, m_window, m_run.copier, dirty.x, dirty.y, dirty.x, dirty.y,
                  dirty.width, dirty.height);
}

void X11KeyRowRenderer::cancelRun()
{
    freeRun(m_cancelled);
    if (m_run.queued) {
        // Its waiting frames draw into empty clips and cannot set the shape from a freed pixmap.
        xcb_render_set_picture_clip_rectangles(m_control, m_run.target, 0, 0, 0, nullptr);
        if (m_run.shapeTarget)
            xcb_render_set_picture_clip_rectangles(m_control, m_run.shapeTarget, 0, 0, 0, nullptr);
        xcb_set_clip_rectangles(m_control, XCB_CLIP_ORDERING_UNSORTED, m_run.copier, 0, 0, 0,
                                nullptr);
    }
    if (m_run.shape)
        xcb_free_pixmap(m_control, m_run.shape);
    m_run.shape = 0;
    m_cancelled = std::move(m_run);
    m_run = {};
}

void X11KeyRowRenderer::freeRun(Run &run)
{
    if (run.target)
        xcb_render_free_picture(m_control, run.target);
    if (run.copier)
        xcb_free_gc(m_control, run.copier);
    if (run.shape)
        xcb_free_pixmap(m_control, run.shape);
    if (run.shapeTarget)
        xcb_render_free_picture(m_control, run.shapeTarget);
    for (const auto &[picture, view] : run.scaledViews)
        xcb_render_free_picture(m_control, view);
    for (const std::uint32_t picture : run.pictures)
        xcb_render_free_picture(m_control, picture);
    run = {};
}
std::uint32_t X11KeyRowRenderer::scaledView(const Picture &picture)
{
    auto [entry, inserted] = m_run.scaledViews.try_emplace(picture.picture, 0);
    if (inserted) {
        entry->second = xcb_generate_id(m_control);
        xcb_render_create_picture(m_control, entry->second, picture.pixmap, m_argbFormat, 0,
                                  nullptr);
    }
    return entry->second;
}

std::int64_t X11KeyRowRenderer::serverTime(double sceneTime, double sceneNow,
                                           double monotonicNow) const
{
    return std::llround(monotonicNow + (sceneTime - sceneNow) * 1000.0 + m_serverClockOffset);
}

void X11KeyRowRenderer::calibrateServerClock()
{
    const double before = monotonicMilliseconds();
    const auto reply = owned(xcb_sync_query_counter_reply(
        m_control, xcb_sync_query_counter(m_control, m_serverTimeCounter), nullptr));
    const double after = monotonicMilliseconds();
    if (!reply)
        return;
    const std::int64_t value =
        (std::int64_t(reply->counter_value.hi) << 32) | std::int64_t(reply->counter_value.lo);
    m_serverClockOffset = double(value) - (before + after) / 2.0;
    m_calibratedAt = after / 1000.0;
}

void X11KeyRowRenderer::resizeBuffers(const QSize &pixels)
{
    freeBuffers();
    m_bufferSize = pixels;
    const auto width = static_cast<uint16_t>(pixels.width());
    const auto height = static_cast<uint16_t>(pixels.height());
    m_buffer = xcb_generate_id(m_control);
    xcb_create_pixmap(m_control, 32, m_buffer, m_window, width, height);
    m_bufferPicture = xcb_generate_id(m_control);
    xcb_render_create_picture(m_control, m_bufferPicture, m_buffer, m_argbFormat, 0, nullptr);
    const xcb_render_color_t transparent{0, 0, 0, 0};
    const xcb_rectangle_t all{0, 0, width, height};
    xcb_render_fill_rectangles(m_control, XCB_RENDER_PICT_OP_SRC, m_bufferPicture, transparent, 1,
                               &all);
    xcb_change_window_attributes(m_control, m_window, XCB_CW_BACK_PIXMAP, &m_buffer);
}

void X11KeyRowRenderer::freeBuffers()
{
    if (!m_buffer)
        return;
    xcb_render_free_picture(m_control, m_bufferPicture);
    xcb_free_pixmap(m_control, m_buffer);
    m_buffer = m_bufferPicture = 0;
}

X11KeyRowRenderer::Picture X11KeyRowRenderer::pictureFor(const QImage &image, bool transient)
{
    if (transient) {
        const Picture picture = upload(m_opaque ? opaqueCopy(image) : image);
        if (picture.picture) {
            m_run.pictures.push_back(picture.picture);
            xcb_free_pixmap(m_control, picture.pixmap); // the picture keeps it
        }
        return picture;
    }
    const qint64 key = image.cacheKey();
    if (const auto found = m_pictures.find(key); found != m_pictures.end()) {
        found->second.lastUse = ++m_useCounter;
        return found->second;
    }
    Picture entry = upload(m_opaque ? opaqueCopy(image) : image);
    entry.bytes = image.sizeInBytes();
    entry.lastUse = ++m_useCounter;
    m_pictures.emplace(key, entry);
    m_pictureBytes += entry.bytes;
    while (m_pictureBytes > pictureBudget) {
        // Images the queued frames draw are kept.
        const auto oldest = std::min_element(
            m_pictures.begin(), m_pictures.end(),
            [](const auto &a, const auto &b) { return a.second.lastUse < b.second.lastUse; });
        if (oldest->second.lastUse >= m_runFirstUse)
            break;
        m_pictureBytes -= oldest->second.bytes;
        freePicture(oldest->second);
        m_pictures.erase(oldest);
    }
    return entry;
}

void X11KeyRowRenderer::freePicture(const Picture &picture)
{
    if (!picture.picture)
        return;
    xcb_render_free_picture(m_control, picture.picture);
    xcb_free_pixmap(m_control, picture.pixmap);
}

X11KeyRowRenderer::Picture X11KeyRowRenderer::upload(const QImage &source)
{
    const QImage converted = source.format() == QImage::Format_ARGB32_Premultiplied
                                 ? source
                                 : source.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    // Only the inked part goes to the server: transparent margins (room for shadows and glows
    // that are not there, or are dropped without a compositor) would be drawn over for nothing.
    int left = converted.width(), right = -1, top = converted.height(), bottom = -1;
    for (int y = 0; y < converted.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(converted.constScanLine(y));
        for (int x = 0; x < converted.width(); ++x)
            if (qAlpha(line[x])) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
    }
    Picture result;
    if (right < 0)
        return result;
    result.inked = QRect(QPoint(left, top), QPoint(right, bottom));
    const QImage image = converted.copy(result.inked);
    const auto width = static_cast<uint16_t>(image.width());
    const auto height = static_cast<uint16_t>(image.height());
    result.pixmap = xcb_generate_id(m_control);
    xcb_create_pixmap(m_control, 32, result.pixmap, m_window, width, height);
    const uint32_t gc = xcb_generate_id(m_control);
    xcb_create_gc(m_control, gc, result.pixmap, 0, nullptr);
    const int stride = width * 4;
    const int rowsPerRequest = std::max(1, uploadBytesPerRequest / std::max(1, stride));
    for (int y = 0; y < height; y += rowsPerRequest) {
        // Rows of 32-bit pixels are packed as the protocol wants them.
        const int rows = std::min(rowsPerRequest, height - y);
        xcb_put_image(m_control, XCB_IMAGE_FORMAT_Z_PIXMAP, result.pixmap, gc, width,
                      static_cast<uint16_t>(rows), 0, static_cast<int16_t>(y), 0, 32,
                      static_cast<uint32_t>(rows * stride), image.constScanLine(y));
    }
    xcb_free_gc(m_control, gc);
    result.picture = xcb_generate_id(m_control);
    xcb_render_create_picture(m_control, result.picture, result.pixmap, m_argbFormat, 0, nullptr);
    return result;
}

std::uint32_t X11KeyRowRenderer::opacityMask(double opacity)
{
    const int alpha = std::clamp(static_cast<int>(std::lround(opacity * 255.0)), 0, 255);
    if (const auto found = m_opacityMasks.find(alpha); found != m_opacityMasks.end())
        return found->second;
    const uint32_t picture = xcb_generate_id(m_control);
    const auto value = static_cast<uint16_t>(alpha * 257);
    xcb_render_create_solid_fill(m_control, picture, xcb_render_color_t{0, 0, 0, value});
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
        freePicture(entry);
    m_pictures.clear();
    m_pictureBytes = 0;
}

void X11KeyRowRenderer::drainEvents()
{
    // Only errors arrive (frames of replaced runs, a window closed meanwhile), of no use.
    for (xcb_connection_t *c : {m_control, m_timed})
        while (xcb_generic_event_t *event = xcb_poll_for_event(c))
            std::free(event);
}
