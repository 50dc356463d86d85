#include "ui/PositionCustomizerWindowController.h"

#include "overlay/CompositorWatcher.h"
#include "settings/DisplaySettingsStore.h"
#include "settings/ScreenList.h"
#include "ui/PositionCustomizerView.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>

#include <vector>

namespace {

PositionCustomizerWindowController *sharedController = nullptr;

// Where a customizer opens when the display has no stored record.
constexpr double defaultOffsetX = 0.5;
constexpr double defaultOffsetY = 0.85;

// Long enough for a closed menu to leave the screen and the windows under it to repaint.
constexpr int captureDelayMs = 150;

// The desktop under `area` as it is now, for painting dimmed where no compositor blends.
QPixmap captureDesktop(const QRect &area)
{
    QScreen *screen = QGuiApplication::screenAt(area.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return {};
    // Window 0 is the whole desktop; the area is taken relative to this screen.
    const QPoint origin = area.topLeft() - screen->geometry().topLeft();
    return screen->grabWindow(0, origin.x(), origin.y(), area.width(), area.height());
}

} // namespace

PositionCustomizerWindowController::PositionCustomizerWindowController(
    DisplaySettingsStore &displayStore, SettingsStore &settings,
    const CompositorWatcher *compositor, QObject *parent)
    : QObject(parent), m_displayStore(displayStore), m_settings(settings), m_compositor(compositor)
{
    sharedController = this;
    connect(&m_displayStore.screenList(), &ScreenList::screensChanged, this,
            &PositionCustomizerWindowController::followScreens);
    if (m_compositor)
        connect(m_compositor, &CompositorWatcher::compositingChanged, this,
                [this](bool compositing) {
                    for (const auto &[id, view] : m_windows)
                        view->setCompositing(compositing);
                });
}

PositionCustomizerWindowController::~PositionCustomizerWindowController()
{
    if (sharedController == this)
        sharedController = nullptr;
}

PositionCustomizerWindowController *PositionCustomizerWindowController::shared()
{
    return sharedController;
}

void PositionCustomizerWindowController::showPositioningOverlay(quint32 displayID)
{
    const auto screen = m_displayStore.screenList().screen(displayID);
    if (!screen)
        return;
    // A second call replaces the open customizer; the replaced one saves nothing.
    close(displayID);

    const auto configuration = m_displayStore.configuration(displayID);
    const double x = configuration ? configuration->customOffsetX : defaultOffsetX;
    const double y = configuration ? configuration->customOffsetY : defaultOffsetY;
    const QRect frame = screen->availableGeometry;

    auto view = std::make_unique<PositionCustomizerView>(
        displayID, x, y,
        [controller = QPointer(this), displayID] {
            if (controller)
                controller->dismiss(displayID);
        },
        m_displayStore, m_settings);
    view->setWindowFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                         Qt::X11BypassWindowManagerHint | Qt::Tool);
    view->setWindowTitle(tr("Drag to Position"));
    PositionCustomizerView &shown = *view;
    m_windows[displayID] = std::move(view);
    if (m_makeSurface) {
        // A compositor's layer always blends.
        shown.setCompositing(true);
        if (presentOnSurface(shown, frame))
            return;
        qWarning("vantrel: the compositor gives the position customizer no surface; it opens "
                 "as a window");
    }
    const bool compositing = m_compositor && m_compositor->isCompositing();
    shown.setCompositing(compositing);
    if (compositing) {
        present(shown, frame);
        return;
    }
    // Without a compositor the window paints a capture of the desktop, taken before it shows.
    // Not in this handler: the menu or list that asked for it is still on screen, and the
    // windows under it repaint only after it has gone.
    QTimer::singleShot(captureDelayMs, &shown, [&shown, frame] {
        shown.setBackdrop(captureDesktop(frame));
        present(shown, frame);
    });
}

void PositionCustomizerWindowController::present(PositionCustomizerView &view, const QRect &frame)
{
    view.setGeometry(frame);
    view.show();
    view.setGeometry(frame);
    view.raise();
    view.activateWindow();
}

bool PositionCustomizerWindowController::presentOnSurface(PositionCustomizerView &view,
                                                          const QRect &frame)
{
    const QScreen *screen = QGuiApplication::screenAt(frame.center());
    if (!screen)
        return false;
    // Shown for Qt (it paints, takes focus and events) but not as a window of its own.
    view.setAttribute(Qt::WA_DontShowOnScreen);
    view.setGeometry(frame);
    view.show();
    std::unique_ptr<WidgetSurface> surface = m_makeSurface(view, screen->name());
    if (!surface) {
        view.hide();
        view.setAttribute(Qt::WA_DontShowOnScreen, false);
        return false;
    }
    m_surfaces[view.displayID()] = std::move(surface);
    return true;
}

QWidget *PositionCustomizerWindowController::window(quint32 displayID) const
{
    const auto it = m_windows.find(displayID);
    return it == m_windows.end() ? nullptr : it->second.get();
}

void PositionCustomizerWindowController::close(quint32 displayID)
{
    m_surfaces.erase(displayID);
    const auto it = m_windows.find(displayID);
    if (it == m_windows.end())
        return;
    std::unique_ptr<PositionCustomizerView> view = std::move(it->second);
    m_windows.erase(it);
    view->hide();
    // The view may be in the middle of handling the click or key that dismissed it.
    view.release()->deleteLater();
}

void PositionCustomizerWindowController::dismiss(quint32 displayID)
{
    if (!m_windows.contains(displayID))
        return;
    close(displayID);
    // One program holds the keyboard for one window: the next open customizer takes it over.
    if (!m_windows.empty())
        m_windows.begin()->second->takeKeyboard();
    emit overlayClosed(displayID);
}

void PositionCustomizerWindowController::followScreens()
{
    std::vector<quint32> gone;
    for (const auto &[id, view] : m_windows) {
        const auto screen = m_displayStore.screenList().screen(id);
        if (!screen)
            gone.push_back(id);
        // A surface takes the size the compositor gives it.
        else if (!m_surfaces.contains(id) && view->geometry() != screen->availableGeometry)
            view->setGeometry(screen->availableGeometry);
    }
    for (const quint32 id : gone)
        close(id);
}
