// The request library: opens and closes descriptors, and sends each request to its descriptor's device.
#include "platform/sim/device.h"

#include <cerrno>
#include <string_view>

#include "platform/request.h"
#include "platform/sim/machine_directory.h"

namespace {

const Device* const kDevices[] = {&kCdt, &kCevt, &kCasr, &kCrom};

constexpr int kMaxOpen = 64;
const Device* open_devices[kMaxOpen];  // indexed by descriptor; null if the descriptor isn't open
unsigned long requests_made = 0;

// Returns the device with this path, or null if there is none.
const Device* FindDevice(std::string_view path) {
    for (const Device* device : kDevices) {
        if (path == device->path) return device;
    }
    return nullptr;
}

// Returns the device of a descriptor, or null if `fd` isn't open.
const Device* DeviceOf(int fd) {
    return fd >= 0 && fd < kMaxOpen ? open_devices[fd] : nullptr;
}

// Opens a descriptor of `device`. Returns it, or -errno.
int OpenDescriptor(const Device* device) {
    if (device == nullptr) return -ENOENT;
    if (!OpenDevice(device->name)) {
        if (errno != ENOENT) ReportFailure(device->name);
        return -errno;
    }
    for (int fd = 0; fd < kMaxOpen; ++fd) {
        if (open_devices[fd] != nullptr) continue;
        open_devices[fd] = device;
        return fd;
    }
    return -EMFILE;
}

}  // namespace

int vxOpenRequest(char* path, int) {
    const Device* const device = FindDevice(path);
    const auto describe = [&](Call& call) {
        call.SetSubject("open %s", device != nullptr ? device->name : path);
    };
    int fd = 0;
    const int result = Perform(describe, [&] {
        fd = OpenDescriptor(device);
        return fd < 0 ? fd : 0;
    });
    return result < 0 ? ReturnValue(result) : fd;
}

int vxIoctlRequest(int fd, int code, void* arg) {
    const Device* const device = DeviceOf(fd);
    const bool valid = device != nullptr && device->accepts(code, arg);
    ++requests_made;
    const auto describe = [&](Call& call) {
        call.request = requests_made;
        if (valid) {
            device->describe(code, arg, call);
        } else if (device != nullptr) {
            call.SetSubject("%s code=%d", device->name, code);
        } else {
            call.SetSubject("fd=%d code=%d", fd, code);
        }
    };
    return ReturnValue(Perform(describe, [&] {
        if (device == nullptr) return -EBADF;
        return valid ? device->request(code, arg) : -EINVAL;
    }));
}

void vxCloseRequest(int fd) {
    const Device* const device = DeviceOf(fd);
    if (device == nullptr) return;
    open_devices[fd] = nullptr;
    TraceWithoutResult([&](Call& call) { call.SetSubject("close %s", device->name); });
}
