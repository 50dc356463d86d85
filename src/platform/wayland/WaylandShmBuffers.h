#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

#include <array>
#include <cstddef>
#include <functional>
#include <memory>

struct wl_buffer;
struct wl_shm;
struct wl_shm_pool;

// Two buffers of one size in a pool of shared memory, for a surface drawn with QPainter: one is
// drawn while the compositor may still read the other. The memory starts out zero (transparent).
class WaylandShmBuffers final {
public:
    struct Buffer {
        WaylandShmBuffers *owner = nullptr;
        wl_buffer *buffer = nullptr;
        QImage image; // over the shared memory, premultiplied ARGB as the compositor reads it
        bool busy = false;
        QRect ink; // where the buffer holds drawing, for the next frame to clear
    };

    // Nothing when the memory cannot be had. `onRelease` runs when the compositor lets a buffer go.
    static std::unique_ptr<WaylandShmBuffers> create(wl_shm *shm, const QSize &pixels,
                                                     std::function<void()> onRelease);
    ~WaylandShmBuffers();
    WaylandShmBuffers(const WaylandShmBuffers &) = delete;
    WaylandShmBuffers &operator=(const WaylandShmBuffers &) = delete;

    // A buffer the compositor does not hold; nullptr when it holds both. Mark it busy once it is
    // attached.
    Buffer *freeBuffer();
    QSize size() const { return m_size; }

private:
    WaylandShmBuffers() = default;
    static void handleRelease(void *data, wl_buffer *buffer);

    std::array<Buffer, 2> m_buffers;
    std::function<void()> m_onRelease;
    wl_shm_pool *m_pool = nullptr;
    void *m_memory = nullptr;
    std::size_t m_memorySize = 0;
    QSize m_size;
};
