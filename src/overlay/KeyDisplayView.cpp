#include "overlay/KeyDisplayView.h"

#include "capture/KeyDisplayOrder.h"
#include "overlay/KeyEffectCache.h"
#include "overlay/KeyView.h"
#include "settings/SettingsStore.h"

#include <QPainter>
#include <QSet>

#include <algorithm>
#include <cmath>

using KeyAnimationStyle = AppSettings::KeyAnimationStyle;
using KeyPosition = AppSettings::KeyPosition;

namespace {
// Distances of an anchored row from the window's edges.
constexpr double horizontalMargin = 40.0;
constexpr double verticalMargin = 20.0;
// The compact row of a custom position: only as wide as its keys plus this padding.
constexpr double compactHorizontalPadding = 20.0;
// Where a custom row sits on a display without a stored configuration.
constexpr double defaultCustomX = 0.5;
constexpr double defaultCustomY = 0.85;
// Frame rates: the display's, within these bounds; 60 when the display does not say.
constexpr double lowestFrameRate = 30.0;
constexpr double highestFrameRate = 60.0;
// Room in the drawing area beyond a resting cap: springs overshoot by some 8 %, plus slack.
constexpr double drawingAreaGrowth = 1.25;
constexpr double drawingAreaSlack = 8.0;

// The settings whose change alters how the row looks or where its keys sit.
const QSet<QString> &observedKeys()
{
    static const QSet<QString> keys = [] {
        QSet<QString> result;
        for (const QString &key : AppSettings::appearanceSettingsKeys())
            result.insert(key);
        return result;
    }();
    return keys;
}
} // namespace

struct KeyDisplayView::Item {
    std::unique_ptr<KeyView> view;
    KeyMotion motion;

    // What the latest frame drew, to repaint only caps that changed.
    QRect drawnRect;
    double drawnOpacity = -1.0;
    double drawnScale = -1.0;
    QSizeF drawnSize;
};

KeyDisplayView::KeyDisplayView(SettingsStore &settings, QObject *parent)
    : QObject(parent), m_settings(settings)
{
    m_elapsed.start();
    m_frameTimer.setParent(this);
    m_frameTimer.setSingleShot(true);
    m_frameTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_frameTimer, &QTimer::timeout, this, [this] {
        m_timedFrame = true;
        updateFrame();
        m_timedFrame = false;
    });
    connect(&m_settings, &SettingsStore::valueChanged, this, &KeyDisplayView::onSettingChanged);
}

KeyDisplayView::~KeyDisplayView() = default;

double KeyDisplayView::now() const
{
    return m_clock ? m_clock() : static_cast<double>(m_elapsed.nsecsElapsed()) / 1e9;
}

void KeyDisplayView::setClock(Clock clock)
{
    m_clock = std::move(clock);
    m_frameTime = now();
}

KeyPosition KeyDisplayView::position() const
{
    return m_configuration ? m_configuration->position : AppSettings::shared().keyPosition;
}

