#include "cli/brantcli/rom_signature.h"

#include <cstring>

#include "include/bios_area.h"
#include "src/utils/map_physical.h"

int detect_zet_rom() {
    // One byte short of the area, which the rounding to whole pages makes up for.
    constexpr unsigned int kMapped = kBiosAreaSize - 1;
    auto* area = static_cast<unsigned char*>(zetMapPhys32UnCache(kBiosArea, kMapped));
    if (area == nullptr) return 1;

    const bool found = std::memcmp(area + kRomSignatureOffset, kRomSignature, kRomSignatureSize) == 0;
    zetUnMapPhys32UnCache(area, kMapped);
    return found ? 0 : 1;
}
