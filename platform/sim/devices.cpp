#include "platform/sim/devices.h"

namespace {

const Device* const kDevices[] = {&kCdt, &kCevt, &kCasr, &kCrom};

}  // namespace

const Device* FindDeviceByName(std::string_view name) {
    for (const Device* device : kDevices) {
        if (name == device->name) return device;
    }
    return nullptr;
}

const Device* FindDeviceByPath(std::string_view path) {
    for (const Device* device : kDevices) {
        if (path == device->path) return device;
    }
    return nullptr;
}