void KeyDisplayView::setKeys(const QList<KeyPress> &keys)
{
    const double time = now();
    m_frameTime = time;
    advance(); // settle what has finished, so positions below are current

    const QList<KeyPress> sorted = KeyDisplayOrder::sorted(keys);
    const KeyAnimationStyle style = m_settings.value(AppSettings::keyAnimationStyle);
    const AnimationTiming timing = AnimationTiming::forKeyList(style);
    const double keySize = m_settings.value(AppSettings::keySize);
    const QRectF box = container();

    QSet<QUuid> wanted;
    for (const KeyPress &key : sorted)
        wanted.insert(key.id);

    QList<KeyPress> before;
    for (const auto &item : m_items)
        if (item->motion.phase != KeyMotion::Phase::removing)
            before.append(item->view->keyPress());

    std::vector<std::unique_ptr<Item>> removing;
    std::vector<std::unique_ptr<Item>> kept;
    for (auto &item : m_items) {
        const bool stays = item->motion.phase != KeyMotion::Phase::removing &&
                           wanted.contains(item->view->keyPress().id);
        if (stays) {
            kept.push_back(std::move(item));
            continue;
        }
        if (item->motion.phase != KeyMotion::Phase::removing) {
            // Gone at once. So is a cap of a view with no size yet (a window not yet fitted to
            // its display): it was never shown, and leaving from where it was laid out, outside
            // the display, it would stretch the drawing area over the whole display.
            if (style == KeyAnimationStyle::none || m_size.isEmpty()) {
                m_lostRegion += item->drawnRect;
                continue;
            }
            const QPointF center = item->motion.center(m_frameTime);
            item->motion.from = item->motion.to = center;
            item->motion.phase = KeyMotion::Phase::removing;
            item->motion.phaseStart = time;
            item->motion.transition = style;
            item->motion.transitionTiming = timing;
            const double left = center.x() - item->view->size().width() / 2.0;
            item->motion.slideDistance = std::max(0.0, box.right() - left);
        }
        removing.push_back(std::move(item));
    }

    std::vector<std::unique_ptr<Item>> shown;
    std::vector<Item *> added;
    for (const KeyPress &key : sorted) {
        auto it = std::find_if(kept.begin(), kept.end(), [&](const auto &item) {
            return item && item->view->keyPress().id == key.id;
        });
        if (it != kept.end()) {
            (*it)->view->setKeyPress(key, time);
            (*it)->motion.moveTiming = timing;
            shown.push_back(std::move(*it));
            continue;
        }
        auto item = std::make_unique<Item>();
        item->view = std::make_unique<KeyView>(key, keySize, m_settings);
        item->motion.phase = style == KeyAnimationStyle::none ? KeyMotion::Phase::shown
                                                              : KeyMotion::Phase::inserting;
        item->motion.phaseStart = time;
        item->motion.transition = style;
        item->motion.transitionTiming = timing;
        item->motion.moveTiming = timing;
        added.push_back(item.get());
        shown.push_back(std::move(item));
    }

    // Keys being removed are drawn beneath the others.
    m_items = std::move(removing);
    for (auto &item : shown)
        m_items.push_back(std::move(item));
    if (before == sorted)
        return;

    // New keys appear where they belong; the others move there.
    layout(true);
    m_changeCanWait = added.empty();
    for (Item *item : added) {
        const double right = item->motion.to.x() + item->view->size().width() / 2.0;
        item->motion.slideDistance = std::max(0.0, right - box.left());
    }
    publishFrame();
}

void KeyDisplayView::setConfiguration(const std::optional<DisplayConfiguration> &configuration)
{
    if (configuration == m_configuration)
        return;
    m_configuration = configuration;
    m_frameTime = now();
    layout(false); // a new place shows at once
    publishFrame();
}

void KeyDisplayView::setSize(const QSize &size)
{
    if (size == m_size)
        return;
    m_size = size;
    m_frameTime = now();
    layout(false);
    publishFrame();
}

void KeyDisplayView::setOpaque(bool opaque)
{
    if (opaque == m_opaque)
        return;
    m_opaque = opaque;
    emit updateRequested(m_contentRegion);
    if (m_framesDrawnByRenderer)
        emit sceneChanged();
}

void KeyDisplayView::setRefreshRate(double hertz)
{
    m_refreshRate = hertz;
}

double KeyDisplayView::frameInterval() const
{
    const double rate = m_refreshRate > 0.0
                            ? std::clamp(m_refreshRate, lowestFrameRate, highestFrameRate)
                            : highestFrameRate;
    return 1.0 / rate;
}

void KeyDisplayView::onSettingChanged(const QString &key)
{
    if (!observedKeys().contains(key))
        return;
    // Cached shadows and glows of the old look are of no further use.
    KeyEffectCache::shared().clear();
    ++m_lookGeneration;
    m_referenceExtent = -1.0;
    m_allDirty = true;
    m_frameTime = now();
    const double keySize = m_settings.value(AppSettings::keySize);
    for (auto &item : m_items) {
        item->view->setKeySize(keySize);
        item->view->refresh();
    }
    layout(false);
    publishFrame();
}

