// Physical memory as the firmware left it, mapped into the process through the system's device for it.
#pragma once

// The system's page size in bytes; 0 until the first use of the functions below.
extern long __brantcli_pgsz;

// Maps a range of physical memory. ulPhysAddr: its first byte, anywhere in a page; address 0 is refused.
// ulLength: bytes. The whole pages around the range are mapped; the device is open only meanwhile.
// Result: the range's first byte, to be given back with zetUnMapPhys32UnCache; null when the device doesn't
// open or refuses the range. Prints nothing.
void* zetMapPhys32UnCache(unsigned long ulPhysAddr, unsigned long ulLength);

// Ends a mapping. VirtAddr: what zetMapPhys32UnCache gave; null is ignored. size: the length it was asked
// for.
void zetUnMapPhys32UnCache(unsigned char* VirtAddr, unsigned int size);
