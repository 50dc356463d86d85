#include "platform/evdev/EvdevRecordReader.h"

#include <cerrno>
#include <cstring>

#include <unistd.h>

EvdevRecordReader::Result EvdevRecordReader::read(int fd, std::vector<input_event> &records)
{
    std::array<unsigned char, recordSize * recordsPerRead> buffer;
    std::memcpy(buffer.data(), m_partial.data(), m_partialSize);
    ssize_t count = 0;
    do
        count = ::read(fd, buffer.data() + m_partialSize, buffer.size() - m_partialSize);
    while (count < 0 && errno == EINTR);
    if (count < 0)
        return errno == EAGAIN || errno == EWOULDBLOCK ? Result::empty : Result::end;
    if (count == 0)
        return Result::end;
    const std::size_t available = m_partialSize + std::size_t(count);
    const std::size_t whole = available / recordSize;
    for (std::size_t i = 0; i < whole; ++i) {
        input_event record;
        std::memcpy(&record, buffer.data() + i * recordSize, recordSize);
        records.push_back(record);
    }
    m_partialSize = available - whole * recordSize;
    std::memcpy(m_partial.data(), buffer.data() + whole * recordSize, m_partialSize);
    return Result::records;
}
