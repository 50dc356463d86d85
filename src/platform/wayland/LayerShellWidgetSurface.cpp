#include "platform/wayland/LayerShellWidgetSurface.h"

#include "platform/wayland/WaylandConnection.h"
#include "platform/wayland/WaylandKeymapFile.h"
#include "platform/wayland/WaylandShmBuffers.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <wayland-client.h>
#include <wayland-cursor.h>
#include <xkbcommon/xkbcommon.h>

#include "platform/wayland/LayerShellProtocol.h"

#include <linux/input-event-codes.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace {

// xkb key codes are evdev's plus 8.
constexpr xkb_keycode_t evdevOffset = 8;

// The keys a widget on such a surface acts on; others arrive as Qt::Key_unknown.
constexpr std::array<std::pair<xkb_keysym_t, int>, 12> keyTable{{
    {XKB_KEY_Escape, Qt::Key_Escape},
    {XKB_KEY_Return, Qt::Key_Return},
    {XKB_KEY_KP_Enter, Qt::Key_Enter},
    {XKB_KEY_Tab, Qt::Key_Tab},
    {XKB_KEY_ISO_Left_Tab, Qt::Key_Backtab},
    {XKB_KEY_space, Qt::Key_Space},
    {XKB_KEY_BackSpace, Qt::Key_Backspace},
    {XKB_KEY_Delete, Qt::Key_Delete},
    {XKB_KEY_Left, Qt::Key_Left},
    {XKB_KEY_Right, Qt::Key_Right},
    {XKB_KEY_Up, Qt::Key_Up},
    {XKB_KEY_Down, Qt::Key_Down},
}};

// Cursor names of the desktop's theme for the shapes a customizer shows, the common name first.
const char *const *cursorNames(int shape)
{
    static const char *const arrow[] = {"default", "left_ptr", nullptr};
    static const char *const open[] = {"grab", "openhand", "left_ptr", nullptr};
    static const char *const closed[] = {"grabbing", "closedhand", "left_ptr", nullptr};
    static const char *const pointing[] = {"pointer", "hand2", "left_ptr", nullptr};
    switch (shape) {
    case Qt::OpenHandCursor:
        return open;
    case Qt::ClosedHandCursor:
        return closed;
    case Qt::PointingHandCursor:
        return pointing;
    default:
        return arrow;
    }
}

Qt::MouseButton mouseButton(quint32 button)
{
    switch (button) {
    case BTN_LEFT:
        return Qt::LeftButton;
    case BTN_RIGHT:
        return Qt::RightButton;
    case BTN_MIDDLE:
        return Qt::MiddleButton;
    default:
        return Qt::NoButton;
    }
}

void ignoreAxis(void *, wl_pointer *, quint32, quint32, wl_fixed_t) {}
void ignoreFrame(void *, wl_pointer *) {}
void ignoreAxisSource(void *, wl_pointer *, quint32) {}
void ignoreAxisStop(void *, wl_pointer *, quint32, quint32) {}
void ignoreAxisDiscrete(void *, wl_pointer *, quint32, qint32) {}
void ignoreAxisValue120(void *, wl_pointer *, quint32, qint32) {}
void ignoreKeyboardEnter(void *, wl_keyboard *, quint32, wl_surface *, wl_array *) {}
void ignoreKeyboardLeave(void *, wl_keyboard *, quint32, wl_surface *) {}
void ignoreRepeatInfo(void *, wl_keyboard *, qint32, qint32) {}

} // namespace

std::unique_ptr<LayerShellWidgetSurface>
LayerShellWidgetSurface::create(QWidget &widget, const QString &outputName,
                                const QByteArray &displayName)
{
    std::unique_ptr<WaylandConnection> connection = WaylandConnection::open(displayName);
    if (!connection)
        return nullptr;
    std::unique_ptr<LayerShellWidgetSurface> surface(
        new LayerShellWidgetSurface(widget, std::move(connection)));
    if (!surface->createSurface(outputName) || !surface->m_connection->roundTrip() ||
        !surface->m_surface)
        return nullptr;
    surface->m_connection->watch();
    return surface;
}

