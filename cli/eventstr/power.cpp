// Class 11, the power subsystem.
#include "cli/eventstr/event_table.h"
#include "cli/eventstr/translators.h"
#include "include/event_power.h"

namespace eventstr {
namespace {

// clang-format off
constexpr ChassisForms kPowerModulesNotRedundant = {
    "System Power Modules Not Redundant",
    "External Chassis Power Modules Not Redundant (%C)",
    "External Storage System Power Modules Not Redundant (%C)",
    "Internal Storage System Power Modules Not Redundant (%C)",
    "Server Blade Enclosure Power Modules Not Redundant",
    "Power Enclosure Power Modules Not Redundant",
};

constexpr ChassisEventRow kChassisEvents[] = {
    ChassisRow<EVT_POWER_SUPPLY_FAILURE>(1, 19,
        {"System Power Supply: %s (Power Supply %s)",
         "External Chassis Power Supply: %s (%C, Power Supply %s)",
         "External Storage System Power Supply: %s (%C, Power Supply %s)",
         "Internal Storage System Power Supply: %s (%C, Power Supply %s)",
         "Server Blade Enclosure Power Supply: %s (Power Supply %s, %C)",
         "Power Enclosure Power Supply: %s (Power Supply %s, %C)"},
        Field<&EVT_POWER_SUPPLY_FAILURE::bPsErrorId, GetPSError>,
        Field<&EVT_POWER_SUPPLY_FAILURE::bPsId,      Byte2Str>),
    ChassisRow<EVT_POWER_SUPPLY_REMOVED>(4, 0,
        {"System Power Supply Removed (Power Supply %s)",
         "External Chassis Power Supply Removed (%C, Power Supply %s)",
         "External Storage System Power Supply Removed (%C, Power Supply %s)",
         "Internal Storage System Power Supply Removed (%C, Power Supply %s)",
         "Server Blade Enclosure Power Supply Removed (Power Supply %s, %C)",
         "Power Enclosure Power Supply Removed (Power Supply %s, %C)"},
        Field<&EVT_POWER_SUPPLY_REMOVED::bPsId, Byte2Str>),
    ChassisRow<EVT_POWER_SUPPLY_INSERTED>(5, 0,
        {"System Power Supply Inserted (Power Supply %s)",
         "External Chassis Power Supply Inserted (%C, Power Supply %s)",
         "External Storage System Power Supply Inserted (%C, Power Supply %s)",
         "Internal Storage System Power Supply Inserted (%C, Power Supply %s)",
         "Server Blade Enclosure Power Supply Inserted (Power Supply %s, %C)",
         "Power Enclosure Power Supply Inserted (Power Supply %s, %C)"},
        Field<&EVT_POWER_SUPPLY_INSERTED::bPsId, Byte2Str>),
    ChassisRow<EVT_POWER_NOT_REDUNDANT>(6, 0,
        {"System Power Supplies Not Redundant",
         "External Chassis Power Supplies Not Redundant (%C)",
         "External Storage System Power Supplies Not Redundant (%C)",
         "Internal Storage System Power Supplies Not Redundant (%C)"}),
    ChassisRow<EVT_INF_POWER_NOT_REDUNDANT>(6, 0,    // an enclosure's event has a different record
        {"", "", "", "",
         "Server Blade Enclosure Power Supplies Not Redundant (in %s, %C)",
         "Power Enclosure Power Supplies Not Redundant (in %s, %C)"},
        Field<&EVT_INF_POWER_NOT_REDUNDANT::bType, GetRedundancy>),
    ChassisRow<EVT_POWER_MODULES_NOT_REDUNDANT>(7, 0, kPowerModulesNotRedundant),
    ChassisRow<EVT_POWER_AC_VOLTAGE>(8, 17,
        {"System AC Power Problem (Power Supply %s)",
         "External Chassis AC Power Problem (%C, Power Supply %s)",
         "External Storage System AC Power Problem (%C, Power Supply %s)",
         "Internal Storage System AC Power Problem (%C, Power Supply %s)"},
        Field<&EVT_POWER_AC_VOLTAGE::bPsId, Byte2Str>),
    ChassisRow<EVT_POWER_AC_VOLTAGE>(8, 17,
        {"", "", "", "",
         "Server Blade Enclosure AC Power Problem (Power Supply %s, Reason: %s, %C)",
         "Power Enclosure AC Power Problem (Power Supply %s, Reason: %s, %C)"},
        Field<&EVT_POWER_AC_VOLTAGE::bPsId,  Byte2Str>,
        Field<&EVT_POWER_AC_VOLTAGE::bError, GetACProblem>),
    ChassisRow<EVT_POWER_AC_OVERLOAD>(9, 0,
        {"System AC Power Overload (Power Supply %s)",
         "External Chassis AC Power Overload (%C, Power Supply %s)",
         "External Storage System AC Power Overload (%C, Power Supply %s)",
         "Internal Storage System AC Power Overload (%C, Power Supply %s)"},
        Field<&EVT_POWER_AC_OVERLOAD::bPsId, Byte2Str>),
    ChassisRow<EVT_POWER_AC_OVERLOAD>(9, 0,
        {"", "", "", "",
         "Server Blade Enclosure AC Power Overload (Power Supply %s, Voltage: %s, %C)",
         "Power Enclosure AC Power Overload (Power Supply %s, Voltage: %s, %C)"},
        Field<&EVT_POWER_AC_OVERLOAD::bPsId,    Byte2Str>,
        Field<&EVT_POWER_AC_OVERLOAD::bVoltage, Byte2Str>),
    ChassisRow<EVT_POWER_SUPPLY_POWERED>(10, 0,
        {"System Power Supply Powered Up (Power Supply %s)",
         "External Chassis System Power Supply Powered Up (%C, Power Supply %s)",
         "External Storage System Power Supply Powered Up (%C, Power Supply %s)",
         "Internal Storage System Power Supply Powered Up (%C, Power Supply %s)",
         "Server Blade Enclosure System Power Supply Powered Up (Power Supply %s)",
         "Power Enclosure System Power Supply Powered Up (Power Supply %s)"},
        Field<&EVT_POWER_SUPPLY_POWERED::bPsId, Byte2Str>),
    ChassisRow<EVT_POWER_SUPPLY_UNPOWERED>(11, 0,
        {"System Power Supply Powered Down (Power Supply %s)",
         "External Chassis System Power Supply Powered Down (%C, Power Supply %s)",
         "External Storage System Power Supply Powered Down (%C, Power Supply %s)",
         "Internal Storage System Power Supply Powered Down (%C, Power Supply %s)",
         "Server Blade Enclosure System Power Supply Powered Down (Power Supply %s)",
         "Power Enclosure System Power Supply Powered Down (Power Supply %s)"},
        Field<&EVT_POWER_SUPPLY_UNPOWERED::bPsId, Byte2Str>),
    ChassisRow<EVT_SYS_POWER_MODULE_FAILURE>(12, 0,
        {"System Power Module Failure (Power Module %s)",
         "External Chassis Power Module Failure (%C, Power Module %s)",
         "External Storage System Power Module Failure (%C, Power Module %s)",
         "Internal Storage System Power Module Failure (%C, Power Module %s)",
         "Server Blade Enclosure Power Module Failure (Power Module %s)",
         "Power Enclosure Power Module Failure (Power Module %s)"},
        Field<&EVT_SYS_POWER_MODULE_FAILURE::bId, Byte2Str>),
    ChassisRow<EVT_SYS_POWER_MODULE_REMOVED>(13, 0,
        {"System Power Module Removed (Power Module %s)",
         "External Chassis Power Module Removed (%C, Power Module %s)",
         "External Storage System Power Module Removed (%C, Power Module %s)",
         "Internal Storage System Power Module Removed (%C, Power Module %s)",
         "Server Blade Enclosure Power Module Removed (Power Module %s)",
         "Power Enclosure Power Module Removed (Power Module %s)"},
        Field<&EVT_SYS_POWER_MODULE_REMOVED::bId, Byte2Str>),
    ChassisRow<EVT_SYS_POWER_MODULE_INSERTED>(14, 0,
        {"System Power Module Inserted (Power Module %s)",
         "External Chassis Power Module Inserted (%C, Power Module %s)",
         "External Storage System Power Module Inserted (%C, Power Module %s)",
         "Internal Storage System Power Module Inserted (%C, Power Module %s)",
         "Server Blade Enclosure Power Module Inserted (Power Module %s)",
         "Power Enclosure Power Module Inserted (Power Module %s)"},
        Field<&EVT_SYS_POWER_MODULE_INSERTED::bId, Byte2Str>),
    ChassisRow<EVT_SYS_POWER_MODULE_NOT_REDUNDANT>(15, 0, kPowerModulesNotRedundant),
    ChassisRow<EVT_SYS_POWER_MODULE_OVERLOAD>(16, 0,
        {"System Power Module Overload (Power Module %s)",
         "External Chassis Power Module Overload (%C, Power Module %s)",
         "External Storage System Power Module Overload (%C, Power Module %s)",
         "Internal Storage System Power Module Overload (%C, Power Module %s)",
         "Server Blade Enclosure Power Module Overload (Power Module %s)",
         "Power Enclosure Power Module Overload (Power Module %s)"},
        Field<&EVT_SYS_POWER_MODULE_OVERLOAD::bId, Byte2Str>),
};
// clang-format on

constexpr auto ChassisIs(EventChassisType type) {
    return Is<&EVT_CHASSIS::bType>(type);
}

void BatteryText(Bytes payload, TextWriter& out) {
    ExtraText(payload, sizeof(EVT_BATTERY_LOW), out);
}
constexpr Argument<EVT_BATTERY_LOW> kBatteryText = {BatteryText};

constexpr auto kFailed = Field<&EVT_POWER_MODULE_FAILURE::bConverterType, GetFailedPowerModule>;
constexpr auto kFailedSlot = Field<&EVT_POWER_MODULE_FAILURE::bSlot, Byte2Str>;
constexpr auto kFailedSocket = Field<&EVT_POWER_MODULE_FAILURE::bConverter, Byte2Str>;

// The row of the SAS event has the documented name of its translator.
constexpr EventRow TranslatePsFailureSAS = Row(
    20, "%s SAS Enclosure Power Supply Failure (Power Supply %s, Box %s, Port %s, %s)",
    Field<&EVT_CHASSIS::bType, GetInternalExternal>, Field<&EVT_SAS_POWER_SUPPLY_FAILURE::bPsId, PlainByte>,
    Field<&EVT_SAS_POWER_SUPPLY_FAILURE::bBox, PlainByte>,
    Field<&EVT_SAS_POWER_SUPPLY_FAILURE::szPortID, GetSASPort>,
    Field<&EVT_SAS_POWER_SUPPLY_FAILURE::szChassis_Sun, GetSlotChassisSun>);

constexpr EventRow kEvents[] = {
    Row(2, When(kServerItself), "Real-Time Clock Battery Failing"),
    Row(2, "Real-Time Clock Battery Failing (Chassis %s)", kChassisNumber),

    Row(3, When(ChassisIs(kChassisServer), kServerItself), "%s (System Board, Socket %s)", kFailed,
        kFailedSocket),
    Row(3, When(ChassisIs(kChassisServer)), "%s (Chassis %s, Slot %s, Socket %s)", kFailed, kChassisNumber,
        kFailedSlot, kFailedSocket),
    Row(3, When(ChassisIs(kChassisExternalStorage)), "%s (Chassis %s, Slot %s, Socket %s)", kFailed,
        kChassisNumber, kFailedSlot, kFailedSocket),
    Row(3, When(ChassisIs(kChassisInternalStorage)), "%s (Chassis %s, Slot %s, Socket %s)", kFailed,
        kChassisNumber, kFailedSlot, kFailedSocket),

    Row(18, When(kServerItself), "Real-Time Clock Battery Failing%s", kBatteryText),
    Row(18, "Real-Time Clock Battery Failing (Chassis %s)%s", kChassisNumber, kBatteryText),

    TranslatePsFailureSAS,
};

}  // namespace

void TranslateClass0B(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kChassisEvents, kEvents>(wEventCode, pEventData, out);
}

}  // namespace eventstr
