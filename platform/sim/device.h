// The health driver's four devices: the requests that each one accepts, their trace lines and their effects.
#pragma once

#include "platform/sim/call.h"

struct Device {
    const char* name;  // name of the device, and of its directory in the machine
    const char* path;  // path of the driver's device file

    // Returns whether a request is valid: whether the device accepts such a code, and the block isn't null.
    // `code` and `block` are the arguments of vxIoctlRequest.
    bool (*accepts)(int code, const void* block);

    // Describes a valid request.
    void (*describe)(int code, const void* block, Call& call);

    // Executes a valid request. Returns 0 or the request's status, or -errno. May throw std::bad_alloc.
    int (*request)(int code, void* block);
};

extern const Device kCdt, kCevt, kCasr, kCrom;
