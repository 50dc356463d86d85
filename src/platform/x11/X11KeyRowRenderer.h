#pragma once

#include "overlay/KeyEffectCache.h"
#include "overlay/KeyRowRenderer.h"

#include <QRect>
#include <QSize>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <unordered_map>

struct xcb_connection_t;

// Draws a key row into its overlay window with the X RENDER extension, on a connection and a
// thread of its own.
//
// Each cap's image is uploaded once as a picture; a frame is then a handful of requests that
// place, scale (nearest-pixel sampling) and fade those pictures into a picture of the window's
// size on the server. That picture is the window's background: the server shows a frame with
// one ClearArea request and repaints exposed parts itself, so no drawing ever involves the
// application's GUI thread or a round trip. Without a compositor the window is shaped to the
// caps from a 1-bit mask made from the same picture on the server.
//
// Between frames the thread sleeps until the next one is due; once nothing moves it sleeps until
// the next scene.
class X11KeyRowRenderer final : public KeyRowRenderer {
public:
    // For a 32-bit window of the application's X connection; nothing when the display lacks RENDER
    // or SHAPE, or the window has no 32-bit visual.
    static std::unique_ptr<X11KeyRowRenderer> create(quint32 window);
    ~X11KeyRowRenderer() override;

    void setScene(std::shared_ptr<const KeyRowScene> scene) override;
    void warmUp(const std::vector<std::shared_ptr<const KeyView>> &views, double opacity,
                bool opaque, double devicePixelRatio) override;

private:
    using Clock = std::chrono::steady_clock;
    struct CapImage {
        QImage image;
        QPointF offset;
        double opacity = -1.0;
    };
    struct Picture {
        std::uint32_t picture = 0;
        qsizetype bytes = 0;
        std::uint64_t lastUse = 0;
    };

    X11KeyRowRenderer(xcb_connection_t *connection, std::uint32_t window, std::uint32_t argbFormat,
                      std::uint32_t maskFormat);
    void run();
    // Draws the frame of the current scene's time; tells whether anything still moves. With
    // m_mutex held.
    bool drawFrame();
    void resizeBuffers(const QSize &pixels);
    // The picture of a cap's image, uploaded when new; `transient` ones are freed after use.
    std::uint32_t pictureFor(const QImage &image, bool transient);
    std::uint32_t upload(const QImage &image);
    std::uint32_t opacityMask(double opacity);
    void forgetPictures();
    // Images are uploaded as the window shows them: opaque ones without a compositor.
    void setOpaque(bool opaque);
    void freeBuffers();

    xcb_connection_t *const m_connection;
    const std::uint32_t m_window;
    const std::uint32_t m_argbFormat;
    const std::uint32_t m_maskFormat;

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::thread m_thread;
    bool m_stop = false;
    bool m_moving = false;
    Clock::time_point m_due;

    std::shared_ptr<const KeyRowScene> m_scene;
    std::vector<CapImage> m_capImages; // per cap of the scene, once drawn
    // The scene drawn before: a change of look, window or blending redraws everything.
    quint64 m_lookGeneration = 0;
    bool m_opaque = false;
    bool m_shaped = false;
    QRect m_drawn; // what the latest frame covered, in window pixels
    bool m_redrawAll = true;

    QSize m_bufferSize;
    std::uint32_t m_buffer = 0; // the window's background: the frame as shown
    std::uint32_t m_bufferPicture = 0;

    KeyEffectCache m_effects; // used with m_mutex held only
    std::unordered_map<qint64, Picture> m_pictures;
    qsizetype m_pictureBytes = 0;
    std::uint64_t m_useCounter = 0;
    std::map<int, std::uint32_t> m_opacityMasks; // by 8-bit alpha
    std::vector<std::uint32_t> m_transient;
};
