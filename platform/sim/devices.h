// The health driver's four devices: how each of their requests reads in the trace, and what it does.
#pragma once

#include <string_view>

#include "platform/sim/call.h"

struct Device {
    const char* name;  // its directory's, too
    const char* path;  // the device file's

    // Words a request. code, block: as vxIoctlRequest takes them. call: words any request already. False for
    // a request that the device doesn't know, or one that lacks its block.
    bool (*describe)(int code, const void* block, Call& call);

    // Carries out a request that describe accepted. Result: 0 or the request's status, or -E. May throw
    // std::bad_alloc.
    int (*request)(int code, void* block);
};

extern const Device kCdt, kCevt, kCasr, kCrom;

// The device of a name or of a path; null when there is none.
const Device* FindDeviceByName(std::string_view name);
const Device* FindDeviceByPath(std::string_view path);
