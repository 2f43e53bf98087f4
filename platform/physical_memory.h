// The physical-memory device, /dev/xsvc: a file whose offsets are physical addresses.
#pragma once

#include <sys/types.h>

#include <cstddef>

// Opens the device for reading and writing. Returns a descriptor, or a negative number if it can't be opened.
int xsvc_open();

// Maps `length` bytes of the device from the physical address `address`; both are multiples of the page size.
// The caller owns the mapping, which stays valid when the descriptor is closed. Returns its first byte, or
// null on failure.
void* xsvc_map(int fd, off_t address, size_t length);

// Removes a mapping of xsvc_map. `length` is the length that was mapped.
void xsvc_unmap(void* mapping, size_t length);

void xsvc_close(int fd);
