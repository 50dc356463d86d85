#pragma once

#include <QPixmap>
#include <QPointF>
#include <QPointer>
#include <QRectF>
#include <QWidget>

#include <functional>
#include <memory>

class DisplaySettingsStore;
class PositionCustomizerHeader;
class QPropertyAnimation;
class QGraphicsOpacityEffect;
class SettingsStore;
struct KeyAppearanceSnapshot;

// The content of the position customizer of one display: the dimmed desktop, a sample "⌘" cap
// in the current look that the user drags to where keys should appear, and an instructions card.
//
// Offsets are fractions of the view (the display's available area), x from the left and y from
// the top, naming the centre of the sample cap; while dragging they follow the pointer, kept
// within 0.05…0.95 across and 0.03…0.97 down. The card sits at the top edge unless the cap
// starts near the top; it moves to the other edge when the cap comes within 0.15 of its edge.
//
// A click anywhere, "Done" and Escape all save the place (the display's position becomes
// custom) and dismiss; nothing is saved while dragging, and nothing after the first save.
class PositionCustomizerView final : public QWidget {
    Q_OBJECT

public:
    static constexpr double minimumOffsetX = 0.05;
    static constexpr double maximumOffsetX = 0.95;
    static constexpr double minimumOffsetY = 0.03;
    static constexpr double maximumOffsetY = 0.97;
    // The card leaves the top edge above this offset and the bottom edge below 1 minus it.
    static constexpr double headerEdgeZone = 0.15;
    static constexpr int headerAnimationMs = 200;
    static constexpr double dimmingAlpha = 0.4;

    PositionCustomizerView(quint32 displayID, double initialOffsetX, double initialOffsetY,
                           std::function<void()> onDismiss, DisplaySettingsStore &displayStore,
                           SettingsStore &settings, QWidget *parent = nullptr);
    ~PositionCustomizerView() override;

    quint32 displayID() const { return m_displayID; }
    double initialOffsetX() const { return m_initialOffsetX; }
    double initialOffsetY() const { return m_initialOffsetY; }
    double offsetX() const { return m_offsetX; }
    double offsetY() const { return m_offsetY; }
    bool isDragging() const { return m_isDragging; }
    bool isHeaderHidden() const { return m_isHeaderHidden; }
    bool isHeaderAtTop() const { return m_isHeaderAtTop; }

    PositionCustomizerHeader *header() const { return m_header; }
    // Where the sample cap's frame is now, in view coordinates.
    QRectF sampleKeyFrame() const;

    // With a compositor the view is translucent black over the desktop. Without one it paints
    // `backdrop` (the desktop as it was when the customizer opened), dimmed the same way.
    void setCompositing(bool compositing);
    void setBackdrop(const QPixmap &backdrop);

    // The steps of a drag of the sample cap, the pointer at `location` (view coordinates).
    void dragChanged(const QPointF &location);
    void dragEnded();
    // Saves the current place and dismisses; only the first call does anything.
    void saveAndDismiss();
    void hideHeader();
    // Grabs the keyboard so that Escape arrives even where no window manager gives focus; the
    // display server refuses until the window is mapped, so it is retried briefly. Done when
    // shown; again when another customizer that held the keyboard closes.
    void takeKeyboard();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    KeyAppearanceSnapshot sampleAppearance() const;
    double sampleOpacity() const;
    // The area the sample cap paints, shadow and glow included.
    QRect sampleKeyPaintRect() const;
    QRect headerGeometry(bool atTop) const;
    void placeHeader(bool animated);
    void retryKeyboardGrab();
    void setHeaderAtTop(bool atTop);

    const quint32 m_displayID;
    const double m_initialOffsetX;
    const double m_initialOffsetY;
    std::function<void()> m_onDismiss;
    DisplaySettingsStore &m_displayStore;
    SettingsStore &m_settings;

    double m_offsetX;
    double m_offsetY;
    bool m_isDragging = false;
    bool m_isHeaderHidden = false;
    bool m_isHeaderAtTop;

    bool m_finished = false;
    bool m_compositing = false;
    QPixmap m_backdrop;
    PositionCustomizerHeader *m_header;
    QGraphicsOpacityEffect *m_headerOpacity;
    std::unique_ptr<QPropertyAnimation> m_headerMove;
    std::unique_ptr<QPropertyAnimation> m_headerFade;
    // The press that may become a click or a drag of the cap.
    bool m_pressed = false;
    bool m_pressOnKey = false;
    bool m_pressMoved = false;
    QPointF m_pressPosition;
    int m_grabAttempts = 0;
};
