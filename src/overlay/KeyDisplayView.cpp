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

QPointF lerp(const QPointF &from, const QPointF &to, double t)
{
    return from + (to - from) * t;
}

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
    enum class Phase { inserting, shown, removing };

    std::unique_ptr<KeyView> view;
    Phase phase = Phase::shown;
    double phaseStart = 0.0;
    KeyAnimationStyle transition = KeyAnimationStyle::none;
    AnimationTiming transitionTiming = AnimationTiming::easeInOut(0.0);
    // How far a sliding key travels from the leading edge, or towards the trailing edge.
    double slideDistance = 0.0;

    // The centre moves from `from` to `to`; a new key is placed without moving.
    bool placed = false;
    QPointF from;
    QPointF to;
    double moveStart = 0.0;
    AnimationTiming moveTiming = AnimationTiming::easeInOut(0.0);

    // What the latest frame drew, to repaint only caps that changed.
    QRect drawnRect;
    double drawnOpacity = -1.0;
    double drawnScale = -1.0;
    QSizeF drawnSize;
};

struct KeyDisplayView::Look {
    double opacity = 1.0;
    double scale = 1.0;
    QPointF offset;
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
        if (item->phase != Item::Phase::removing)
            before.append(item->view->keyPress());

    std::vector<std::unique_ptr<Item>> removing;
    std::vector<std::unique_ptr<Item>> kept;
    for (auto &item : m_items) {
        const bool stays =
            item->phase != Item::Phase::removing && wanted.contains(item->view->keyPress().id);
        if (stays) {
            kept.push_back(std::move(item));
            continue;
        }
        if (item->phase != Item::Phase::removing) {
            if (style == KeyAnimationStyle::none) {
                m_lostRegion += item->drawnRect;
                continue; // gone at once
            }
            const QPointF center = centerOf(*item);
            item->from = item->to = center;
            item->phase = Item::Phase::removing;
            item->phaseStart = time;
            item->transition = style;
            item->transitionTiming = timing;
            const double left = center.x() - item->view->size().width() / 2.0;
            item->slideDistance = std::max(0.0, box.right() - left);
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
            (*it)->moveTiming = timing;
            shown.push_back(std::move(*it));
            continue;
        }
        auto item = std::make_unique<Item>();
        item->view = std::make_unique<KeyView>(key, keySize, m_settings);
        item->phase =
            style == KeyAnimationStyle::none ? Item::Phase::shown : Item::Phase::inserting;
        item->phaseStart = time;
        item->transition = style;
        item->transitionTiming = timing;
        item->moveTiming = timing;
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
    for (Item *item : added) {
        const double right = item->to.x() + item->view->size().width() / 2.0;
        item->slideDistance = std::max(0.0, right - box.left());
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
        if (item->phase == Item::Phase::removing)
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
        if (item->phase != Item::Phase::removing)
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
        if (!animated || !item->placed) {
            item->from = item->to = target;
            item->placed = true;
            continue;
        }
        if (target == item->to)
            continue;
        item->from = centerOf(*item);
        item->to = target;
        item->moveStart = m_frameTime;
    }
    if (!animated) {
        // Moves in flight end where they were heading.
        for (auto &item : m_items)
            item->from = item->to;
        m_allDirty = true;
    }
}

QPointF KeyDisplayView::centerOf(const Item &item) const
{
    if (item.from == item.to)
        return item.to;
    return lerp(item.from, item.to, item.moveTiming.value(m_frameTime - item.moveStart));
}

KeyDisplayView::Look KeyDisplayView::lookOf(const Item &item) const
{
    Look look;
    if (item.phase == Item::Phase::shown)
        return look;
    const double value = item.transitionTiming.value(m_frameTime - item.phaseStart);
    const bool inserting = item.phase == Item::Phase::inserting;
    // How much of the key is there: 1 when fully shown (a spring may overshoot it).
    const double p = inserting ? value : 1.0 - value;
    const double opacity = std::clamp(p, 0.0, 1.0);
    switch (item.transition) {
    case KeyAnimationStyle::none:
        break;
    case KeyAnimationStyle::fadeIn:
        look.opacity = opacity;
        look.scale = 0.8 + 0.2 * p;
        break;
    case KeyAnimationStyle::scaleIn:
        look.scale = 0.1 + 0.9 * p;
        break;
    case KeyAnimationStyle::slideIn:
        look.opacity = opacity;
        look.offset.setX(inserting ? -(1.0 - p) * item.slideDistance
                                   : (1.0 - p) * item.slideDistance);
        break;
    case KeyAnimationStyle::bounce:
        look.opacity = opacity;
        look.scale = 0.5 + 0.5 * p;
        break;
    }
    look.scale = std::max(0.0, look.scale);
    return look;
}

QRectF KeyDisplayView::visualRectOf(const Item &item) const
{
    const Look look = lookOf(item);
    const QSizeF size = item.view->size(m_frameTime) * look.scale;
    const QPointF center = centerOf(item) + look.offset;
    const QRectF frame(center.x() - size.width() / 2.0, center.y() - size.height() / 2.0,
                       size.width(), size.height());
    const QMarginsF margins = item.view->visualMargins();
    return frame.marginsAdded(margins * look.scale);
}

QList<QRectF> KeyDisplayView::keyFrames() const
{
    QList<QRectF> frames;
    for (const auto &item : m_items) {
        if (item->phase == Item::Phase::removing)
            continue;
        const QSizeF size = item->view->size(m_frameTime);
        const QPointF center = centerOf(*item);
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
        const double elapsed = m_frameTime - item.phaseStart;
        if (item.phase != Item::Phase::shown && item.transitionTiming.isFinished(elapsed)) {
            if (item.phase == Item::Phase::removing) {
                m_lostRegion += item.drawnRect;
                it = m_items.erase(it);
                continue;
            }
            item.phase = Item::Phase::shown;
        }
        if (item.from != item.to && item.moveTiming.isFinished(m_frameTime - item.moveStart))
            item.from = item.to;
        moving = moving || item.phase != Item::Phase::shown || item.from != item.to ||
                 item.view->isAnimating(m_frameTime);
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
        const Look look = lookOf(*item);
        const QRect rect = visualRectOf(*item).toAlignedRect();
        const QSizeF size = item->view->size(m_frameTime);
        region += rect;
        // A cap drawn as before needs no repaint (one that changes repaints where it was too).
        if (m_allDirty || rect != item->drawnRect || look.opacity != item->drawnOpacity ||
            look.scale != item->drawnScale || size != item->drawnSize ||
            item->view->isAnimating(m_frameTime)) {
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
    if (!dirty.isEmpty())
        emit updateRequested(dirty);

    if (moving)
        scheduleNextFrame();
    else
        m_frameTimer.stop();
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
    const double rowOpacity =
        m_opaque ? 1.0 : std::clamp(m_settings.value(AppSettings::keyOpacity), 0.0, 1.0);
    for (const auto &item : m_items) {
        if (!exposed.isNull() && !visualRectOf(*item).toAlignedRect().intersects(exposed))
            continue;
        Look look = lookOf(*item);
        // A window that cannot blend cannot fade either: its caps show whole from the first
        // frame, moving and scaling as they would otherwise.
        if (m_opaque)
            look.opacity = 1.0;
        const double opacity = rowOpacity * look.opacity;
        if (opacity <= 0.0 || look.scale <= 0.0)
            continue;
        painter.save();
        painter.translate(centerOf(*item) + look.offset);
        if (look.scale != 1.0)
            painter.scale(look.scale, look.scale);
        if (look.opacity == 1.0) {
            // Resting or sliding: the row's opacity is baked into the cached cap.
            item->view->paint(painter, QPointF(0.0, 0.0), m_frameTime, rowOpacity);
        } else {
            painter.setOpacity(painter.opacity() * opacity);
            item->view->paint(painter, QPointF(0.0, 0.0), m_frameTime);
        }
        painter.restore();
    }
}
