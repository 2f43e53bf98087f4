// The request library: descriptors, and requests on the devices that they refer to.
#include "platform/sim/device.h"

#include <cerrno>

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
