#include "tools/mkmachine/firmware.h"

#include <string>

#include "include/bios_area.h"
#include "tools/mkmachine/facts.h"

namespace {

// With the management processor two bridges down, and without.
constexpr char kPiclWithKelm[] =
    "picl\n"
    "  platform\n"
    "    obp-device vendor-id=0x8086 device-id=0x25d8\n"
    "      obp-device vendor-id=0x8086 device-id=0x2690\n"
    "      obp-device vendor-id=0x8086 device-id=0x244e\n"
    "        obp-device vendor-id=0x1002 device-id=0x515e\n"
    "        obp-device vendor-id=0x1c4e device-id=0x6d19\n";
constexpr char kPiclWithoutKelm[] =
    "picl\n"
    "  platform\n"
    "    obp-device vendor-id=0x8086 device-id=0x25d8\n"
    "      obp-device vendor-id=0x1002 device-id=0x515e\n";

}  // namespace

void AddRomSignature(MachineBuilder& machine) {
    std::string area_end(kBiosAreaSize - kRomSignatureOffset, '\0');
    area_end.replace(0, kRomSignatureSize, kRomSignature);
    machine.PhysicalMemory(kBiosArea + kRomSignatureOffset, area_end);
}

void AddPicl(MachineBuilder& machine, Kelm kelm) {
    machine.Write("picl", kelm == Kelm::Present ? kPiclWithKelm : kPiclWithoutKelm);
}
