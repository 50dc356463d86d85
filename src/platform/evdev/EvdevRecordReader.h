#pragma once

#include <linux/input.h>

#include <array>
#include <cstddef>
#include <vector>

// Reads `struct input_event` records from a file descriptor. Kernel devices return whole records,
// but pipes and files (the input helper, tests) may split a record across reads, so the bytes of
// an unfinished record are kept for the next read.
class EvdevRecordReader final {
public:
    enum class Result {
        records, // zero or more whole records were appended; more may follow
        empty,   // nothing to read now
        end,     // end of file, or the device is gone (or failed)
    };

    // Reads once from the non-blocking `fd` and appends the whole records read to `records`.
    Result read(int fd, std::vector<input_event> &records);
    // Forgets an unfinished record (the descriptor was closed or reopened).
    void reset() { m_partialSize = 0; }

private:
    static constexpr std::size_t recordSize = sizeof(input_event);
    // One read takes up to this many records: enough for a burst, small enough to stay fair
    // between devices.
    static constexpr std::size_t recordsPerRead = 128;

    std::array<unsigned char, recordSize> m_partial{};
    std::size_t m_partialSize = 0;
};
