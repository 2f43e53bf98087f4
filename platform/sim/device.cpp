// The request library: descriptors, requests on the devices that they stand for, and the changes that they
// make.
#include "platform/sim/device.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "platform/request.h"
#include "platform/sim/call.h"
#include "platform/sim/machine_directory.h"

namespace {

const Device* const kDevices[] = {&kCdt, &kCevt, &kCasr, &kCrom};

constexpr int kMaxOpen = 64;
const Device* open_devices[kMaxOpen];  // by descriptor; null: not open
unsigned long requests_made = 0;

const Device* FindDeviceByPath(std::string_view path) {
    for (const Device* device : kDevices) {
        if (path == device->path) return device;
    }
    return nullptr;
}

const Device* DeviceOf(int fd) {
    return fd >= 0 && fd < kMaxOpen ? open_devices[fd] : nullptr;
}

// Result: a descriptor, or -E.
int OpenDescriptor(const Device* device) {
    if (device == nullptr) return -ENOENT;
    if (!OpenDevice(device->name)) return -errno;
    for (int fd = 0; fd < kMaxOpen; ++fd) {
        if (open_devices[fd] != nullptr) continue;
        open_devices[fd] = device;
        return fd;
    }
    return -EMFILE;
}

}  // namespace

const Device* FindDeviceByName(std::string_view name) {
    for (const Device* device : kDevices) {
        if (name == device->name) return device;
    }
    return nullptr;
}

int vxOpenRequest(char* path, int) {
    const Device* const device = FindDeviceByPath(path);
    const auto describe = [&](Call& call) {
        call.SetSubject("open %s", device != nullptr ? device->name : path);
    };
    int fd = 0;
    const int result = Perform(describe, [&] {
        fd = OpenDescriptor(device);
        return fd < 0 ? fd : 0;
    });
    return result < 0 ? Returned(result) : fd;
}

int vxIoctlRequest(int fd, int code, void* arg) {
    const Device* const device = DeviceOf(fd);
    const bool known = device != nullptr && device->knows(code, arg);
    ++requests_made;
    const auto describe = [&](Call& call) {
        call.request = requests_made;
        if (known) {
            device->describe(code, arg, call);
        } else if (device != nullptr) {
            call.SetSubject("%s code=%d", device->name, code);
        } else {
            call.SetSubject("fd=%d code=%d", fd, code);
        }
    };
    return Returned(Perform(describe, [&] {
        if (device == nullptr) return -EBADF;
        return known ? device->request(code, arg) : -EINVAL;
    }));
}

void vxCloseRequest(int fd) {
    const Device* const device = DeviceOf(fd);
    if (device == nullptr) return;
    open_devices[fd] = nullptr;
    TraceWithoutResult([&](Call& call) { call.SetSubject("close %s", device->name); });
}

// Changes.

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
