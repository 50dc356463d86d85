#include "platform/wayland/WaylandShmBuffers.h"

#include <wayland-client.h>

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>

std::unique_ptr<WaylandShmBuffers> WaylandShmBuffers::create(wl_shm *shm, const QSize &pixels,
                                                             std::function<void()> onRelease)
{
    if (pixels.isEmpty())
        return nullptr;
    std::unique_ptr<WaylandShmBuffers> buffers(new WaylandShmBuffers);
    const int stride = pixels.width() * 4;
    const std::size_t bufferBytes = std::size_t(stride) * std::size_t(pixels.height());
    const std::size_t size = bufferBytes * buffers->m_buffers.size();
    const int fd = memfd_create("vantrel-surface", MFD_CLOEXEC);
    if (fd < 0)
        return nullptr;
    void *memory = ftruncate(fd, off_t(size)) == 0
                       ? mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, fd, 0)
                       : MAP_FAILED;
    if (memory == MAP_FAILED) {
        close(fd);
        return nullptr;
    }
    buffers->m_memory = memory;
    buffers->m_memorySize = size;
    buffers->m_pool = wl_shm_create_pool(shm, fd, int(size));
    close(fd);
    buffers->m_onRelease = std::move(onRelease);
    buffers->m_size = pixels;
    static const wl_buffer_listener bufferListener{&handleRelease};
    for (std::size_t index = 0; index < buffers->m_buffers.size(); ++index) {
        Buffer &buffer = buffers->m_buffers[index];
        buffer.owner = buffers.get();
        buffer.buffer =
            wl_shm_pool_create_buffer(buffers->m_pool, int(index * bufferBytes), pixels.width(),
                                      pixels.height(), stride, WL_SHM_FORMAT_ARGB8888);
        wl_buffer_add_listener(buffer.buffer, &bufferListener, &buffer);
        buffer.image = QImage(static_cast<uchar *>(memory) + index * bufferBytes, pixels.width(),
                              pixels.height(), stride, QImage::Format_ARGB32_Premultiplied);
    }
    return buffers;
}

WaylandShmBuffers::~WaylandShmBuffers()
{
    for (Buffer &buffer : m_buffers) {
        if (buffer.buffer)
            wl_buffer_destroy(buffer.buffer);
    }
    if (m_pool)
        wl_shm_pool_destroy(m_pool);
    if (m_memory)
        munmap(m_memory, m_memorySize);
}

WaylandShmBuffers::Buffer *WaylandShmBuffers::freeBuffer()
{
    const auto free = std::find_if(m_buffers.begin(), m_buffers.end(),
                                   [](const Buffer &buffer) { return !buffer.busy; });
    return free == m_buffers.end() ? nullptr : &*free;
}

void WaylandShmBuffers::handleRelease(void *data, wl_buffer *)
{
    auto *buffer = static_cast<Buffer *>(data);
    buffer->busy = false;
    if (buffer->owner->m_onRelease)
        buffer->owner->m_onRelease();
}
