#include "cli/health-table/locations.h"

namespace {

constexpr unsigned kProcessorZone = 3;

}  // namespace

void SetLocation(field& cell, LOCATIONDESIGNATOR location, const ZoneWords& words) {
    const unsigned zone = location.s1.bits_ZoneType;
    const unsigned instance = location.s1.bits_InstanceOfZoneType;
    if (zone == kProcessorZone && instance > 0) {
        SetCell(cell, "CPU#%u", instance);
        return;
    }

    const char* const names[] = {
        words.system,    words.system,          "I/O_ZONE",        "PROCESSOR_ZONE",
        "MEMORY_BD",     "SCSI_BACKPLANE_ZONE", "REMOVABLE_MEDIA", words.power_supply_bay,
        "AMBIENT",       "CHASSIS_ZONE",        "PCI_BRIDGE_CARD", words.exhaust,
        "NOT_SUPPORTED", "NOT_SUPPORTED",       "NOT_SUPPORTED",   "VIRTUAL",
    };
    constexpr unsigned kZones = sizeof names / sizeof names[0];
    SetCell(cell, "%s", zone < kZones ? names[zone] : "NOT_SUPPORTED");
}
