#include "platform/sim/event_index.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <tuple>

#include "include/event_log.h"

namespace {

bool ComesBefore(const EventPlace& a, const EventPlace& b) {
    return std::tie(a.number, a.offset) < std::tie(b.number, b.offset);
}

}  // namespace

int EventIndex::Make(const Descriptor& log) {
    places_.clear();
    next_ = 0;
    struct stat status;
    if (fstat(log.Get(), &status) != 0) return -errno;
    const int result = Read(log, status.st_size);
    if (result != 0) places_.clear();
    if (!std::is_sorted(places_.begin(), places_.end(), ComesBefore)) {
        std::sort(places_.begin(), places_.end(), ComesBefore);
    }
    return result;
}

int EventIndex::Read(const Descriptor& log, off_t size) {
    FileWindow window;
    EVT_HEADER header;
    const auto header_size = static_cast<off_t>(sizeof header);
    for (off_t offset = 0; size - offset >= header_size; offset += header.wEvtLength) {
        if (!window.Read(log, offset, &header, sizeof header)) return -errno;
        // What can't be an entry ends the log: there is no telling where the next one would begin.
        if (header.wEvtLength < header_size || header.wEvtLength > size - offset) break;
        places_.push_back({header.dwEvtNumber, header.wEvtLength, offset});
    }
    return 0;
}

const EventPlace* EventIndex::Find(uint32_t number) {
    const bool follows = next_ > 0 && next_ < places_.size() && places_[next_ - 1].number < number &&
                         number <= places_[next_].number;
    if (!follows) {
        const EventPlace wanted = {number, 0, 0};
        const auto found = std::lower_bound(places_.begin(), places_.end(), wanted, ComesBefore);
        next_ = static_cast<size_t>(found - places_.begin());
    }
    return next_ < places_.size() ? &places_[next_++] : nullptr;
}

bool FileWindow::Read(const Descriptor& file, off_t offset, void* piece, size_t size) {
    constexpr size_t kSize = size_t{1} << 16;
    const auto holds = [&] {
        const auto before = static_cast<size_t>(offset - begin_);
        return offset >= begin_ && before <= filled_ && size <= filled_ - before;
    };
    if (!holds()) {
        bytes_.resize(kSize);
        const ssize_t count = ReadAt(file.Get(), bytes_.data(), bytes_.size(), offset);
        begin_ = offset;
        filled_ = static_cast<size_t>(std::max<ssize_t>(count, 0));
        if (count >= 0 && !holds()) errno = EIO;
        if (!holds()) return false;
    }
    std::memcpy(piece, bytes_.data() + (offset - begin_), size);
    return true;
}
