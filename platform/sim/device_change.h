// Changes to the files of a device.
#pragma once

#include <string_view>

#include "platform/sim/machine_directory.h"

// A change to the files of a device: complete or absent, even if the process is killed, and never lost to
// another process that changes the same device at the same time.
class DeviceChange {
  public:
    // Waits for the lock of the device's directory and holds it until the scope ends. Files that are read
    // while it is held are still the same when Replace() replaces them.
    explicit DeviceChange(const char* device);

    // Returns the device's directory; an empty descriptor, with errno set, if it can't be opened or locked.
    const Descriptor& Directory() const { return directory_; }

    // Replaces the contents of a file, or creates it, and syncs it to disk. Returns 0, or -errno. The old
    // file is unchanged after a failure, except if only the directory can't be synced: the new file is in
    // place then, but a power failure may bring the old one back.
    int Replace(const char* name, std::string_view bytes) const;

  private:
    Descriptor directory_;
};
