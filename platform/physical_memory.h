// The physical-memory device, /dev/xsvc: a file whose offsets are physical addresses.
#pragma once

#include <sys/types.h>

#include <cstddef>

// Opens the device for reading and writing. Result: a descriptor, 0 or more; below 0 when it doesn't open.
int xsvc_open();

// Maps length bytes of the device from a physical address; both are whole pages. The mapping outlives the
// descriptor and belongs to the caller. Result: its first byte; null when it is refused.
void* xsvc_map(int fd, off_t address, size_t length);

// Ends a mapping of xsvc_map, whole pages as it was made.
void xsvc_unmap(void* mapping, size_t length);

void xsvc_close(int fd);
