// Changes to the files of a device.
#pragma once

#include <string_view>

#include "platform/sim/machine_directory.h"

// A change to the files of a device. It is complete or absent, even if the process is killed, and it is never
// lost if another process changes the same device at the same time.
class DeviceChange {
  public:
    // Waits for the lock of the device's directory and holds it until the scope ends. A file that is read
    // during this time is unchanged when Replace() replaces it.
    explicit DeviceChange(const char* device);

    // Returns the device's directory. Returns an empty descriptor, with errno set, if the directory can't be
    // opened or locked.
    const Descriptor& Directory() const { return directory_; }

    // Replaces the contents of a file, or creates the file, and syncs it to disk. Returns 0, or -errno. After
    // a failure the file is unchanged, with one exception: if only the directory can't be synced, the file
    // has its new contents, but may have the old ones again after a power failure.
    int Replace(const char* name, std::string_view bytes) const;

  private:
    Descriptor directory_;
};
