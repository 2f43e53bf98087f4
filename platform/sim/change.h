// A change to a device's files: complete or absent, whatever happens to the process, and never lost to
// another process that changes the same device.
#pragma once

#include <string_view>

#include "platform/sim/machine_directory.h"

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
