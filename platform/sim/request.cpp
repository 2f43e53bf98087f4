// The request library: descriptors, and requests on the devices that they stand for.
#include "platform/request.h"

#include <cerrno>

#include "platform/sim/call.h"
#include "platform/sim/devices.h"
#include "platform/sim/machine.h"

namespace {

constexpr int kMaxOpen = 64;
const Device* open_devices[kMaxOpen];  // by descriptor; null: not open
unsigned long requests_made = 0;

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

int vxOpenRequest(char* path, int) {
    const Device* const device = FindDeviceByPath(path);
    Call call;
    call.Subject("open %s", device != nullptr ? device->name : path);

    int fd = 0;
    const int result = Perform(call, [&] {
        fd = OpenDescriptor(device);
        return fd < 0 ? fd : 0;
    });
    return result < 0 ? Returned(result) : fd;
}

int vxIoctlRequest(int fd, int code, void* arg) {
    const Device* const device = DeviceOf(fd);
    Call call;
    call.request = ++requests_made;
    if (device == nullptr) {
        call.Subject("fd=%d code=%d", fd, code);
    } else {
        call.Subject("%s code=%d", device->name, code);
    }
    const bool known = device != nullptr && device->describe(code, arg, call);

    return Returned(Perform(call, [&] {
        if (device == nullptr) return -EBADF;
        return known ? device->request(code, arg) : -EINVAL;
    }));
}

void vxCloseRequest(int fd) {
    const Device* const device = DeviceOf(fd);
    if (device == nullptr) return;
    open_devices[fd] = nullptr;
    Call call;
    call.Subject("close %s", device->name);
    Trace(call);
}