QRectF KeyDisplayView::container() const
{
    if (position() != KeyPosition::custom)
        return QRectF(horizontalMargin, 0.0, m_size.width() - 2.0 * horizontalMargin,
                      m_size.height());
    // The compact row: its keys plus padding, centred on its point.
    double width = 0.0;
    int count = 0;
    for (const auto &item : m_items) {
        if (item->motion.phase == KeyMotion::Phase::removing)
            continue;
        width += item->view->size().width();
        ++count;
    }
    width += std::max(0, count - 1) * m_settings.value(AppSettings::keySpacing) * 0.5;
    const double fx = m_configuration ? m_configuration->customOffsetX : defaultCustomX;
    const double cx = fx * m_size.width();
    return QRectF(cx - width / 2.0 - compactHorizontalPadding, 0.0,
                  width + 2.0 * compactHorizontalPadding, m_size.height());
}

void KeyDisplayView::layout(bool animated)
{
    std::vector<Item *> row;
    for (auto &item : m_items)
        if (item->motion.phase != KeyMotion::Phase::removing)
            row.push_back(item.get());

    const double spacing = m_settings.value(AppSettings::keySpacing) * 0.5;
    double rowWidth = 0.0;
    double rowHeight = 0.0;
    for (const Item *item : row) {
        rowWidth += item->view->size().width();
        rowHeight = std::max(rowHeight, item->view->size().height());
    }
    rowWidth += spacing * std::max<double>(0.0, static_cast<double>(row.size()) - 1.0);

    const double width = m_size.width();
    const double height = m_size.height();
    double left = 0.0;
    double centerY = 0.0;
    switch (position()) {
    case KeyPosition::topLeft:
    case KeyPosition::bottomLeft:
        left = horizontalMargin;
        break;
    case KeyPosition::topCenter:
    case KeyPosition::bottomCenter:
        left = (width - rowWidth) / 2.0;
        break;
    case KeyPosition::topRight:
    case KeyPosition::bottomRight:
        left = width - horizontalMargin - rowWidth;
        break;
    case KeyPosition::custom: {
        const double fx = m_configuration ? m_configuration->customOffsetX : defaultCustomX;
        const double fy = m_configuration ? m_configuration->customOffsetY : defaultCustomY;
        left = fx * width - rowWidth / 2.0;
        centerY = fy * height;
        break;
    }
    }
    switch (position()) {
    case KeyPosition::topLeft:
    case KeyPosition::topCenter:
    case KeyPosition::topRight:
        centerY = verticalMargin + rowHeight / 2.0;
        break;
    case KeyPosition::bottomLeft:
    case KeyPosition::bottomCenter:
    case KeyPosition::bottomRight:
        centerY = height - verticalMargin - rowHeight / 2.0;
        break;
    case KeyPosition::custom:
        break;
    }

    double x = left;
    for (Item *item : row) {
        const double w = item->view->size().width();
        const QPointF target(x + w / 2.0, centerY);
        x += w + spacing;
        if (!animated || !item->motion.placed) {
            item->motion.from = item->motion.to = target;
            item->motion.placed = true;
            continue;
        }
        if (target == item->motion.to)
            continue;
        item->motion.from = item->motion.center(m_frameTime);
        item->motion.to = target;
        item->motion.moveStart = m_frameTime;
    }
    if (!animated) {
        // Moves in flight end where they were heading.
        for (auto &item : m_items)
            item->motion.from = item->motion.to;
        m_allDirty = true;
    }
}

QList<QRectF> KeyDisplayView::keyFrames() const
{
    QList<QRectF> frames;
    for (const auto &item : m_items) {
        if (item->motion.phase == KeyMotion::Phase::removing)
            continue;
        const QSizeF size = item->view->size(m_frameTime);
        const QPointF center = item->motion.center(m_frameTime);
        frames.append(QRectF(center.x() - size.width() / 2.0, center.y() - size.height() / 2.0,
                             size.width(), size.height()));
    }
    return frames;
}

