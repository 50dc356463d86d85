#pragma once

#include "ui/WidgetSurface.h"

#include <QByteArray>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

class WaylandConnection;
class WaylandShmBuffers;
struct wl_callback;
struct wl_cursor_theme;
struct wl_keyboard;
struct wl_pointer;
struct wl_surface;
struct xkb_context;
struct xkb_keymap;
struct xkb_state;
struct zwlr_layer_surface_v1;

// A top-level widget on a surface of the compositor's overlay layer over one whole output
// (wlr layer shell), holding the keyboard while it shows: for the position customizer,
// which Qt cannot make a layer surface.
//
// The widget stays shown off screen (Qt::WA_DontShowOnScreen) and sized as the compositor sizes
// the surface. Whenever Qt would repaint it, it is rendered into a shared memory buffer at the
// output's scale, at most once a frame. The seat's pointer and keys reach it as Qt's mouse and key
// events, the mouse grabbed by the widget under a press until the last button is let go.
class LayerShellWidgetSurface final : public QObject, public WidgetSurface {
public:
    // Nothing when no compositor answers at `displayName` (empty: $WAYLAND_DISPLAY), it lacks
    // the layer shell, or no output is named `outputName`.
    static std::unique_ptr<LayerShellWidgetSurface>
    create(QWidget &widget, const QString &outputName, const QByteArray &displayName = {});
    ~LayerShellWidgetSurface() override;

    // The compositor has sized the surface and it shows the widget.
    bool isShowing() const { return m_configured && m_surface; }
    // Frames committed so far.
    quint64 framesCommitted() const { return m_commits; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    LayerShellWidgetSurface(QWidget &widget, std::unique_ptr<WaylandConnection> connection);
    bool createSurface(const QString &outputName);
    void destroySurface();
    void followScale(int scale);
    void scheduleFrame();
    void drawFrame();

    void setSeatCapabilities(quint32 capabilities);
    void sendMouse(int type, Qt::MouseButton button);
    void sendKey(quint32 key, bool pressed);
    // Shows the widget's cursor shape (from the desktop's cursor theme) while the pointer is on
    // the surface.
    void showCursor();
    Qt::KeyboardModifiers modifiers() const;

    static void handleConfigure(void *data, zwlr_layer_surface_v1 *surface, quint32 serial,
                                quint32 width, quint32 height);
    static void handleClosed(void *data, zwlr_layer_surface_v1 *surface);
    static void handleFrameDone(void *data, wl_callback *callback, quint32 time);
    static void handlePointerEnter(void *data, wl_pointer *pointer, quint32 serial,
                                   wl_surface *surface, qint32 x, qint32 y);
    static void handlePointerLeave(void *data, wl_pointer *pointer, quint32 serial,
                                   wl_surface *surface);
    static void handlePointerMotion(void *data, wl_pointer *pointer, quint32 time, qint32 x,
                                    qint32 y);
    static void handlePointerButton(void *data, wl_pointer *pointer, quint32 serial, quint32 time,
                                    quint32 button, quint32 state);
    static void handleKeymap(void *data, wl_keyboard *keyboard, quint32 format, qint32 fd,
                             quint32 size);
    static void handleKey(void *data, wl_keyboard *keyboard, quint32 serial, quint32 time,
                          quint32 key, quint32 state);
    static void handleModifiers(void *data, wl_keyboard *keyboard, quint32 serial,
                                quint32 depressed, quint32 latched, quint32 locked, quint32 group);

    QPointer<QWidget> m_widget;
    const std::unique_ptr<WaylandConnection> m_connection;
    QString m_outputName;
    int m_scale = 1;
    wl_surface *m_surface = nullptr;
    zwlr_layer_surface_v1 *m_layerSurface = nullptr;
    wl_callback *m_frameCallback = nullptr;
    std::unique_ptr<WaylandShmBuffers> m_buffers;
    QSize m_size; // logical pixels, as configured
    bool m_configured = false;
    bool m_dirty = true;
    bool m_frameQueued = false;
    quint64 m_commits = 0;

    wl_pointer *m_pointer = nullptr;
    QPointF m_pointerPosition;
    Qt::MouseButtons m_buttons;
    QPointer<QWidget> m_mouseGrabber; // the widget under the first button pressed
    quint32 m_enterSerial = 0;
    bool m_pointerInside = false;
    wl_cursor_theme *m_cursorTheme = nullptr;
    wl_surface *m_cursorSurface = nullptr;
    int m_cursorShape = -1; // the Qt::CursorShape shown
    wl_keyboard *m_keyboard = nullptr;
    xkb_context *m_xkbContext = nullptr;
    xkb_keymap *m_keymap = nullptr;
    xkb_state *m_xkbState = nullptr;
};
