#include "platform/sim/device.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace {

// Where a replacement is written. No request can ask for a file of this name. Whoever holds the lock owns it,
// so what a killed process left there is in nobody's way.
constexpr char kNewFile[] = ".new";

bool WriteAll(const Descriptor& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(file.Get(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        bytes.remove_prefix(static_cast<size_t>(count));
    }
    return true;
}

// The permissions that the file of a name has now, for the one that takes its place.
mode_t PermissionsOf(const Descriptor& directory, const char* name) {
    struct stat status;
    const bool known = fstatat(directory.Get(), name, &status, 0) == 0 && S_ISREG(status.st_mode);
    return known ? status.st_mode & 07777 : 0644;
}

bool WriteNewFile(const Descriptor& directory, mode_t permissions, std::string_view bytes) {
    if (unlinkat(directory.Get(), kNewFile, 0) != 0 && errno != ENOENT) return false;
    const Descriptor file(openat(directory.Get(), kNewFile, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    return file && WriteAll(file, bytes) && fchmod(file.Get(), permissions) == 0 && fsync(file.Get()) == 0;
}

}  // namespace

DeviceChange::DeviceChange(const char* device) : directory_(OpenDevice(device)) {
    if (!directory_) return;
    int locked = flock(directory_.Get(), LOCK_EX);
    while (locked != 0 && errno == EINTR) locked = flock(directory_.Get(), LOCK_EX);
    if (locked != 0) directory_ = Descriptor();
}

int DeviceChange::Replace(const char* name, std::string_view bytes) const {
    const int directory = directory_.Get();
    if (WriteNewFile(directory_, PermissionsOf(directory_, name), bytes) &&
        renameat(directory, kNewFile, directory, name) == 0) {
        return fsync(directory) == 0 ? 0 : -errno;
    }
    const int reason = errno;
    unlinkat(directory, kNewFile, 0);
    return -reason;
}
