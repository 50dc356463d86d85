#pragma once

#include "ui/WidgetSurface.h"

#include <QObject>
#include <QWidget>

#include <map>
#include <memory>

class CompositorWatcher;
class DisplaySettingsStore;
class PositionCustomizerView;
class SettingsStore;

// Opens the position customizer of a display: a frameless window above all others over the
// display's available area, holding the keyboard while open, with the desktop dimmed behind a
// sample cap to drag. At most one per display (opening again replaces it); several displays may
// have one at the same time. The program creates one controller and reaches it as `shared()`.
class PositionCustomizerWindowController final : public QObject {
    Q_OBJECT

public:
    PositionCustomizerWindowController(DisplaySettingsStore &displayStore, SettingsStore &settings,
                                       const CompositorWatcher *compositor = nullptr,
                                       QObject *parent = nullptr);
    ~PositionCustomizerWindowController() override;

    // The instance the program created; nullptr before and after it.
    static PositionCustomizerWindowController *shared();

    // Opens the customizer on the connected display with this identifier (nothing for a display
    // that is not connected), starting the sample at the display's stored custom place.
    void showPositioningOverlay(quint32 displayID);
    // The open customizer window of a display, or nullptr.
    QWidget *window(quint32 displayID) const;
    // Customizers open from now on show on surfaces this makes (where overlays are layer
    // surfaces of the compositor) instead of windows of their own.
    void setSurfaceFactory(WidgetSurface::Factory factory) { m_makeSurface = std::move(factory); }

signals:
    // The customizer of this display saved its place and closed.
    void overlayClosed(quint32 displayID);

private:
    static void present(PositionCustomizerView &view, const QRect &frame);
    // Shows the view on a surface of the compositor; false when none can be had.
    bool presentOnSurface(PositionCustomizerView &view, const QRect &frame);
    // Takes the customizer of a display off the screen, saving nothing.
    void close(quint32 displayID);
    void dismiss(quint32 displayID);
    // Closes customizers of displays that went away and fits the others to their displays.
    void followScreens();

    DisplaySettingsStore &m_displayStore;
    SettingsStore &m_settings;
    const CompositorWatcher *m_compositor;
    WidgetSurface::Factory m_makeSurface;
    std::map<quint32, std::unique_ptr<PositionCustomizerView>> m_windows;
    std::map<quint32, std::unique_ptr<WidgetSurface>> m_surfaces;
};
