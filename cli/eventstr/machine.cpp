// Class 2, machine environment: heat, fans and side panels.
#include "cli/eventstr/event_table.h"
#include "cli/eventstr/translators.h"
#include "include/event_machine.h"

namespace eventstr {
namespace {

// clang-format off
constexpr ChassisEventRow kChassisEvents[] = {
    ChassisRow<EVT_MACH_OVERHEAT>(1, 10,
        {"System Overheating (Zone %s, Location %s, Temperature %s)",
         "External Chassis Overheating (%C, Zone %s, Location %s, Temperature %s)",
         "External Storage System Overheating (%C, Zone %s, Location %s, Temperature %s)",
         "Internal Storage System Overheating (%C, Zone %s, Location %s, Temperature %s)",
         "Server Blade Enclosure Overheating (Zone %s, Location %s, Temperature %s, %C)",
         "Power Enclosure Overheating (Zone %s, Location %s, Temperature %s, %C)"},
        Field<&EVT_MACH_OVERHEAT::bZoneId,   Byte2Str>,
        Field<&EVT_MACH_OVERHEAT::bZoneType, GetLocation>,
        Field<&EVT_MACH_OVERHEAT::bTemp,     GetTemp>),
    ChassisRow<EVT_MACH_FAN_FAIL>(2, 8,
        {"Fan Failure (Fan %s, Location %s)",
         "External Chassis Fan Failure (%C, Fan %s, Location %s)",
         "External Storage System Fan Failure (%C, Fan %s, Location %s)",
         "Internal Storage System Fan Failure (%C, Fan %s, Location %s)",
         "Server Blade Enclosure Fan Failure (Fan %s, Location %s, %C)",
         "Power Enclosure Fan Failure (Fan %s, Location %s, %C)"},
        Field<&EVT_MACH_FAN_FAIL::bFanId,       Byte2Str>,
        Field<&EVT_MACH_FAN_FAIL::bFanZoneType, GetLocation>),
    ChassisRow<EVT_MACH_DOOR_OPEN>(3, 9,
        {"Side panel removed or improperly installed",
         "External Chassis side panel removed or improperly installed (%C)",
         "External Storage System side panel removed or improperly installed (%C)",
         "Internal Storage System side panel removed or improperly installed (%C)",
         "Server Blade Enclosure side panel removed or improperly installed",
         "Power Enclosure side panel removed or improperly installed"}),
    ChassisRow<EVT_MACH_FAN_REMOVED>(4, 0,
        {"System Fan Removed (Fan %s, Location %s)",
         "External Chassis Fan Removed (%C, Fan %s, Location %s)",
         "External Storage System Fan Removed (%C, Fan %s, Location %s)",
         "Internal Storage System Fan Removed (%C, Fan %s, Location %s)",
         "Server Blade Enclosure Fan Removed (Fan %s, Location %s, %C)",
         "Power Enclosure Fan Removed (Fan %s, Location %s, %C)"},
        Field<&EVT_MACH_FAN_REMOVED::bFanId,       Byte2Str>,
        Field<&EVT_MACH_FAN_REMOVED::bFanZoneType, GetLocation>),
    ChassisRow<EVT_MACH_FAN_INSERTED>(5, 0,
        {"System Fan Inserted (Fan %s, Location %s)",
         "External Chassis Fan Inserted (%C, Fan %s, Location %s)",
         "External Storage System Fan Inserted (%C, Fan %s, Location %s)",
         "Internal Storage System Fan Inserted (%C, Fan %s, Location %s)",
         "Server Blade Enclosure Fan Inserted (Fan %s, Location %s, %C)",
         "Power Enclosure Fan Inserted (Fan %s, Location %s, %C)"},
        Field<&EVT_MACH_FAN_INSERTED::bFanId,       Byte2Str>,
        Field<&EVT_MACH_FAN_INSERTED::bFanZoneType, GetLocation>),
    ChassisRow<EVT_MACH_FAN_NOT_REDUNDANT>(6, 0,
        {"System Fans Not Redundant (Location %s)",
         "External Chassis Fans Not Redundant (%C, Location %s)",
         "External Storage System Fans Not Redundant (%C, Location %s)",
         "Internal Storage System Fans Not Redundant (%C, Location %s)",
         "Server Blade Enclosure Fans Not Redundant (Location %s, %C)",
         "Power Enclosure Fans Not Redundant (Location %s, %C)"},
        Field<&EVT_MACH_FAN_NOT_REDUNDANT::bFanZoneType, GetLocation>),
};
// clang-format on

// The rows of the SAS events have the documented names of their translators.
constexpr EventRow TranslateMachFanFailSAS =
    Row(11, "%s SAS Enclosure Fan Failure (Fan %s, Location %s, Box %s, Port %s, %s)",
        Field<&EVT_CHASSIS::bType, GetInternalExternal>, Field<&EVT_MACH_SAS_FAN_FAIL::bFanId, PlainByte>,
        Field<&EVT_MACH_SAS_FAN_FAIL::bFanZoneType, GetLocation>,
        Field<&EVT_MACH_SAS_FAN_FAIL::bBox, PlainByte>, Field<&EVT_MACH_SAS_FAN_FAIL::szPortID, GetSASPort>,
        Field<&EVT_MACH_SAS_FAN_FAIL::szChassis_Sun, GetSlotChassisSun>);
constexpr EventRow TranslateMachOverheatSAS =
    Row(12, "%s SAS Enclosure Overheating (Zone %s, Location %s, Box %s, Port %s, %s)",
        Field<&EVT_CHASSIS::bType, GetInternalExternal>, Field<&EVT_MACH_SAS_OVERHEAT::bSensorId, PlainByte>,
        Field<&EVT_MACH_SAS_OVERHEAT::bZoneType, GetLocation>, Field<&EVT_MACH_SAS_OVERHEAT::bBox, PlainByte>,
        Field<&EVT_MACH_SAS_OVERHEAT::szPortID, GetSASPort>,
        Field<&EVT_MACH_SAS_OVERHEAT::szChassis_Sun, GetSlotChassisSun>);

// Events whose text doesn't depend on the chassis.
constexpr EventRow kEvents[] = {
    Row(7, "System Fans Not Redundant (Shared Location %s)",
        Field<&EVT_MACH_FAN_NOT_REDUNDANT_SHARED::bSharedFanZoneType, GetLocation>),
    TranslateMachFanFailSAS,
    TranslateMachOverheatSAS,
};

}  // namespace

void TranslateClass02(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kChassisEvents, kEvents>(wEventCode, pEventData, out);
}

}  // namespace eventstr
