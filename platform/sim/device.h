// The health driver's four devices: which requests each knows, how they read in the trace, and what they do.
#pragma once

#include <string_view>

#include "platform/sim/call.h"
#include "platform/sim/machine_directory.h"

struct Device {
    const char* name;  // its directory's, too
    const char* path;  // the device file's

    // Whether the device has words for a request and can carry it out: it knows the code, and the block is
    // there. code, block: as vxIoctlRequest takes them.
    bool (*knows)(int code, const void* block);

    // Puts a known request into words.
    void (*describe)(int code, const void* block, Call& call);

    // Carries out a known request. Result: 0 or the request's status, or -E. May throw
    // std::bad_alloc.
    int (*request)(int code, void* block);
};

extern const Device kCdt, kCevt, kCasr, kCrom;

// The device of a name; null when there is none.
const Device* FindDeviceByName(std::string_view name);
