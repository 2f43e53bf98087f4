#include "tools/mkmachine/firmware.h"

#include <string>

#include "include/bios_area.h"
#include "include/rom_variables.h"
#include "tools/mkmachine/firmware_records.h"
#include "tools/mkmachine/models.h"

namespace {

// A server with the management processor two bridges down, and one without.
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

// In the ROM's own variable, where firmware without the maker's SMBIOS record for them has them.
constexpr smbios_nic kNicsOfRom[8] = {
    {0x00, 2, {0x00, 0x1C, 0x4E, 0x14, 0x30, 0x2A}},
    {0x01, 2, {0x00, 0x1C, 0x4E, 0x14, 0x30, 0x2B}},
};

}  // namespace

void AddRomSignature(MachineBuilder& machine) {
    std::string area_end(kBiosAreaSize - kRomSignatureOffset, '\0');
    area_end.replace(0, kRomSignatureSize, kRomSignature);
    machine.PhysicalMemory(kBiosArea + kRomSignatureOffset, area_end);
}

void AddFirmware(MachineBuilder& machine, const Model& model) {
    AddRomSignature(machine);
    AddTables(machine, TablesOf(model));
    if (model.id == ModelId::Tr300) machine.Variable(kNicAddressVariable, kNicsOfRom);
    machine.Write("picl", model.id == ModelId::Tr300 ? kPiclWithoutKelm : kPiclWithKelm);
}
