// Class 11, the power subsystem.
#include "cli/eventstr/catalogue.h"
#include "cli/eventstr/translators.h"
#include "include/event_power.h"

namespace eventstr {
namespace {

// clang-format off
constexpr ChassisTexts kPowerModulesNotRedundant = {
    "System Power Modules Not Redundant",
    "External Chassis Power Modules Not Redundant (Chassis %s)",
    "External Storage System Power Modules Not Redundant (%sSlot %s)",
    "Internal Storage System Power Modules Not Redundant (%sSlot %s)",
    "Server Blade Enclosure Power Modules Not Redundant",
    "Power Enclosure Power Modules Not Redundant",
};

constexpr ChassisEventRow kChassisEvents[] = {
    {1, 19,
     {"System Power Supply: %s (Power Supply %s)",
      "External Chassis Power Supply: %s (Chassis %s, Power Supply %s)",
      "External Storage System Power Supply: %s (%sSlot %s, Power Supply %s)",
      "Internal Storage System Power Supply: %s (%sSlot %s, Power Supply %s)",
      "Server Blade Enclosure Power Supply: %s (Power Supply %s, %s)",
      "Power Enclosure Power Supply: %s (Power Supply %s, %s)"},
     {{offsetof(EVT_POWER_SUPPLY_FAILURE, bPsErrorId), GetPSError},
      {offsetof(EVT_POWER_SUPPLY_FAILURE, bPsId),      Byte2Str}},
     offsetof(EVT_POWER_SUPPLY_FAILURE, cChassisName)},
    {4, 0,
     {"System Power Supply Removed (Power Supply %s)",
      "External Chassis Power Supply Removed (Chassis %s, Power Supply %s)",
      "External Storage System Power Supply Removed (%sSlot %s, Power Supply %s)",
      "Internal Storage System Power Supply Removed (%sSlot %s, Power Supply %s)",
      "Server Blade Enclosure Power Supply Removed (Power Supply %s, %s)",
      "Power Enclosure Power Supply Removed (Power Supply %s, %s)"},
     {{offsetof(EVT_POWER_SUPPLY_REMOVED, bPsId), Byte2Str}},
     offsetof(EVT_POWER_SUPPLY_REMOVED, cChassisName)},
    {5, 0,
     {"System Power Supply Inserted (Power Supply %s)",
      "External Chassis Power Supply Inserted (Chassis %s, Power Supply %s)",
      "External Storage System Power Supply Inserted (%sSlot %s, Power Supply %s)",
      "Internal Storage System Power Supply Inserted (%sSlot %s, Power Supply %s)",
      "Server Blade Enclosure Power Supply Inserted (Power Supply %s, %s)",
      "Power Enclosure Power Supply Inserted (Power Supply %s, %s)"},
     {{offsetof(EVT_POWER_SUPPLY_INSERTED, bPsId), Byte2Str}},
     offsetof(EVT_POWER_SUPPLY_INSERTED, cChassisName)},
    {6, 0,
     {"System Power Supplies Not Redundant",
      "External Chassis Power Supplies Not Redundant (Chassis %s)",
      "External Storage System Power Supplies Not Redundant (%sSlot %s)",
      "Internal Storage System Power Supplies Not Redundant (%sSlot %s)",
      nullptr,    // an enclosure's record is another: next row
      nullptr},
     {},
     offsetof(EVT_POWER_NOT_REDUNDANT, cChassisName)},
    {6, 0,
     {nullptr, nullptr, nullptr, nullptr,
      "Server Blade Enclosure Power Supplies Not Redundant (in %s, %s)",
      "Power Enclosure Power Supplies Not Redundant (in %s, %s)"},
     {{offsetof(EVT_INF_POWER_NOT_REDUNDANT, bType), GetRedundancy}},
     offsetof(EVT_INF_POWER_NOT_REDUNDANT, cChassisName)},
    {7, 0, kPowerModulesNotRedundant, {}, offsetof(EVT_POWER_MODULES_NOT_REDUNDANT, cChassisName)},
    {8, 17,
     {"System AC Power Problem (Power Supply %s)",
      "External Chassis AC Power Problem (Chassis %s, Power Supply %s)",
      "External Storage System AC Power Problem (%sSlot %s, Power Supply %s)",
      "Internal Storage System AC Power Problem (%sSlot %s, Power Supply %s)",
      "Server Blade Enclosure AC Power Problem (Power Supply %s, Reason: %s, %s)",
      "Power Enclosure AC Power Problem (Power Supply %s, Reason: %s, %s)"},
     {{offsetof(EVT_POWER_AC_VOLTAGE, bPsId),  Byte2Str},
      {offsetof(EVT_POWER_AC_VOLTAGE, bError), GetACProblem}},
     offsetof(EVT_POWER_AC_VOLTAGE, cChassisName)},
    {9, 0,
     {"System AC Power Overload (Power Supply %s)",
      "External Chassis AC Power Overload (Chassis %s, Power Supply %s)",
      "External Storage System AC Power Overload (%sSlot %s, Power Supply %s)",
      "Internal Storage System AC Power Overload (%sSlot %s, Power Supply %s)",
      "Server Blade Enclosure AC Power Overload (Power Supply %s, Voltage: %s, %s)",
      "Power Enclosure AC Power Overload (Power Supply %s, Voltage: %s, %s)"},
     {{offsetof(EVT_POWER_AC_OVERLOAD, bPsId),    Byte2Str},
      {offsetof(EVT_POWER_AC_OVERLOAD, bVoltage), Byte2Str}},
     offsetof(EVT_POWER_AC_OVERLOAD, cChassisName)},
    {10, 0,
     {"System Power Supply Powered Up (Power Supply %s)",
      "External Chassis System Power Supply Powered Up (Chassis %s, Power Supply %s)",
      "External Storage System Power Supply Powered Up (%sSlot %s, Power Supply %s)",
      "Internal Storage System Power Supply Powered Up (%sSlot %s, Power Supply %s)",
      "Server Blade Enclosure System Power Supply Powered Up (Power Supply %s)",
      "Power Enclosure System Power Supply Powered Up (Power Supply %s)"},
     {{offsetof(EVT_POWER_SUPPLY_POWERED, bPsId), Byte2Str}},
     offsetof(EVT_POWER_SUPPLY_POWERED, cChassisName)},
    {11, 0,
     {"System Power Supply Powered Down (Power Supply %s)",
      "External Chassis System Power Supply Powered Down (Chassis %s, Power Supply %s)",
      "External Storage System Power Supply Powered Down (%sSlot %s, Power Supply %s)",
      "Internal Storage System Power Supply Powered Down (%sSlot %s, Power Supply %s)",
      "Server Blade Enclosure System Power Supply Powered Down (Power Supply %s)",
      "Power Enclosure System Power Supply Powered Down (Power Supply %s)"},
     {{offsetof(EVT_POWER_SUPPLY_UNPOWERED, bPsId), Byte2Str}},
     offsetof(EVT_POWER_SUPPLY_UNPOWERED, cChassisName)},
    {12, 0,
     {"System Power Module Failure (Power Module %s)",
      "External Chassis Power Module Failure (Chassis %s, Power Module %s)",
      "External Storage System Power Module Failure (%sSlot %s, Power Module %s)",
      "Internal Storage System Power Module Failure (%sSlot %s, Power Module %s)",
      "Server Blade Enclosure Power Module Failure (Power Module %s)",
      "Power Enclosure Power Module Failure (Power Module %s)"},
     {{offsetof(EVT_SYS_POWER_MODULE_FAILURE, bId), Byte2Str}},
     offsetof(EVT_SYS_POWER_MODULE_FAILURE, cChassisName)},
    {13, 0,
     {"System Power Module Removed (Power Module %s)",
      "External Chassis Power Module Removed (Chassis %s, Power Module %s)",
      "External Storage System Power Module Removed (%sSlot %s, Power Module %s)",
      "Internal Storage System Power Module Removed (%sSlot %s, Power Module %s)",
      "Server Blade Enclosure Power Module Removed (Power Module %s)",
      "Power Enclosure Power Module Removed (Power Module %s)"},
     {{offsetof(EVT_SYS_POWER_MODULE_REMOVED, bId), Byte2Str}},
     offsetof(EVT_SYS_POWER_MODULE_REMOVED, cChassisName)},
    {14, 0,
     {"System Power Module Inserted (Power Module %s)",
      "External Chassis Power Module Inserted (Chassis %s, Power Module %s)",
      "External Storage System Power Module Inserted (%sSlot %s, Power Module %s)",
      "Internal Storage System Power Module Inserted (%sSlot %s, Power Module %s)",
      "Server Blade Enclosure Power Module Inserted (Power Module %s)",
      "Power Enclosure Power Module Inserted (Power Module %s)"},
     {{offsetof(EVT_SYS_POWER_MODULE_INSERTED, bId), Byte2Str}},
     offsetof(EVT_SYS_POWER_MODULE_INSERTED, cChassisName)},
    {15, 0, kPowerModulesNotRedundant, {}, offsetof(EVT_SYS_POWER_MODULE_NOT_REDUNDANT, cChassisName)},
    {16, 0,
     {"System Power Module Overload (Power Module %s)",
      "External Chassis Power Module Overload (Chassis %s, Power Module %s)",
      "External Storage System Power Module Overload (%sSlot %s, Power Module %s)",
      "Internal Storage System Power Module Overload (%sSlot %s, Power Module %s)",
      "Server Blade Enclosure Power Module Overload (Power Module %s)",
      "Power Enclosure Power Module Overload (Power Module %s)"},
     {{offsetof(EVT_SYS_POWER_MODULE_OVERLOAD, bId), Byte2Str}},
     offsetof(EVT_SYS_POWER_MODULE_OVERLOAD, cChassisName)},
};
static_assert(WellFormed(kChassisEvents));

constexpr Condition ChassisIs(EventChassisType type) {
    return {offsetof(EVT_CHASSIS, bType), type};
}

constexpr Argument kBatteryText = {sizeof(EVT_BATTERY_LOW), ExtraText};

constexpr Argument kFailed       = {offsetof(EVT_POWER_MODULE_FAILURE, bConverterType), GetFailedPowerModule};
constexpr Argument kFailedSlot   = {offsetof(EVT_POWER_MODULE_FAILURE, bSlot), Byte2Str};
constexpr Argument kFailedSocket = {offsetof(EVT_POWER_MODULE_FAILURE, bConverter), Byte2Str};

void TranslatePsFailureSAS(Bytes pEventData, TextWriter& out) {
    constexpr Argument kArguments[] = {
        {offsetof(EVT_SAS_POWER_SUPPLY_FAILURE, Chassis.bType), GetInternalExternal},
        {offsetof(EVT_SAS_POWER_SUPPLY_FAILURE, bPsId),         PlainByte},
        {offsetof(EVT_SAS_POWER_SUPPLY_FAILURE, bBox),          PlainByte},
        {offsetof(EVT_SAS_POWER_SUPPLY_FAILURE, szPortID),      GetSASPort},
        {offsetof(EVT_SAS_POWER_SUPPLY_FAILURE, szChassis_Sun), GetSlotChassisSun},
    };
    PrintText("%s SAS Enclosure Power Supply Failure (Power Supply %s, Box %s, Port %s, %s)", kArguments, pEventData, out);
}

constexpr EventRow kEvents[] = {
    {2, {kServerItself}, "Real-Time Clock Battery Failing", {}},
    {2, {},              "Real-Time Clock Battery Failing (Chassis %s)", {kChassisNumber}},

    {3, {ChassisIs(kChassisServer), kServerItself}, "%s (System Board, Socket %s)", {kFailed, kFailedSocket}},
    {3, {ChassisIs(kChassisServer)}, "%s (Chassis %s, Slot %s, Socket %s)",
     {kFailed, kChassisNumber, kFailedSlot, kFailedSocket}},
    {3, {ChassisIs(kChassisExternalStorage)}, "%s (Chassis %s, Slot %s, Socket %s)",
     {kFailed, kChassisNumber, kFailedSlot, kFailedSocket}},
    {3, {ChassisIs(kChassisInternalStorage)}, "%s (Chassis %s, Slot %s, Socket %s)",
     {kFailed, kChassisNumber, kFailedSlot, kFailedSocket}},

    {18, {kServerItself}, "Real-Time Clock Battery Failing%s", {kBatteryText}},
    {18, {},              "Real-Time Clock Battery Failing (Chassis %s)%s", {kChassisNumber, kBatteryText}},

    {20, {}, "%s", {TranslatePsFailureSAS}},
};
static_assert(WellFormed(kEvents) && Disjoint(kChassisEvents, kEvents));
// clang-format on

}  // namespace

void TranslateClass0B(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kChassisEvents, wEventCode, pEventData, out);
    PrintEvent(kEvents, wEventCode, pEventData, out);
}

}  // namespace eventstr
