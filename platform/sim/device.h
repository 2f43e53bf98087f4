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

// A change to a device's files: complete or absent, whatever happens to the process, and never lost to
// another process that changes the same device.
class DeviceChange {
  public:
    // Waits for the lock of a device's directory; it is held until the scope ends. What is read meanwhile is
    // what the replacement will replace.
    explicit DeviceChange(const char* device);

    explicit operator bool() const { return static_cast<bool>(directory_); }  // false: failed, errno is set
    const Descriptor& Directory() const { return directory_; }

    // Puts bytes in the place of a file, or creates it; on disk when the call returns. Result: 0, or -E with
    // the old file still there.
    int Replace(const char* name, std::string_view bytes) const;

  private:
    Descriptor directory_;
};
