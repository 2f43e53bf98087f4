#include "platform/sim/event_index.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>
#include <tuple>

#include "include/event_log.h"

namespace {

constexpr size_t kWindowSize = size_t{1} << 16;  // bytes

// Yields the headers of a log from its beginning. It reads the file in large pieces, each once.
class HeaderReader {
  public:
    explicit HeaderReader(const Descriptor& log) : log_(log), window_(kWindowSize, '\0') {}

    // The header at an offset, no lower than that of the call before. Result: false with errno set, EIO when
    // the file is shorter than it was.
    bool Read(off_t offset, EVT_HEADER& header) {
        const auto size = static_cast<off_t>(sizeof header);
        if (offset + size > begin_ + filled_ && !Fill(offset)) return false;
        if (filled_ - (offset - begin_) < size) {
            errno = EIO;
            return false;
        }
        std::memcpy(&header, window_.data() + (offset - begin_), sizeof header);
        return true;
    }

  private:
    bool Fill(off_t offset) {
        const ssize_t count = ReadAt(log_.Get(), window_.data(), window_.size(), offset);
        begin_ = offset;
        filled_ = std::max<off_t>(count, 0);
        return count >= 0;
    }

    const Descriptor& log_;
    std::string window_;
    off_t begin_ = 0, filled_ = 0;  // the window's place in the file, its bytes
};

bool Same(const timespec& a, const timespec& b) {
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

bool ComesBefore(const EventPlace& a, const EventPlace& b) {
    return std::tie(a.number, a.offset) < std::tie(b.number, b.offset);
}

}  // namespace

bool EventIndex::Identity::operator==(const Identity& other) const {
    return device == other.device && inode == other.inode && size == other.size &&
           Same(written, other.written) && Same(changed, other.changed);
}

int EventIndex::Follow(const Descriptor& log) {
    struct stat status;
    if (fstat(log.Get(), &status) != 0) return -errno;
    const Identity now = {status.st_dev, status.st_ino, status.st_size, status.st_mtim, status.st_ctim};
    if (built_ && now == identity_) return 0;

    built_ = false;
    places_.clear();
    const int result = Build(log, status.st_size);
    if (result != 0) return result;
    std::sort(places_.begin(), places_.end(), ComesBefore);
    identity_ = now;
    built_ = true;
    return 0;
}

int EventIndex::Build(const Descriptor& log, off_t size) {
    HeaderReader reader(log);
    EVT_HEADER header;
    const auto header_size = static_cast<off_t>(sizeof header);
    for (off_t offset = 0; size - offset >= header_size; offset += header.wEvtLength) {
        if (!reader.Read(offset, header)) return -errno;
        // What can't be an entry ends the log: there is no telling where the next one would begin.
        if (header.wEvtLength < header_size || header.wEvtLength > size - offset) break;
        places_.push_back({header.dwEvtNumber, header.wEvtLength, offset});
    }
    return 0;
}

const EventPlace* EventIndex::Find(uint32_t number) const {
    const EventPlace wanted = {number, 0, 0};
    const auto found = std::lower_bound(places_.begin(), places_.end(), wanted, ComesBefore);
    return found != places_.end() ? &*found : nullptr;
}
