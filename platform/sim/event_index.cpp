#include "platform/sim/event_index.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "include/event_log.h"

int EventIndex::Build(const Descriptor& log) {
    events_.clear();
    const int result = ReadEntries(log);
    const auto has_lower_number = [](const IndexedEvent& a, const IndexedEvent& b) {
        return a.number < b.number;
    };
    std::stable_sort(events_.begin(), events_.end(), has_lower_number);
    return result;
}

int EventIndex::ReadEntries(const Descriptor& log) {
    struct stat status;
    if (fstat(log.Get(), &status) != 0) return -errno;
    char chunk[size_t{1} << 16];
    for (off_t offset = 0;;) {
        const ssize_t count = ReadAt(log.Get(), chunk, sizeof chunk, offset);
        if (count < 0) return -errno;
        const off_t next = AddEntries({chunk, static_cast<size_t>(count)}, offset, status.st_size);
        if (next == offset) return 0;
        offset = next;
    }
}

// Adds the entries whose headers are in `chunk`, which starts at `offset` of the log. Returns the offset
// after the last entry. An entry with an invalid length ends the log, because the next entry can't be found.
off_t EventIndex::AddEntries(std::string_view chunk, off_t offset, off_t log_size) {
    const off_t end = offset + static_cast<off_t>(chunk.size());
    EVT_HEADER header;
    const auto header_size = static_cast<off_t>(sizeof header);
    off_t next = offset;
    while (end - next >= header_size) {
        std::memcpy(&header, chunk.data() + (next - offset), sizeof header);
        if (header.wEvtLength < header_size || header.wEvtLength > log_size - next) break;
        events_.push_back({header.dwEvtNumber, header.wEvtLength, next});
        next += header.wEvtLength;
    }
    return next;
}

const IndexedEvent* EventIndex::Find(uint32_t number) const {
    const auto is_lower = [](const IndexedEvent& event, uint32_t wanted) { return event.number < wanted; };
    const auto found = std::lower_bound(events_.begin(), events_.end(), number, is_lower);
    return found != events_.end() ? &*found : nullptr;
}
