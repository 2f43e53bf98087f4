#include "src/utils/map_physical.h"

#include <unistd.h>

#include <cstdint>

#include "platform/physical_memory.h"

long __brantcli_pgsz = 0;

namespace {

// The pages that contain a range. The numbers have 64 bits on every ABI, so that the end of a range at 4 GiB
// doesn't overflow.
struct Pages {
    uint64_t start;
    uint64_t length;  // in bytes
};

Pages PagesAround(uint64_t start, uint64_t length) {
    if (__brantcli_pgsz == 0) {
        __brantcli_pgsz = sysconf(_SC_PAGESIZE);
        if (__brantcli_pgsz < 0) __brantcli_pgsz = 4096;
    }
    const uint64_t in_page = static_cast<uint64_t>(__brantcli_pgsz) - 1;
    const uint64_t startoff = start & ~in_page;
    const uint64_t endoff = (start + length + in_page) & ~in_page;
    return {startoff, endoff - startoff};
}

}  // namespace

void* zetMapPhys32UnCache(unsigned long ulPhysAddr, unsigned long ulLength) {
    const Pages pages = PagesAround(ulPhysAddr, ulLength);
    if (ulPhysAddr == 0) return nullptr;
    const int fd = xsvc_open();
    if (fd < 0) return nullptr;

    void* mapping = xsvc_map(fd, static_cast<off_t>(pages.start), static_cast<size_t>(pages.length));
    xsvc_close(fd);
    return mapping != nullptr ? static_cast<unsigned char*>(mapping) + (ulPhysAddr - pages.start) : nullptr;
}

void zetUnMapPhys32UnCache(unsigned char* VirtAddr, unsigned int size) {
    if (VirtAddr == nullptr) return;
    const auto address = reinterpret_cast<uintptr_t>(VirtAddr);
    // The mapping starts at a page boundary, so it also contains the bytes before the range in the first
    // page.
    const Pages pages = PagesAround(address, size);
    xsvc_unmap(VirtAddr - (address - pages.start), static_cast<size_t>(pages.length));
}