bool KeyDisplayView::advance()
{
    bool moving = false;
    for (auto it = m_items.begin(); it != m_items.end();) {
        Item &item = **it;
        KeyMotion &motion = item.motion;
        if (motion.isGone(m_frameTime)) {
            m_lostRegion += item.drawnRect;
            it = m_items.erase(it);
            continue;
        }
        if (motion.phase != KeyMotion::Phase::shown &&
            motion.transitionTiming.isFinished(m_frameTime - motion.phaseStart))
            motion.phase = KeyMotion::Phase::shown;
        if (motion.from != motion.to &&
            motion.moveTiming.isFinished(m_frameTime - motion.moveStart))
            motion.from = motion.to;
        moving = moving || motion.isMoving(*item.view, m_frameTime);
        ++it;
    }
    return moving;
}

void KeyDisplayView::updateFrame()
{
    m_frameTime = now();
    publishFrame();
}

void KeyDisplayView::publishFrame()
{
    const bool moving = advance();
    QRegion region;
    QRegion dirty = m_lostRegion;
    m_lostRegion = QRegion();
    for (const auto &item : m_items) {
        const KeyMotion::Look look = item->motion.look(m_frameTime);
        const QRect rect = item->motion.visualRect(*item->view, m_frameTime).toAlignedRect();
        const QSizeF size = item->view->size(m_frameTime);
        region += rect;
        // A cap drawn as before needs no repaint (one that changes repaints where it was too).
        // A renderer works the changes out itself.
        if (!m_framesDrawnByRenderer &&
            (m_allDirty || rect != item->drawnRect || look.opacity != item->drawnOpacity ||
             look.scale != item->drawnScale || size != item->drawnSize ||
             item->view->isAnimating(m_frameTime))) {
            dirty += item->drawnRect;
            dirty += rect;
        }
        item->drawnRect = rect;
        item->drawnOpacity = look.opacity;
        item->drawnScale = look.scale;
        item->drawnSize = size;
    }
    if (m_allDirty)
        dirty += m_contentRegion;
    m_allDirty = false;

    const bool regionChanged = region != m_contentRegion;
    m_contentRegion = region;
    updateDrawingArea(region.boundingRect());
    if (regionChanged)
        emit contentRegionChanged(m_contentRegion);
    if (m_framesDrawnByRenderer) {
        m_frameTimer.stop();
        emit sceneChanged();
        m_changeCanWait = false;
        return;
    }
    if (!dirty.isEmpty())
        emit updateRequested(dirty);

    if (moving)
        scheduleNextFrame();
    else
        m_frameTimer.stop();
}

bool KeyDisplayView::isShowingKeys() const
{
    const double time = now();
    return std::any_of(m_items.cbegin(), m_items.cend(),
                       [time](const auto &item) { return !item->motion.isGone(time); });
}

void KeyDisplayView::setFramesDrawnByRenderer(bool renderer)
{
    m_framesDrawnByRenderer = renderer;
    if (renderer)
        m_frameTimer.stop();
}

std::shared_ptr<KeyRowScene> KeyDisplayView::scene() const
{
    auto result = std::make_shared<KeyRowScene>();
    result->caps.reserve(m_items.size());
    for (const auto &item : m_items)
        result->caps.push_back({std::make_shared<const KeyView>(*item->view), item->motion});
    result->clock = m_elapsed;
    result->frameInterval = frameInterval();
    result->rowOpacity = rowOpacity();
    result->opaque = m_opaque;
    result->lookGeneration = m_lookGeneration;
    result->urgent = !m_changeCanWait;
    return result;
}

