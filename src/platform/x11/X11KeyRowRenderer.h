#pragma once

#include "overlay/KeyEffectCache.h"
#include "overlay/KeyRowRenderer.h"

#include <QRect>
#include <QSize>

#include <cstdint>
#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

class QTimer;
struct xcb_connection_t;

// Draws a key row into its overlay window with the X RENDER extension, and lets the X server
// time the frames, so that an animation costs the application no wake-up per frame.
//
// Each cap's image is uploaded once as a picture (only its inked part); a frame is then a handful
// of requests that place, scale (nearest-pixel sampling) and fade those pictures into a
// window-sized picture on the server, which is also the window's background (the server repaints
// exposures itself), and copy the changed part to the window. Without a compositor the window is
// shaped to the caps from a 1-bit mask made from the same picture on the server.
//
// A scene's frames are worked out ahead, a run of them at a time, and sent at once on a second
// connection, each held back by a SYNC Await until the server's clock reaches its time. A newer
// scene makes the frames still waiting harmless (each run draws through objects of its own, which
// the newer scene empties or frees) and releases them with a counter. The application wakes only
// for new scenes and to queue the next run of a long animation.
class X11KeyRowRenderer final : public KeyRowRenderer {
public:
    // For a 32-bit window of the application's X connection; nothing when the display lacks
    // RENDER, SHAPE or SYNC, or the window has no 32-bit visual. Lives on the GUI thread.
    static std::unique_ptr<X11KeyRowRenderer> create(quint32 window);
    ~X11KeyRowRenderer() override;

    void setScene(std::shared_ptr<const KeyRowScene> scene) override;
    void warmUp(const std::vector<std::shared_ptr<const KeyView>> &views, double opacity,
                bool opaque, double devicePixelRatio) override;

private:
    struct Connection; // what create() found out about the display
    struct CapImage {
        QImage image;
        QPointF offset;
        double opacity = -1.0;
    };
    // A cap image on the server: its inked part (the rest is transparent and not uploaded).
    struct Picture {
        std::uint32_t pixmap = 0;
        std::uint32_t picture = 0; // none for an image without ink
        QRect inked;               // in the image
        qsizetype bytes = 0;
        std::uint64_t lastUse = 0;
    };
    struct Placement {
        Picture source;
        bool shared = true; // a cached cap image, as opposed to one of this run only
        std::uint32_t mask = 0;
        QRect rect; // where the whole image goes
        double sx = 1.0;
        double sy = 1.0;
        // The pixels of `rect` drawn from the inked part, and the first one's place in `rect`.
        QRect target;
        QPoint sourceOrigin;
    };
    struct Frame {
        double time = 0.0;
        std::vector<Placement> placements;
        QRect covered;
        QRect dirty;
    };
    // What one run of frames draws through, made for it alone.
    struct Run {
        std::uint64_t number = 0;
        std::uint32_t target = 0; // picture of the buffer
        std::uint32_t copier = 0; // graphics context copying the buffer to the window
        std::uint32_t shape = 0;  // 1-bit pixmap the window's shape is set from
        std::uint32_t shapeTarget = 0;
        QPoint shapeOrigin; // where the shape pixmap lies in the window
        std::unordered_map<std::uint32_t, std::uint32_t> scaledViews; // by cap picture
        std::vector<std::uint32_t> pictures;                          // freed with the run
        bool queued = false;                                          // frames wait on the server
    };

    explicit X11KeyRowRenderer(const Connection &connection);
    // Works out the frames of the scene from `start` (seconds on its clock), the first one drawn
    // at once when `drawNow`, the others queued on the server.
    void startRun(double start, bool drawNow);
    // Where the scene's caps go at `time`; tells whether anything still moves after it.
    bool placeFrame(double time, Frame &frame);
    // The first frame of a scene, on the control connection through the buffer's own picture.
    void drawFrameNow(const Frame &frame);
    // A later frame on the timed connection, through the run's objects.
    void queueFrame(const Frame &frame);
    // Draws a placed cap from `source` (its picture, or a view of it) into `target`.
    static void composite(xcb_connection_t *c, const Placement &placement, std::uint32_t source,
                          std::uint32_t target);
    // Frames still waiting on the server draw nothing; the run before is freed.
    void cancelRun();
    void freeRun(Run &run);
    std::uint32_t scaledView(const Picture &picture);
    std::int64_t serverTime(double sceneTime, double sceneNow, double monotonicNow) const;
    void calibrateServerClock();
    void resizeBuffers(const QSize &pixels);
    // The picture of a cap's image, uploaded when new.
    Picture pictureFor(const QImage &image, bool transient);
    Picture upload(const QImage &image);
    void freePicture(const Picture &picture);
    std::uint32_t opacityMask(double opacity);
    void forgetPictures();
    // Images are uploaded as the window shows them: opaque ones without a compositor.
    void setOpaque(bool opaque);
    void freeBuffers();
    void drainEvents();

    // Uploads, the first frame of a scene and all that must happen now go on `m_control`; queued
    // frames on `m_timed`, which the server holds back until each frame's time.
    xcb_connection_t *const m_control;
    xcb_connection_t *const m_timed;
    const std::uint32_t m_window;
    const std::uint32_t m_argbFormat;
    const std::uint32_t m_maskFormat;
    const std::uint32_t m_serverTimeCounter;
    const std::uint32_t m_runCounter; // the number of the newest run
    double m_serverClockOffset = 0.0; // server milliseconds minus the monotonic clock's
    double m_calibratedAt = 0.0;      // monotonic seconds

    std::shared_ptr<const KeyRowScene> m_scene;
    std::vector<CapImage> m_capImages; // per cap of the scene, once drawn
    std::unique_ptr<QTimer> m_nextRun; // queues more frames of a long animation
    double m_beat = 0.0;               // scene time of a frame; frames follow at its interval
    bool m_moving = false;

    Run m_run;
    Run m_cancelled; // freed when the next run starts: its frames have been released by then
    std::uint64_t m_runNumber = 0;
    std::vector<Frame> m_frames;
    // Where the buffer may hold ink: the frame drawn last, or any of a run that may have run.
    QRect m_ink;
    // The scene drawn before: a change of look, window or blending redraws everything.
    quint64 m_lookGeneration = 0;
    bool m_opaque = false;
    bool m_shaped = false;
    bool m_redrawAll = true;

    QSize m_bufferSize;
    std::uint32_t m_buffer = 0; // the window's background: the frame as shown
    std::uint32_t m_bufferPicture = 0;

    KeyEffectCache m_effects;
    std::unordered_map<qint64, Picture> m_pictures;
    qsizetype m_pictureBytes = 0;
    std::uint64_t m_useCounter = 0;
    std::uint64_t m_runFirstUse = 0; // pictures used since are kept: queued frames draw them
    std::map<int, std::uint32_t> m_opacityMasks; // by 8-bit alpha
};
