#include "ui/PositionCustomizerView.h"

#include "capture/KeyPress.h"
#include "overlay/KeyAppearance.h"
#include "overlay/KeyCapsuleView.h"
#include "settings/AppSettings.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/SettingsStore.h"
#include "ui/PositionCustomizerHeader.h"

#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace {

// Space between the card and the edge it is attached to, and the widest it grows.
constexpr int headerMargin = 24;
constexpr int headerMaximumWidth = 720;
// About a second of attempts to grab the keyboard while the window maps.
constexpr int keyboardGrabAttempts = 50;
constexpr int keyboardGrabRetryMs = 20;

const QString sampleKeyLabel = QStringLiteral("⌘");

} // namespace

PositionCustomizerView::PositionCustomizerView(quint32 displayID, double initialOffsetX,
                                               double initialOffsetY,
                                               std::function<void()> onDismiss,
                                               DisplaySettingsStore &displayStore,
                                               SettingsStore &settings, QWidget *parent)
    : QWidget(parent), m_displayID(displayID), m_initialOffsetX(initialOffsetX),
      m_initialOffsetY(initialOffsetY), m_onDismiss(std::move(onDismiss)),
      m_displayStore(displayStore), m_settings(settings), m_offsetX(initialOffsetX),
      m_offsetY(initialOffsetY), m_isHeaderAtTop(initialOffsetY >= headerEdgeZone),
      m_header(new PositionCustomizerHeader(this)),
      m_headerOpacity(new QGraphicsOpacityEffect(m_header)),
      m_headerMove(std::make_unique<QPropertyAnimation>(m_header, "pos")),
      m_headerFade(std::make_unique<QPropertyAnimation>(m_headerOpacity, "opacity"))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAutoFillBackground(false);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);

    m_headerOpacity->setOpacity(1.0);
    m_header->setGraphicsEffect(m_headerOpacity);
    m_headerMove->setDuration(headerAnimationMs);
    m_headerMove->setEasingCurve(QEasingCurve::OutCubic);
    m_headerFade->setDuration(headerAnimationMs);
    m_headerFade->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_headerFade.get(), &QPropertyAnimation::finished, m_header, &QWidget::hide);

    connect(m_header->hideButton(), &QPushButton::clicked, this,
            &PositionCustomizerView::hideHeader);
    connect(m_header->doneButton(), &QPushButton::clicked, this,
            &PositionCustomizerView::saveAndDismiss);

    // The sample follows every appearance setting at once.
    connect(&m_settings, &SettingsStore::valueChanged, this, [this] { update(); });

    placeHeader(false);
}

PositionCustomizerView::~PositionCustomizerView() = default;

KeyAppearanceSnapshot PositionCustomizerView::sampleAppearance() const
{
    KeyPress sample;
    sample.keyName = sampleKeyLabel;
    sample.keyCode = KeyPress::modifierSymbolCode;
    sample.category = KeyCategory(KeyCategory::Kind::modifier);
    return resolveKeyAppearance(sample, m_settings.value(AppSettings::keySize), m_settings);
}

double PositionCustomizerView::sampleOpacity() const
{
    // As the key overlay draws: caps are opaque where nothing can blend them.
    return m_compositing ? m_settings.value(AppSettings::keyOpacity) : 1.0;
}

QRectF PositionCustomizerView::sampleKeyFrame() const
{
    const QSizeF size = KeyCapsuleView::sizeFor(sampleAppearance());
    const QPointF centre(m_offsetX * width(), m_offsetY * height());
    return {centre - QPointF(size.width() / 2, size.height() / 2), size};
}

QRect PositionCustomizerView::sampleKeyPaintRect() const
{
    return sampleKeyFrame()
        .marginsAdded(KeyCapsuleView::visualMarginsFor(sampleAppearance()))
        .toAlignedRect()
        .adjusted(-1, -1, 1, 1);
}

void PositionCustomizerView::setCompositing(bool compositing)
{
    if (compositing == m_compositing)
        return;
    m_compositing = compositing;
    update();
}

void PositionCustomizerView::setBackdrop(const QPixmap &backdrop)
{
    m_backdrop = backdrop;
    update();
}

void PositionCustomizerView::dragChanged(const QPointF &location)
{
    if (width() <= 0 || height() <= 0)
        return;
    const QRect before = sampleKeyPaintRect();
    m_isDragging = true;
    m_offsetX = std::clamp(location.x() / width(), minimumOffsetX, maximumOffsetX);
    m_offsetY = std::clamp(location.y() / height(), minimumOffsetY, maximumOffsetY);
    // The card never covers the cap.
    if (m_isHeaderAtTop && m_offsetY < headerEdgeZone)
        setHeaderAtTop(false);
    else if (!m_isHeaderAtTop && m_offsetY > 1.0 - headerEdgeZone)
        setHeaderAtTop(true);
    update(before.united(sampleKeyPaintRect()));
}