void KeyDisplayView::scheduleNextFrame()
{
    // Frames keep a steady beat from the timer; a frame drawn early for a change of keys
    // restarts the beat, so fast typing costs no frames beyond the animation's own. A late
    // frame is not made up for by early ones.
    const double interval = frameInterval();
    const double time = now();
    double due = m_timedFrame ? m_nextFrameDue + interval : time + interval;
    if (due < time + interval / 2.0)
        due = time + interval;
    m_nextFrameDue = due;
    m_frameTimer.start(std::max(1, static_cast<int>(std::lround((due - time) * 1000.0))));
}

double KeyDisplayView::referenceExtent()
{
    if (m_referenceExtent >= 0.0)
        return m_referenceExtent;
    // A letter and a mouse click stand for every cap of the look.
    const double keySize = m_settings.value(AppSettings::keySize);
    double extent = 0.0;
    for (const KeyPress &press :
         {KeyPress{QUuid(), QStringLiteral("W"), 0, KeyCategory(KeyCategory::Kind::letter), 0.0},
          KeyPress{QUuid(), QString(), KeyPress::leftClickCode,
                   KeyCategory::mouse(MouseClickButton::left), 0.0}}) {
        const KeyView view(press, keySize, m_settings);
        const QMarginsF margins = view.visualMargins();
        extent = std::max(extent, view.size().height() + margins.top() + margins.bottom());
    }
    m_referenceExtent = extent;
    return extent;
}

void KeyDisplayView::updateDrawingArea(const QRect &content)
{
    if (m_size.isEmpty())
        return;
    double extent = referenceExtent();
    for (const auto &item : m_items) {
        const QMarginsF margins = item->view->visualMargins();
        extent = std::max(extent, item->view->size().height() + margins.top() + margins.bottom());
    }
    const double reach = drawingAreaGrowth * extent + drawingAreaSlack;
    const double height = m_size.height();
    double top = 0.0;
    double bottom = height;
    switch (position()) {
    case KeyPosition::topLeft:
    case KeyPosition::topCenter:
    case KeyPosition::topRight:
        bottom = verticalMargin + reach;
        break;
    case KeyPosition::bottomLeft:
    case KeyPosition::bottomCenter:
    case KeyPosition::bottomRight:
        top = height - verticalMargin - reach;
        break;
    case KeyPosition::custom: {
        const double fy = m_configuration ? m_configuration->customOffsetY : defaultCustomY;
        top = fy * height - reach / 2.0;
        bottom = fy * height + reach / 2.0;
        break;
    }
    }
    const QRect window(QPoint(0, 0), m_size);
    const QRect band = QRect(QPoint(0, static_cast<int>(std::floor(top))),
                             QPoint(m_size.width() - 1, static_cast<int>(std::ceil(bottom))))
                           .intersected(window);
    // Caps that reach beyond the band (a look taller than its sample) widen it while they do.
    const QRect shown = content.intersected(window);
    const QRect area = band.united(shown);
    if (area == m_drawingArea)
        return;
    m_drawingArea = area;
    emit drawingAreaChanged(area);
}

void KeyDisplayView::paint(QPainter &painter) const
{
    paint(painter, QRect());
}

void KeyDisplayView::paint(QPainter &painter, const QRect &exposed) const
{
    const double rowOpacity = this->rowOpacity();
    for (const auto &item : m_items) {
        if (!exposed.isNull() &&
            !item->motion.visualRect(*item->view, m_frameTime).toAlignedRect().intersects(exposed))
            continue;
        const KeyMotion::Drawing drawing =
            item->motion.drawing(*item->view, m_frameTime, rowOpacity, m_opaque);
        if (!drawing.isVisible())
            continue;
        painter.save();
        painter.translate(drawing.center);
        if (drawing.scale != 1.0)
            painter.scale(drawing.scale, drawing.scale);
        painter.setOpacity(painter.opacity() * drawing.drawOpacity);
        item->view->paint(painter, QPointF(0.0, 0.0), m_frameTime, drawing.imageOpacity);
        painter.restore();
    }
}

double KeyDisplayView::rowOpacity() const
{
    return m_opaque ? 1.0 : m_settings.value(AppSettings::keyOpacity);
}
