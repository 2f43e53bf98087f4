// Maps physical memory into the process through the physical-memory device.
#pragma once

// The system's page size in bytes; 0 until the first call of a function below.
extern long __brantcli_pgsz;

// Maps the pages that contain the `ulLength` bytes at the physical address `ulPhysAddr`. Opens the device
// only for this call. Returns a pointer to the range's first byte, which the caller releases with
// zetUnMapPhys32UnCache. Returns null if `ulPhysAddr` is 0, or if the device can't be opened or rejects the
// range. Prints nothing.
void* zetMapPhys32UnCache(unsigned long ulPhysAddr, unsigned long ulLength);

// Releases a mapping. `VirtAddr` is the pointer that zetMapPhys32UnCache returned, or null to do nothing.
// `size` is the length that was passed to it.
void zetUnMapPhys32UnCache(unsigned char* VirtAddr, unsigned int size);
