// The lock of a device's directory, which a program holds while it changes a file in it.
#pragma once

#include "platform/sim/machine_directory.h"

// Locks a device's directory (flock) until its descriptor is closed. Waits as long as another program holds
// the lock. After a second it reports on standard error which directory it waits for. ^C on the terminal ends
// the wait. Returns 0, or an errno: EINTR after ^C.
int LockDirectory(const Descriptor& directory, const char* device);
