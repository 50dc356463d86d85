#pragma once

#include "capture/KeyPress.h"
#include "overlay/AnimationTiming.h"
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
// Frames are produced only while something moves: a still row runs no timer and asks for no
// repaint.
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
    // Draws the caps at full opacity whatever "keyOpacity" says: for windows that cannot blend
    // (no compositor).
    void setOpaque(bool opaque);

    QSize size() const { return m_size; }
    AppSettings::KeyPosition position() const;

    // Paints the row as of the latest frame.
    void paint(QPainter &painter) const;
    // The area the caps cover now, shadows and glows included; empty when nothing shows.
    QRegion contentRegion() const { return m_contentRegion; }
    // The caps' frames as of the latest frame, in display order, keys being removed excluded.
    QList<QRectF> keyFrames() const;
    bool isAnimating() const { return m_frameTimer.isActive(); }

    // Computes the frame for the clock's current time and asks for the repaint it needs. The
    // frame timer calls this while anything moves.
    void updateFrame();
    // Replaces the clock (by default the time since construction).
    void setClock(Clock clock);

signals:
    // The part of the window that needs repainting.
    void updateRequested(const QRegion &region);
    void contentRegionChanged(const QRegion &region);

private:
    struct Item;
    struct Look;

    double now() const;
    void onSettingChanged(const QString &key);
    // Places every key at its target; animated moves start from where keys are now.
    void layout(bool animated);
    QRectF container() const;
    Look lookOf(const Item &item) const;
    QRectF visualRectOf(const Item &item) const;
    QPointF centerOf(const Item &item) const;
    bool advance();
    void publishFrame();

    SettingsStore &m_settings;
    std::optional<DisplayConfiguration> m_configuration;
    QSize m_size;
    std::vector<std::unique_ptr<Item>> m_items;
    QTimer m_frameTimer;
    QElapsedTimer m_elapsed;
    Clock m_clock;
    double m_frameTime = 0.0;
    QRegion m_contentRegion;
    bool m_opaque = false;
};
