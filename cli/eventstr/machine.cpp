// Class 2, machine environment: heat, fans and side panels.
#include "cli/eventstr/catalogue.h"
#include "cli/eventstr/translators.h"
#include "include/event_machine.h"

namespace eventstr {
namespace {

// clang-format off
constexpr ChassisEventRow kChassisEvents[] = {
    {1, 10,
     {"System Overheating (Zone %s, Location %s, Temperature %s)",
      "External Chassis Overheating (Chassis %s, Zone %s, Location %s, Temperature %s)",
      "External Storage System Overheating (%sSlot %s, Zone %s, Location %s, Temperature %s)",
      "Internal Storage System Overheating (%sSlot %s, Zone %s, Location %s, Temperature %s)",
      "Server Blade Enclosure Overheating (Zone %s, Location %s, Temperature %s, %s)",
      "Power Enclosure Overheating (Zone %s, Location %s, Temperature %s, %s)"},
     {{offsetof(EVT_MACH_OVERHEAT, bZoneId),   Byte2Str},
      {offsetof(EVT_MACH_OVERHEAT, bZoneType), GetLocation},
      {offsetof(EVT_MACH_OVERHEAT, bTemp),     GetTemp}},
     offsetof(EVT_MACH_OVERHEAT, cChassisName)},
    {2, 8,
     {"Fan Failure (Fan %s, Location %s)",
      "External Chassis Fan Failure (Chassis %s, Fan %s, Location %s)",
      "External Storage System Fan Failure (%sSlot %s, Fan %s, Location %s)",
      "Internal Storage System Fan Failure (%sSlot %s, Fan %s, Location %s)",
      "Server Blade Enclosure Fan Failure (Fan %s, Location %s, %s)",
      "Power Enclosure Fan Failure (Fan %s, Location %s, %s)"},
     {{offsetof(EVT_MACH_FAN_FAIL, bFanId),       Byte2Str},
      {offsetof(EVT_MACH_FAN_FAIL, bFanZoneType), GetLocation}},
     offsetof(EVT_MACH_FAN_FAIL, cChassisName)},
    {3, 9,
     {"Side panel removed or improperly installed",
      "External Chassis side panel removed or improperly installed (Chassis %s)",
      "External Storage System side panel removed or improperly installed (%sSlot %s)",
      "Internal Storage System side panel removed or improperly installed (%sSlot %s)",
      "Server Blade Enclosure side panel removed or improperly installed",
      "Power Enclosure side panel removed or improperly installed"},
     {},
     offsetof(EVT_MACH_DOOR_OPEN, cChassisName)},
    {4, 0,
     {"System Fan Removed (Fan %s, Location %s)",
      "External Chassis Fan Removed (Chassis %s, Fan %s, Location %s)",
      "External Storage System Fan Removed (%sSlot %s, Fan %s, Location %s)",
      "Internal Storage System Fan Removed (%sSlot %s, Fan %s, Location %s)",
      "Server Blade Enclosure Fan Removed (Fan %s, Location %s, %s)",
      "Power Enclosure Fan Removed (Fan %s, Location %s, %s)"},
     {{offsetof(EVT_MACH_FAN_REMOVED, bFanId),       Byte2Str},
      {offsetof(EVT_MACH_FAN_REMOVED, bFanZoneType), GetLocation}},
     offsetof(EVT_MACH_FAN_REMOVED, cChassisName)},
    {5, 0,
     {"System Fan Inserted (Fan %s, Location %s)",
      "External Chassis Fan Inserted (Chassis %s, Fan %s, Location %s)",
      "External Storage System Fan Inserted (%sSlot %s, Fan %s, Location %s)",
      "Internal Storage System Fan Inserted (%sSlot %s, Fan %s, Location %s)",
      "Server Blade Enclosure Fan Inserted (Fan %s, Location %s, %s)",
      "Power Enclosure Fan Inserted (Fan %s, Location %s, %s)"},
     {{offsetof(EVT_MACH_FAN_INSERTED, bFanId),       Byte2Str},
      {offsetof(EVT_MACH_FAN_INSERTED, bFanZoneType), GetLocation}},
     offsetof(EVT_MACH_FAN_INSERTED, cChassisName)},
    {6, 0,
     {"System Fans Not Redundant (Location %s)",
      "External Chassis Fans Not Redundant (Chassis %s, Location %s)",
      "External Storage System Fans Not Redundant (%sSlot %s, Location %s)",
      "Internal Storage System Fans Not Redundant (%sSlot %s, Location %s)",
      "Server Blade Enclosure Fans Not Redundant (Location %s, %s)",
      "Power Enclosure Fans Not Redundant (Location %s, %s)"},
     {{offsetof(EVT_MACH_FAN_NOT_REDUNDANT, bFanZoneType), GetLocation}},
     offsetof(EVT_MACH_FAN_NOT_REDUNDANT, cChassisName)},
};
static_assert(WellFormed(kChassisEvents));

void TranslateMachFanFailSAS(Bytes pEventData, TextWriter& out) {
    constexpr Argument kArguments[] = {
        {offsetof(EVT_MACH_SAS_FAN_FAIL, Chassis.bType), GetInternalExternal},
        {offsetof(EVT_MACH_SAS_FAN_FAIL, bFanId),        PlainByte},
        {offsetof(EVT_MACH_SAS_FAN_FAIL, bFanZoneType),  GetLocation},
        {offsetof(EVT_MACH_SAS_FAN_FAIL, bBox),          PlainByte},
        {offsetof(EVT_MACH_SAS_FAN_FAIL, szPortID),      GetSASPort},
        {offsetof(EVT_MACH_SAS_FAN_FAIL, szChassis_Sun), GetSlotChassisSun},
    };
    PrintText("%s SAS Enclosure Fan Failure (Fan %s, Location %s, Box %s, Port %s, %s)",
              kArguments, pEventData, out);
}

void TranslateMachOverheatSAS(Bytes pEventData, TextWriter& out) {
    constexpr Argument kArguments[] = {
        {offsetof(EVT_MACH_SAS_OVERHEAT, Chassis.bType), GetInternalExternal},
        {offsetof(EVT_MACH_SAS_OVERHEAT, bSensorId),     PlainByte},
        {offsetof(EVT_MACH_SAS_OVERHEAT, bZoneType),     GetLocation},
        {offsetof(EVT_MACH_SAS_OVERHEAT, bBox),          PlainByte},
        {offsetof(EVT_MACH_SAS_OVERHEAT, szPortID),      GetSASPort},
        {offsetof(EVT_MACH_SAS_OVERHEAT, szChassis_Sun), GetSlotChassisSun},
    };
    PrintText("%s SAS Enclosure Overheating (Zone %s, Location %s, Box %s, Port %s, %s)",
              kArguments, pEventData, out);
}

constexpr EventRow kEvents[] = {    // one text each, whatever the chassis
    {7, {}, "System Fans Not Redundant (Shared Location %s)",
     {{offsetof(EVT_MACH_FAN_NOT_REDUNDANT_SHARED, bSharedFanZoneType), GetLocation}}},
    {11, {}, "%s", {TranslateMachFanFailSAS}},
    {12, {}, "%s", {TranslateMachOverheatSAS}},
};
// clang-format on
static_assert(WellFormed(kEvents) && Disjoint(kChassisEvents, kEvents));

}  // namespace

void TranslateClass02(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kChassisEvents, wEventCode, pEventData, out);
    PrintEvent(kEvents, wEventCode, pEventData, out);
}

}  // namespace eventstr
