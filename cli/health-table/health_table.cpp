#include "cli/health-table/health_table.h"

#include <cstdarg>
#include <cstdio>

#include "src/utils/text.h"

namespace {

struct ZoneRow {
    unsigned code;
    char of_fans[20];
    char of_sensors[20];
};

// clang-format off
constexpr ZoneRow kZones[] = {
    {kSystemZone,         "SYSTEM",              "SYSTEM_BD"},
    {kSystemBoardZone,    "SYSTEM",              "SYSTEM_BD"},
    {kIoZone,             "I/O_ZONE",            "I/O_ZONE"},
    {kProcessorZone,      "PROCESSOR_ZONE",      "PROCESSOR_ZONE"},
    {kMemoryZone,         "MEMORY_BD",           "MEMORY_BD"},
    {kScsiBackplaneZone,  "SCSI_BACKPLANE_ZONE", "SCSI_BACKPLANE_ZONE"},
    {kRemovableMediaZone, "REMOVABLE_MEDIA",     "REMOVABLE_MEDIA"},
    {kPowerSupplyZone,    "POWERSUPPLY_BAY",     "POWER_SUPPLY_BAY"},
    {kAmbientZone,        "AMBIENT",             "AMBIENT"},
    {kChassisZone,        "CHASSIS_ZONE",        "CHASSIS_ZONE"},
    {kPciBridgeZone,      "PCI_BRIDGE_CARD",     "PCI_BRIDGE_CARD"},
    {kExhaustZone,        "EXHAUST",             "EXHAUSTED_AIR"},
    {kVirtualZone,        "VIRTUAL",             "VIRTUAL"},
};
// clang-format on
constexpr ZoneRow kUnknownZone = {0, "NOT_SUPPORTED", "NOT_SUPPORTED"};

}  // namespace

void SetCell(field& cell, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(cell.data, sizeof cell.data, format, arguments);
    va_end(arguments);
}

field LocationName(LOCATIONDESIGNATOR location, ZoneNames names) {
    field name;
    const unsigned zone = location.s1.bits_ZoneType;
    const unsigned instance = location.s1.bits_InstanceOfZoneType;
    if (zone == kProcessorZone && instance > 0) {
        SetCell(name, "CPU#%u", instance);
        return name;
    }

    const ZoneRow* row = FindCode(kZones, zone);
    if (row == nullptr) row = &kUnknownZone;
    SetCell(name, "%s", names == ZoneNames::OfFans ? row->of_fans : row->of_sensors);
    return name;
}
