// The event log: one file, `hlog`, of entries one after the other.
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <optional>

#include "include/event_log.h"
#include "platform/sim/device.h"
#include "platform/sim/device_change.h"
#include "platform/sim/event_index.h"
#include "platform/sim/machine_directory.h"

namespace {

constexpr char kLogFile[] = "hlog";

bool Knows(int code, const void* arg) {
    return code == kEventLogRequest && arg != nullptr;
}

void Describe(int /*code*/, const void* arg, Call& call) {
    const auto& block = *static_cast<const LOG_INFO*>(arg);
    switch (block.choice) {
        case kReadEvent: call.SetSubject("cevt read %d", block.EvtNumber); break;
        case kClearEvents: call.SetSubject("cevt clear"); break;
        default: call.SetSubject("cevt choice=%d", block.choice); break;
    }
    call.SetDetail(" length=%u", block.length);
}

// What tells one state of a file from another: every change of its bytes sets the time.
struct Identity {
    dev_t device;
    ino_t inode;
    off_t size;
    timespec changed;

    explicit Identity(const struct stat& status)
        : device(status.st_dev), inode(status.st_ino), size(status.st_size), changed(status.st_ctim) {}
    bool operator==(const Identity& other) const {
        return device == other.device && inode == other.inode && size == other.size &&
               changed.tv_sec == other.changed.tv_sec && changed.tv_nsec == other.changed.tv_nsec;
    }
};

// Whether the next change will show in the time of the last change. File systems take the time from a clock
// that stands still for up to 10 ms, so it doesn't for a file that has just been changed.
bool NextChangeShows(const Identity& file) {
    constexpr double kLongEnough = 0.05;  // seconds
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    return static_cast<double>(now.tv_sec - file.changed.tv_sec) +
               static_cast<double>(now.tv_nsec - file.changed.tv_nsec) / 1e9 >
           kLongEnough;
}

// The log's file, held open from one request to the next, with what is known of it. Its name is looked up at
// each request all the same, because another program may have put another file in its place.
class Log {
  public:
    // Brings what is known up to date. Result: 0; 1 when there is no log; or -E.
    int Follow();

    const EventPlace* Find(uint32_t number) { return index_.Find(number); }

    // Copies an entry. Result: 0, or -E.
    int Copy(const EventPlace& place, void* entry);

  private:
    int Open();

    std::string machine_, path_;  // the directory's path, and the file's
    Descriptor file_;
    // Of the file that the index and the window are made from; none when its next change might not show, so
    // that it is opened anew for each request.
    std::optional<Identity> identity_;
    EventIndex index_;
    FileWindow window_;
    off_t end_of_last_ = 0;  // the offset behind the entry that was copied last
};

int Log::Follow() {
    const char* const machine = MachinePath();
    if (machine_ != machine) {
        machine_ = machine;
        path_ = machine_ + '/' + kCevt.name + '/' + kLogFile;
    }
    struct stat status;
    const bool known = identity_ && fstatat(AT_FDCWD, path_.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
                       *identity_ == Identity(status);
    return known ? 0 : Open();
}

int Log::Open() {
    identity_.reset();
    window_.Clear();
    const int opened = OpenDeviceFile(OpenDevice(kCevt.name), kLogFile, file_);
    if (opened != 0) return opened;
    struct stat status;
    if (fstat(file_.Get(), &status) != 0) return -errno;
    const Identity identity(status);
    const bool next_change_shows = NextChangeShows(identity);
    const int result = index_.Make(file_);
    if (result == 0 && next_change_shows) identity_ = identity;
    return result;
}

int Log::Copy(const EventPlace& place, void* entry) {
    const bool follows_last = place.offset == end_of_last_;
    end_of_last_ = place.offset + place.length;
    if (follows_last && identity_) return window_.Read(file_, place.offset, entry, place.length) ? 0 : -errno;

    uint8_t bytes[UINT16_MAX];
    const ssize_t count = ReadAt(file_.Get(), bytes, place.length, place.offset);
    if (count != place.length) return count < 0 ? -errno : -EIO;
    std::memcpy(entry, bytes, place.length);
    return 0;
}

// entry: where the reply goes, behind the block.
int Read(const LOG_INFO& block, void* entry) {
    static Log log;
    const int followed = log.Follow();
    if (followed != 0) return followed;
    const EventPlace* const place = log.Find(static_cast<uint32_t>(block.EvtNumber));
    if (place == nullptr) return kEndOfLog;
    if (block.length < sizeof block || block.length - sizeof block < place->length) return kBufferTooSmall;
    const int copied = log.Copy(*place, entry);
    return copied == 0 ? kEntryRead : copied;
}

int Clear() {
    const DeviceChange change(kCevt.name);
    if (!change.Directory()) return -errno;
    return change.Replace(kLogFile, {});
}

int Request(int, void* arg) {
    const LOG_INFO& block = *static_cast<const LOG_INFO*>(arg);
    switch (block.choice) {
        case kReadEvent: return Read(block, static_cast<uint8_t*>(arg) + sizeof block);
        case kClearEvents: return Clear();
        default: return -EINVAL;
    }
}

}  // namespace

const Device kCevt = {"cevt", "/dev/zethealth/cevt", Knows, Describe, Request};