void PositionCustomizerView::dragEnded()
{
    m_isDragging = false;
}

void PositionCustomizerView::saveAndDismiss()
{
    if (m_finished)
        return;
    m_finished = true;
    m_isDragging = false;
    m_displayStore.setCustomOffset(m_offsetX, m_offsetY, m_displayID);
    if (m_onDismiss)
        m_onDismiss();
}

void PositionCustomizerView::hideHeader()
{
    if (m_isHeaderHidden)
        return;
    m_isHeaderHidden = true;
    m_headerFade->setStartValue(m_headerOpacity->opacity());
    m_headerFade->setEndValue(0.0);
    m_headerFade->start();
}

void PositionCustomizerView::setHeaderAtTop(bool atTop)
{
    m_isHeaderAtTop = atTop;
    placeHeader(true);
}

QRect PositionCustomizerView::headerGeometry(bool atTop) const
{
    const int cardWidth = std::max(0, std::min(width() - 2 * headerMargin, headerMaximumWidth));
    const int cardHeight = m_header->hasHeightForWidth() ? m_header->heightForWidth(cardWidth)
                                                         : m_header->sizeHint().height();
    const int x = (width() - cardWidth) / 2;
    const int y = atTop ? headerMargin : height() - headerMargin - cardHeight;
    return {x, y, cardWidth, cardHeight};
}

void PositionCustomizerView::placeHeader(bool animated)
{
    const QRect target = headerGeometry(m_isHeaderAtTop);
    m_headerMove->stop();
    m_header->resize(target.size());
    if (!animated || !isVisible()) {
        m_header->move(target.topLeft());
        return;
    }
    m_headerMove->setStartValue(m_header->pos());
    m_headerMove->setEndValue(target.topLeft());
    m_headerMove->start();
}

void PositionCustomizerView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeHeader(false);
}

void PositionCustomizerView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    activateWindow();
    setFocus(Qt::ActiveWindowFocusReason);
    takeKeyboard();
}

void PositionCustomizerView::hideEvent(QHideEvent *event)
{
    releaseKeyboard();
    QWidget::hideEvent(event);
}

void PositionCustomizerView::takeKeyboard()
{
    m_grabAttempts = 0;
    retryKeyboardGrab();
}

void PositionCustomizerView::retryKeyboardGrab()
{
    if (!isVisible() || m_finished)
        return;
    // Qt sends every key to this widget; the display server sends every key to this program.
    grabKeyboard();
    if (QWindow *window = windowHandle(); window && window->setKeyboardGrabEnabled(true))
        return;
    if (++m_grabAttempts < keyboardGrabAttempts)
        QTimer::singleShot(keyboardGrabRetryMs, this, &PositionCustomizerView::retryKeyboardGrab);
}

void PositionCustomizerView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        saveAndDismiss();
        return;
    }
    // Every other key is swallowed while the customizer holds the keyboard.
    event->accept();
}

void PositionCustomizerView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_pressed = true;
    m_pressMoved = false;
    m_pressPosition = event->position();
    m_pressOnKey = sampleKeyFrame().contains(m_pressPosition);
    if (m_pressOnKey)
        setCursor(Qt::ClosedHandCursor);
    event->accept();
}

void PositionCustomizerView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressed) {
        setCursor(sampleKeyFrame().contains(event->position()) ? Qt::OpenHandCursor
                                                               : Qt::ArrowCursor);
        return;
    }
    if (!m_pressMoved && (event->position() - m_pressPosition).manhattanLength() >=
                             QApplication::startDragDistance())
        m_pressMoved = true;
    if (m_pressMoved && m_pressOnKey)
        dragChanged(event->position());
    event->accept();
}

void PositionCustomizerView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_pressed) {
        event->ignore();
        return;
    }
    m_pressed = false;
    event->accept();
    if (m_pressMoved) {
        // A drag elsewhere than on the cap is neither a move nor a click.
        if (m_pressOnKey) {
            dragChanged(event->position());
            dragEnded();
        }
        setCursor(sampleKeyFrame().contains(event->position()) ? Qt::OpenHandCursor
                                                               : Qt::ArrowCursor);
        return;
    }
    saveAndDismiss();
}

void PositionCustomizerView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    const QRect area = event->rect();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const QColor dim = QColor::fromRgbF(0, 0, 0, dimmingAlpha);
    if (m_compositing || m_backdrop.isNull()) {
        painter.fillRect(area, dim);
    } else {
        const qreal ratio = m_backdrop.devicePixelRatio();
        painter.drawPixmap(QRectF(area), m_backdrop,
                           QRectF(QPointF(area.topLeft()) * ratio, QSizeF(area.size()) * ratio));
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.fillRect(area, dim);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);

    const KeyCapsuleView cap(sampleAppearance());
    const QRectF frame = sampleKeyFrame();
    if (sampleKeyPaintRect().intersects(area))
        cap.paint(painter, frame, nullptr, sampleOpacity());
}
