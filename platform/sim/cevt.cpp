// The event log: the file `hlog`, which contains the entries one after another.
#include <sys/stat.h>

#include <cerrno>
#include <cstdint>
#include <ctime>
#include <string>

#include "include/event_log.h"
#include "platform/sim/device.h"
#include "platform/sim/device_change.h"
#include "platform/sim/event_index.h"
#include "platform/sim/machine_directory.h"

namespace {

constexpr char kLogFile[] = "hlog";

bool Accepts(int code, const void* arg) {
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

// Returns whether `now` is the status of the same file with unchanged contents. Each change updates st_ctim.
bool IsUnchanged(const struct stat& before, const struct stat& now) {
    return before.st_dev == now.st_dev && before.st_ino == now.st_ino && before.st_size == now.st_size &&
           before.st_ctim.tv_sec == now.st_ctim.tv_sec && before.st_ctim.tv_nsec == now.st_ctim.tv_nsec;
}

// Returns whether a later change would result in a different st_ctim. The clock of file systems advances
// every 10 ms or more often, so two changes in quick succession can have the same time.
bool WouldShowChange(const struct stat& status) {
    constexpr double kClockTick = 0.05;  // in seconds, including a margin
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    const double age = static_cast<double>(now.tv_sec - status.st_ctim.tv_sec) +
                       static_cast<double>(now.tv_nsec - status.st_ctim.tv_nsec) / 1e9;
    return age > kClockTick;
}

// The log's file and its index. Both are kept from one request to the next, until the file changes.
class Log {
  public:
    // Opens and indexes the log, unless the log is unchanged. Returns 0; 1 if there is no log; or -errno.
    int Refresh();

    // Copies the requested entry. Returns the request's status, or -errno.
    int Read(const LOG_INFO& block, void* entry) const;

  private:
    Descriptor file_;  // kept open, so that no other file can get its inode number
    EventIndex index_;
    struct stat status_ {};    // status of the file when it was indexed
    bool is_current_ = false;  // whether the index is valid as long as the file's status doesn't change
};

int Log::Refresh() {
    // The path is only used to compare the file with the open one, so a symbolic link in it is harmless.
    const std::string path = std::string(MachinePath()) + '/' + kCevt.name + '/' + kLogFile;
    struct stat now;
    if (is_current_ && fstatat(AT_FDCWD, path.c_str(), &now, AT_SYMLINK_NOFOLLOW) == 0 &&
        IsUnchanged(status_, now))
        return 0;

    is_current_ = false;
    const int opened = OpenDeviceFile(OpenDevice(kCevt.name), kLogFile, file_);
    if (opened != 0) return opened;
    if (fstat(file_.Get(), &status_) != 0) return -errno;
    const bool would_show_change = WouldShowChange(status_);
    const int result = index_.Build(file_);
    is_current_ = result == 0 && would_show_change;
    return result;
}

int Log::Read(const LOG_INFO& block, void* entry) const {
    const IndexedEvent* const event = index_.Find(static_cast<uint32_t>(block.EvtNumber));
    if (event == nullptr) return kEndOfLog;
    if (block.length < sizeof block || block.length - sizeof block < event->length) return kBufferTooSmall;
    const ssize_t count = ReadAt(file_.Get(), entry, event->length, event->offset);
    if (count < 0) return -errno;
    return count == event->length ? kEntryRead : -EIO;
}

int Clear() {
    const DeviceChange change(kCevt.name);
    if (!change.Directory()) return -errno;
    return change.Replace(kLogFile, {});
}

// Reads an entry into the bytes after the request block.
int Read(LOG_INFO& block) {
    static Log log;
    const int refreshed = log.Refresh();
    return refreshed == 0 ? log.Read(block, &block + 1) : refreshed;
}

int Request(int, void* arg) {
    LOG_INFO& block = *static_cast<LOG_INFO*>(arg);
    switch (block.choice) {
        case kReadEvent: return Read(block);
        case kClearEvents: return Clear();
        default: return -EINVAL;
    }
}

}  // namespace

const Device kCevt = {"cevt", "/dev/zethealth/cevt", Accepts, Describe, Request};
