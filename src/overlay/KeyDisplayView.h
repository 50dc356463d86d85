#pragma once

#include "capture/KeyPress.h"
#include "overlay/AnimationTiming.h"
#include "overlay/KeyMotion.h"
#include "overlay/KeyRowScene.h"
#include "settings/AppSettings.h"
#include "settings/DisplayConfiguration.h"

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QRectF>
#include <QRegion>
#include <QSize>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class KeyView;
class QPainter;
class SettingsStore;

// The row of key caps on one display, laid out in a window of the given size and painted on
// request. Not a widget: the window hosting it forwards its paint events and repaints the
// regions this view asks for.
//
// Keys are shown in display order (modifiers first, then oldest first). The row sits at one of
// six anchored places, 40 from the window's left or right edge and 20 from its top or bottom, or
// for a custom position is centred at fractions of the window (a compact row, no clamping).
// Keys come, go and move with the chosen animation style; a removed key keeps being drawn until
// its removal has played. Changes of settings (look, size, spacing, opacity) show at once.
//
// Frames are produced only while something moves, at the display's refresh rate (30 to 60 a
// second): a still row runs no timer and asks for no repaint. Each frame asks to repaint only
// the caps whose drawing changed.
class KeyDisplayView final : public QObject {
    Q_OBJECT

public:
    // Seconds on a monotonic clock.
    using Clock = std::function<double()>;

    explicit KeyDisplayView(SettingsStore &settings, QObject *parent = nullptr);
    ~KeyDisplayView() override;

    // The keys on show now, in any order (the current list of the key manager).
    void setKeys(const QList<KeyPress> &keys);
    // The display's stored configuration, or none for a display without one.
    void setConfiguration(const std::optional<DisplayConfiguration> &configuration);
    void setSize(const QSize &size);
    // Draws the caps at full opacity whatever "keyOpacity" and fades say: for windows that
    // cannot blend (no compositor).
    void setOpaque(bool opaque);
    // The display's refresh rate in hertz (0 when unknown); frames follow it within 30 to 60 a
    // second.
    void setRefreshRate(double hertz);

    // Where the row can be drawn now and while it animates, shadows and glows included: a band
    // across the whole width, clipped to the window. Empty before a size is known.
    QRect drawingArea() const { return m_drawingArea; }

    QSize size() const { return m_size; }
    AppSettings::KeyPosition position() const;

    // Paints the row as of the latest frame; the second form only the caps touching `exposed`.
    void paint(QPainter &painter) const;
    void paint(QPainter &painter, const QRect &exposed) const;
    // The area the caps cover now, shadows and glows included; empty when nothing shows.
    QRegion contentRegion() const { return m_contentRegion; }
    // The caps' frames as of the latest frame, in display order, keys being removed excluded.
    QList<QRectF> keyFrames() const;
    bool isAnimating() const { return m_frameTimer.isActive(); }
    // Whether any cap is on show now (keys being removed included until their removal ends).
    bool isShowingKeys() const;

    // Leaves frames to a renderer of its own (KeyRowRenderer): the view then runs no frame timer
    // and announces each change of the row with sceneChanged() instead.
    void setFramesDrawnByRenderer(bool renderer);
    // The row as of now for a renderer; the caller fills in the window's part.
    std::shared_ptr<KeyRowScene> scene() const;

    // Computes the frame for the clock's current time and asks for the repaint it needs. The
    // frame timer calls this while anything moves.
    void updateFrame();
    // Replaces the clock (by default the time since construction).
    void setClock(Clock clock);

signals:
    // The part of the window that needs repainting.
    void updateRequested(const QRegion &region);
    void contentRegionChanged(const QRegion &region);
    void drawingAreaChanged(const QRect &area);
    // The row changed (keys, places or look): a renderer needs a new scene().
    void sceneChanged();

private:
    struct Item;

    double now() const;
    void onSettingChanged(const QString &key);
    // Places every key at its target; animated moves start from where keys are now.
    void layout(bool animated);
    QRectF container() const;
    // The row's opacity setting, or 1 where caps are drawn opaque.
    double rowOpacity() const;
    bool advance();
    void publishFrame();
    void scheduleNextFrame();
    void updateDrawingArea(const QRect &content);
    double frameInterval() const;
    // The height of a resting cap of the current look with its shadow and glow.
    double referenceExtent();

    SettingsStore &m_settings;
    std::optional<DisplayConfiguration> m_configuration;
    QSize m_size;
    std::vector<std::unique_ptr<Item>> m_items;
    QTimer m_frameTimer;
    QElapsedTimer m_elapsed;
    Clock m_clock;
    double m_frameTime = 0.0;
    QRegion m_contentRegion;
    QRect m_drawingArea;
    // Every cap is repainted on the next frame (a change of look or place).
    bool m_allDirty = true;
    bool m_opaque = false;
    double m_refreshRate = 0.0;
    double m_nextFrameDue = 0.0;
    bool m_timedFrame = false;
    double m_referenceExtent = -1.0;
    QRegion m_lostRegion;
    bool m_framesDrawnByRenderer = false;
    // The latest change only removed or reordered keys: it can wait for the next frame.
    bool m_changeCanWait = false;
    quint64 m_lookGeneration = 0;
};
