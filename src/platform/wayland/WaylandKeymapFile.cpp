#include "platform/wayland/WaylandKeymapFile.h"

#include <sys/mman.h>

QByteArray WaylandKeymapFile::read(int fd, quint32 size)
{
    // Private mapping: from wl_keyboard version 7 on the compositor may share a read-only fd.
    void *map = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, fd, 0);
    if (map == MAP_FAILED)
        return {};
    // The size counts a terminating zero, which a broken compositor may leave out.
    const QByteArray text(static_cast<const char *>(map),
                          qstrnlen(static_cast<const char *>(map), size));
    munmap(map, size);
    return text;
}
