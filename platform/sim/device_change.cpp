#include "platform/sim/device_change.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/sim/directory_lock.h"

namespace {

// The name under which the replacement is written. No request can access this file. Only the process that
// holds the lock uses it, so the process can remove one that a killed process has left.
constexpr char kNewFile[] = ".new";

constexpr mode_t kReadAndWrite = 0666;  // permission bits that a replaced file keeps: no set-user-ID bit
constexpr mode_t kOfNewFile = 0644;

// Chooses the permissions of a file's replacement. Returns 0, or -errno if `name` isn't a regular file.
int GetPermissions(const Descriptor& directory, const char* name, mode_t& permissions) {
    struct stat status;
    permissions = kOfNewFile;
    if (fstatat(directory.Get(), name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return errno == ENOENT ? 0 : -errno;
    }
    permissions = status.st_mode & kReadAndWrite;
    return -FileTypeError(status);
}

bool WriteNewFile(const Descriptor& directory, mode_t permissions, std::string_view bytes) {
    if (unlinkat(directory.Get(), kNewFile, 0) != 0 && errno != ENOENT) return false;
    const Descriptor file(openat(directory.Get(), kNewFile, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    return file && WriteRest(file.Get(), bytes) && fchmod(file.Get(), permissions) == 0 &&
           fsync(file.Get()) == 0;
}

}  // namespace

DeviceChange::DeviceChange(const char* device) : directory_(OpenDevice(device)) {
    if (!directory_) return;
    const int error = LockDirectory(directory_, device);
    if (error == 0) return;
    directory_ = Descriptor();
    errno = error;
}

int DeviceChange::Replace(const char* name, std::string_view bytes) const {
    mode_t permissions = 0;
    const int checked = GetPermissions(directory_, name, permissions);
    if (checked != 0) return checked;

    const int directory = directory_.Get();
    if (WriteNewFile(directory_, permissions, bytes) && renameat(directory, kNewFile, directory, name) == 0) {
        return fsync(directory) == 0 ? 0 : -errno;
    }
    const int error = errno;
    unlinkat(directory, kNewFile, 0);
    return -error;
}