LayerShellWidgetSurface::LayerShellWidgetSurface(QWidget &widget,
                                                 std::unique_ptr<WaylandConnection> connection)
    : m_widget(&widget), m_connection(std::move(connection))
{
    m_connection->onScaleChanged = [this](WaylandConnection::Output &output) {
        if (output.name == m_outputName)
            followScale(output.scale);
    };
    m_connection->onOutputRemoved = [this](WaylandConnection::Output &output) {
        if (output.name == m_outputName)
            destroySurface();
    };
    m_connection->onLost = [this](const char *reason) {
        qWarning("vantrel: the position customizer's surface is gone: %s", reason);
        destroySurface();
    };
    widget.installEventFilter(this);
}

LayerShellWidgetSurface::~LayerShellWidgetSurface()
{
    if (m_widget)
        m_widget->removeEventFilter(this);
    if (m_pointer)
        wl_pointer_release(m_pointer);
    if (m_keyboard)
        wl_keyboard_release(m_keyboard);
    if (m_cursorSurface)
        wl_surface_destroy(m_cursorSurface);
    if (m_cursorTheme)
        wl_cursor_theme_destroy(m_cursorTheme);
    destroySurface();
    m_buffers.reset();
    xkb_state_unref(m_xkbState);
    xkb_keymap_unref(m_keymap);
    xkb_context_unref(m_xkbContext);
    m_connection->flush();
}

bool LayerShellWidgetSurface::createSurface(const QString &outputName)
{
    WaylandConnection::Output *output = m_connection->output(outputName);
    if (!output)
        return false;
    m_outputName = outputName;
    m_scale = output->scale;
    m_surface = wl_compositor_create_surface(m_connection->compositor());
    wl_surface_set_buffer_scale(m_surface, m_scale);
    m_layerSurface = zwlr_layer_shell_v1_get_layer_surface(
        m_connection->layerShell(), m_surface, output->output, ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY,
        "vantrel-customizer");
    static const zwlr_layer_surface_v1_listener layerListener{&handleConfigure, &handleClosed};
    zwlr_layer_surface_v1_add_listener(m_layerSurface, &layerListener, this);
    // Stretched over the whole output, panels included (-1): offsets are fractions of the area
    // the key row is placed in, which on Wayland is the whole output too.
    zwlr_layer_surface_v1_set_anchor(
        m_layerSurface, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM |
                            ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT);
    zwlr_layer_surface_v1_set_size(m_layerSurface, 0, 0);
    zwlr_layer_surface_v1_set_exclusive_zone(m_layerSurface, -1);
    zwlr_layer_surface_v1_set_keyboard_interactivity(
        m_layerSurface, ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE);
    wl_surface_commit(m_surface);

    m_connection->onSeatCapabilities = [this](quint32 capabilities) {
        setSeatCapabilities(capabilities);
    };
    setSeatCapabilities(m_connection->seatCapabilities());
    return true;
}

void LayerShellWidgetSurface::destroySurface()
{
    if (m_frameCallback)
        wl_callback_destroy(m_frameCallback);
    m_frameCallback = nullptr;
    if (m_layerSurface)
        zwlr_layer_surface_v1_destroy(m_layerSurface);
    m_layerSurface = nullptr;
    if (m_surface)
        wl_surface_destroy(m_surface);
    m_surface = nullptr;
}

void LayerShellWidgetSurface::followScale(int scale)
{
    if (!m_surface || scale == m_scale)
        return;
    m_scale = scale;
    m_buffers.reset();
    wl_surface_set_buffer_scale(m_surface, m_scale);
    // Cursors of the new size.
    if (m_cursorTheme)
        wl_cursor_theme_destroy(m_cursorTheme);
    m_cursorTheme = nullptr;
    m_cursorShape = -1;
    showCursor();
    m_dirty = true;
    scheduleFrame();
}

bool LayerShellWidgetSurface::eventFilter(QObject *watched, QEvent *event)
{
    // Qt asks for a repaint of the widget or one of its children; the surface shows it next frame.
    if (watched == m_widget && event->type() == QEvent::UpdateRequest) {
        m_dirty = true;
        scheduleFrame();
    } else if (watched == m_widget && event->type() == QEvent::CursorChange) {
        showCursor();
    }
    return false;
}

void LayerShellWidgetSurface::scheduleFrame()
{
    if (m_frameQueued)
        return;
    m_frameQueued = true;
    // After Qt has handled what asked for it, so the widget is laid out as it will show.
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_frameQueued = false;
            drawFrame();
        },
        Qt::QueuedConnection);
}

