// Tests that physical memory is mapped in whole pages.
#include "src/utils/map_physical.h"

#include <gtest/gtest.h>

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>

#include "tests/support/program_state.h"
#include "tests/support/test_machine.h"

static bool sysconf_fails = false;
extern "C" long __sysconf(int name);
// Not instrumented, because it is called before the address sanitizer is initialised.
__attribute__((no_sanitize("address"))) long sysconf(int name) noexcept {
    return sysconf_fails ? -1 : __sysconf(name);
}

namespace {

constexpr long kUnknown = -1;

struct MapCase {
    const char* catches;
    long page_size;  // page size from an earlier call; 0: none; kUnknown: none, and sysconf() fails
    unsigned long address, length;
    bool maps;
    const char* trace;
};

constexpr MapCase kCases[] = {
    // cases: rounding
    {"the last page isn't mapped", 0, 0xFFFF8, 16, true,
     "xsvc open -> 0\nxsvc map 0x000ff000 8192 -> 0\nxsvc close\nxsvc unmap 8192\n"},
    {"one page too many is mapped", 0, 0xF0010, 16, true,
     "xsvc open -> 0\nxsvc map 0x000f0000 4096 -> 0\nxsvc close\nxsvc unmap 4096\n"},
    {"the page size isn't stored", 2048, 0xF0801, 1, true,
     "xsvc open -> 0\nxsvc map 0x000f0800 2048 -> 0\nxsvc close\nxsvc unmap 2048\n"},
    {"there is no default page size", kUnknown, 0xF0010, 16, true,
     "xsvc open -> 0\nxsvc map 0x000f0000 4096 -> 0\nxsvc close\nxsvc unmap 4096\n"},
    // cases: ranges that are rejected
    {"address 0 is mapped", 0, 0, 16, false, ""},
    {"an empty range is mapped", 0, 0xF0000, 0, false,
     "xsvc open -> 0\nxsvc map 0x000f0000 0 -> -1 errno=22\nxsvc close\n"},
    {"the end of the range wraps in 32 bits", 0, 0xFFFFFFF0, 0x20, false,
     "xsvc open -> 0\nxsvc map 0xfffff000 8192 -> -1 errno=22\nxsvc close\n"},
};

bool IsMapped(const unsigned char* byte) {
    const uintptr_t page = reinterpret_cast<uintptr_t>(byte) & ~uintptr_t{4095};
    unsigned char in_memory = 0;
    return byte != nullptr && mincore(reinterpret_cast<void*>(page), 1, &in_memory) == 0;
}

}  // namespace

TEST(MapPhysical, MapsAndUnmapsWholePages) {
    const FreshState state;
    TestMachine machine;
    machine.PhysicalMemory(0x100FFF, "x");
    for (const MapCase& c : kCases) machine.PhysicalMemory(c.maps ? c.address : 0xF0000, "here");
    machine.StartTrace();
    setenv("BRANT_MACHINE", machine.Directory().c_str(), 1);

    for (const MapCase& c : kCases) {
        __brantcli_pgsz = c.page_size == kUnknown ? 0 : c.page_size;
        sysconf_fails = c.page_size == kUnknown;
        auto* mapped = static_cast<unsigned char*>(zetMapPhys32UnCache(c.address, c.length));
        EXPECT_EQ(mapped != nullptr && *mapped == 'h', c.maps) << c.catches;
        zetUnMapPhys32UnCache(mapped, static_cast<unsigned int>(c.length));
        EXPECT_FALSE(IsMapped(mapped)) << c.catches;
        EXPECT_EQ(machine.TakeTrace(), c.trace) << c.catches;
    }
    sysconf_fails = false;
    machine.Remove("xsvc");
    EXPECT_EQ(zetMapPhys32UnCache(0xF0000, 16), nullptr);
    EXPECT_EQ(machine.TakeTrace(), "xsvc open -> -1 errno=2\n")
        << "requests on a device that can't be opened";
}