void LayerShellWidgetSurface::drawFrame()
{
    // A frame still on its way paces the next: it is drawn when the compositor is ready.
    if (!m_dirty || !m_configured || !m_surface || !m_widget || m_frameCallback)
        return;
    const QSize pixels = m_size * m_scale;
    if (!m_buffers || m_buffers->size() != pixels)
        m_buffers =
            WaylandShmBuffers::create(m_connection->shm(), pixels, [this] { scheduleFrame(); });
    if (!m_buffers) {
        qWarning("vantrel: no memory for the position customizer's surface");
        return;
    }
    WaylandShmBuffers::Buffer *buffer = m_buffers->freeBuffer();
    if (!buffer)
        return; // drawn when the compositor lets one go
    buffer->image.setDevicePixelRatio(m_scale);
    {
        QPainter painter(&buffer->image);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(QRect(QPoint(0, 0), m_size), Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        // The widget paints its own dimmed background; Qt's window background would be opaque.
        // Its children are rendered one by one, each from its own corner: rendered as part of
        // their parent, children with a graphics effect land at twice their offset.
        m_widget->render(&painter, QPoint(), QRegion(), {});
        for (QWidget *child : m_widget->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
            if (child->isHidden() || child->isWindow())
                continue;
            painter.save();
            painter.translate(child->pos());
            child->render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
            painter.restore();
        }
    }
    m_dirty = false;
    buffer->busy = true;
    wl_surface_attach(m_surface, buffer->buffer, 0, 0);
    wl_surface_damage_buffer(m_surface, 0, 0, pixels.width(), pixels.height());
    static const wl_callback_listener frameListener{&handleFrameDone};
    m_frameCallback = wl_surface_frame(m_surface);
    wl_callback_add_listener(m_frameCallback, &frameListener, this);
    wl_surface_commit(m_surface);
    ++m_commits;
    m_connection->flush();
}

void LayerShellWidgetSurface::handleConfigure(void *data, zwlr_layer_surface_v1 *surface,
                                              quint32 serial, quint32 width, quint32 height)
{
    auto *self = static_cast<LayerShellWidgetSurface *>(data);
    zwlr_layer_surface_v1_ack_configure(surface, serial);
    const QSize size{int(width), int(height)};
    if (size.isEmpty())
        return;
    self->m_configured = true;
    if (size != self->m_size) {
        self->m_size = size;
        if (self->m_widget)
            self->m_widget->resize(size);
    }
    self->m_dirty = true;
    self->scheduleFrame();
}

void LayerShellWidgetSurface::handleClosed(void *data, zwlr_layer_surface_v1 *)
{
    // The compositor took the surface away (its output is gone).
    static_cast<LayerShellWidgetSurface *>(data)->destroySurface();
}

void LayerShellWidgetSurface::handleFrameDone(void *data, wl_callback *callback, quint32)
{
    auto *self = static_cast<LayerShellWidgetSurface *>(data);
    wl_callback_destroy(callback);
    self->m_frameCallback = nullptr;
    if (self->m_dirty)
        self->drawFrame();
}

void LayerShellWidgetSurface::setSeatCapabilities(quint32 capabilities)
{
    wl_seat *seat = m_connection->seat();
    const bool pointer = capabilities & WL_SEAT_CAPABILITY_POINTER;
    if (pointer && !m_pointer) {
        static const wl_pointer_listener pointerListener{
            &handlePointerEnter, &handlePointerLeave, &handlePointerMotion, &handlePointerButton,
            &ignoreAxis,         &ignoreFrame,        &ignoreAxisSource,    &ignoreAxisStop,
            &ignoreAxisDiscrete, &ignoreAxisValue120};
        m_pointer = wl_seat_get_pointer(seat);
        wl_pointer_add_listener(m_pointer, &pointerListener, this);
    } else if (!pointer && m_pointer) {
        wl_pointer_release(m_pointer);
        m_pointer = nullptr;
    }
    const bool keyboard = capabilities & WL_SEAT_CAPABILITY_KEYBOARD;
    if (keyboard && !m_keyboard) {
        static const wl_keyboard_listener keyboardListener{
            &handleKeymap, &ignoreKeyboardEnter, &ignoreKeyboardLeave,
            &handleKey,    &handleModifiers,     &ignoreRepeatInfo};
        m_keyboard = wl_seat_get_keyboard(seat);
        wl_keyboard_add_listener(m_keyboard, &keyboardListener, this);
    } else if (!keyboard && m_keyboard) {
        wl_keyboard_release(m_keyboard);
        m_keyboard = nullptr;
    }
}

void LayerShellWidgetSurface::handlePointerEnter(void *data, wl_pointer *, quint32 serial,
                                                 wl_surface *, qint32 x, qint32 y)
{
    auto *self = static_cast<LayerShellWidgetSurface *>(data);
    self->m_pointerPosition = QPointF(wl_fixed_to_double(x), wl_fixed_to_double(y));
    self->m_enterSerial = serial;
    self->m_pointerInside = true;
    self->m_cursorShape = -1; // another surface set its own
    self->showCursor();
}

void LayerShellWidgetSurface::handlePointerLeave(void *data, wl_pointer *, quint32, wl_surface *)
{
    // Buttons still down lost their release: nothing keeps the grab.
    auto *self = static_cast<LayerShellWidgetSurface *>(data);
    self->m_pointerInside = false;
    self->m_buttons = {};
    self->m_mouseGrabber = nullptr;
}

void LayerShellWidgetSurface::showCursor()
{
    if (!m_pointer || !m_pointerInside || !m_widget)
        return;
    const int shape = m_widget->cursor().shape();
    if (shape == m_cursorShape)
        return;
    if (!m_cursorTheme) {
        // The desktop's theme and size, as other programs read them.
        const QByteArray theme = qgetenv("XCURSOR_THEME");
        bool sized = false;
        const int size = qEnvironmentVariableIntValue("XCURSOR_SIZE", &sized);
        m_cursorTheme =
            wl_cursor_theme_load(theme.isEmpty() ? nullptr : theme.constData(),
                                 (sized && size > 0 ? size : 24) * m_scale, m_connection->shm());
    }
    if (!m_cursorSurface)
        m_cursorSurface = wl_compositor_create_surface(m_connection->compositor());
    wl_cursor *cursor = nullptr;
    for (const char *const *name = cursorNames(shape); *name && !cursor; ++name)
        cursor = m_cursorTheme ? wl_cursor_theme_get_cursor(m_cursorTheme, *name) : nullptr;
    if (!cursor || cursor->image_count == 0)
        return; // the compositor's last cursor stays
    wl_cursor_image *image = cursor->images[0];
    wl_buffer *buffer = wl_cursor_image_get_buffer(image);
    if (!buffer)
        return;
    m_cursorShape = shape;
    wl_surface_set_buffer_scale(m_cursorSurface, m_scale);
    wl_surface_attach(m_cursorSurface, buffer, 0, 0);
    wl_surface_damage_buffer(m_cursorSurface, 0, 0, int(image->width), int(image->height));
    wl_surface_commit(m_cursorSurface);
    wl_pointer_set_cursor(m_pointer, m_enterSerial, m_cursorSurface,
                          int(image->hotspot_x) / m_scale, int(image->hotspot_y) / m_scale);
    m_connection->flush();
}

void LayerShellWidgetSurface::handlePointerMotion(void *data, wl_pointer *, quint32, qint32 x,
                                                  qint32 y)
{
    auto *self = static_cast<LayerShellWidgetSurface *>(data);
    self->m_pointerPosition = QPointF(wl_fixed_to_double(x), wl_fixed_to_double(y));
    self->sendMouse(QEvent::MouseMove, Qt::NoButton);
}

void LayerShellWidgetSurface::handlePointerButton(void *data, wl_pointer *, quint32, quint32,
                                                  quint32 button, quint32 state)
{
    auto *self = static_cast<LayerShellWidgetSurface *>(data);
    const Qt::MouseButton qtButton = mouseButton(button);
    if (qtButton == Qt::NoButton)
        return;
    const bool pressed = state == WL_POINTER_BUTTON_STATE_PRESSED;
    self->m_buttons.setFlag(qtButton, pressed);
    self->sendMouse(pressed ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, qtButton);
}

void LayerShellWidgetSurface::sendMouse(int type, Qt::MouseButton button)
{
    if (!m_widget)
        return;
    // Presses go to the widget under the pointer, which keeps every event until the last
    // button is let go, as a window system's implicit grab does.
    QWidget *target = m_mouseGrabber;
    if (!target) {
        target = m_widget->childAt(m_pointerPosition.toPoint());
        if (!target)
            target = m_widget;
    }
    if (type == QEvent::MouseButtonPress && !m_mouseGrabber)
        m_mouseGrabber = target;
    if (type == QEvent::MouseButtonRelease && !m_buttons)
        m_mouseGrabber = nullptr;
    const QPointF local = target->mapFrom(m_widget, m_pointerPosition);
    const QPointF global = m_widget->mapToGlobal(m_pointerPosition);
    // Posted, not sent: what the event does may end this surface, which must not happen while
    // the connection dispatches. Delivered through the application, an event a child ignores
    // goes on to its parents.
    QCoreApplication::postEvent(target,
                                new QMouseEvent(QEvent::Type(type), local, m_pointerPosition,
                                                global, button, m_buttons, modifiers()));
}

void LayerShellWidgetSurface::handleKeymap(void *data, wl_keyboard *, quint32 format, qint32 fd,
                                           quint32 size)
{
    auto *self = static_cast<LayerShellWidgetSurface *>(data);
    if (format != WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1) {
        close(fd);
        return;
    }
    const QByteArray text = WaylandKeymapFile::read(fd, size);
    close(fd);
    if (!self->m_xkbContext)
        self->m_xkbContext = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    xkb_keymap *keymap =
        self->m_xkbContext && !text.isEmpty()
            ? xkb_keymap_new_from_string(self->m_xkbContext, text.constData(),
                                         XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS)
            : nullptr;
    if (!keymap)
        return;
    xkb_state_unref(self->m_xkbState);
    xkb_keymap_unref(self->m_keymap);
    self->m_keymap = keymap;
    self->m_xkbState = xkb_state_new(keymap);
}

void LayerShellWidgetSurface::handleModifiers(void *data, wl_keyboard *, quint32, quint32 depressed,
                                              quint32 latched, quint32 locked, quint32 group)
{
    auto *self = static_cast<LayerShellWidgetSurface *>(data);
    if (self->m_xkbState)
        xkb_state_update_mask(self->m_xkbState, depressed, latched, locked, 0, 0, group);
}

void LayerShellWidgetSurface::handleKey(void *data, wl_keyboard *, quint32, quint32, quint32 key,
                                        quint32 state)
{
    static_cast<LayerShellWidgetSurface *>(data)->sendKey(key,
                                                          state == WL_KEYBOARD_KEY_STATE_PRESSED);
}

void LayerShellWidgetSurface::sendKey(quint32 key, bool pressed)
{
    if (!m_widget || !m_xkbState)
        return;
    const xkb_keysym_t symbol = xkb_state_key_get_one_sym(m_xkbState, key + evdevOffset);
    int qtKey = Qt::Key_unknown;
    for (const auto &[keysym, mapped] : keyTable) {
        if (keysym == symbol)
            qtKey = mapped;
    }
    QWidget *target = m_widget->focusWidget();
    if (!target || !m_widget->isAncestorOf(target))
        target = m_widget;
    // Posted, as mouse events are.
    QCoreApplication::postEvent(
        target, new QKeyEvent(pressed ? QEvent::KeyPress : QEvent::KeyRelease, qtKey, modifiers()));
}

Qt::KeyboardModifiers LayerShellWidgetSurface::modifiers() const
{
    Qt::KeyboardModifiers modifiers;
    if (!m_xkbState)
        return modifiers;
    const auto active = [this](const char *name) {
        return xkb_state_mod_name_is_active(m_xkbState, name, XKB_STATE_MODS_EFFECTIVE) > 0;
    };
    modifiers.setFlag(Qt::ShiftModifier, active(XKB_MOD_NAME_SHIFT));
    modifiers.setFlag(Qt::ControlModifier, active(XKB_MOD_NAME_CTRL));
    modifiers.setFlag(Qt::AltModifier, active(XKB_MOD_NAME_ALT));
    modifiers.setFlag(Qt::MetaModifier, active(XKB_MOD_NAME_LOGO));
    return modifiers;
}
