#include "savemachine/event_strings.h"

#include <algorithm>
#include <iterator>

#include "include/event_payloads.h"

namespace {

// The record of an event. `fields` is the size of the numbers at its start. If the record ends in the first
// character of a string, this is the offset of that character.
struct EventRecord {
    uint16_t event_class;
    uint16_t code;
    size_t fields;
};
// clang-format off
constexpr EventRecord kEventRecords[] = {
    {2, 1, offsetof(EVT_MACH_OVERHEAT, cChassisName)},
    {2, 2, offsetof(EVT_MACH_FAN_FAIL, cChassisName)},
    {2, 3, offsetof(EVT_MACH_DOOR_OPEN, cChassisName)},
    {2, 4, offsetof(EVT_MACH_FAN_REMOVED, cChassisName)},
    {2, 5, offsetof(EVT_MACH_FAN_INSERTED, cChassisName)},
    {2, 6, offsetof(EVT_MACH_FAN_NOT_REDUNDANT, cChassisName)},
    {2, 7, offsetof(EVT_MACH_FAN_NOT_REDUNDANT_SHARED, cChassisName)},
    {2, 8, offsetof(EVT_MACH_FAN_FAIL, cChassisName)},
    {2, 9, offsetof(EVT_MACH_DOOR_OPEN, cChassisName)},
    {2, 10, offsetof(EVT_MACH_OVERHEAT, cChassisName)},
    {2, 11, offsetof(EVT_MACH_SAS_FAN_FAIL, szChassis_Sun)},
    {2, 12, offsetof(EVT_MACH_SAS_OVERHEAT, szChassis_Sun)},
    {3, 1, offsetof(EVT_MAIN_MEMORY, cSerialNumber)},
    {3, 2, offsetof(EVT_MAIN_MEMORY, cSerialNumber)},
    {3, 3, offsetof(EVT_MAIN_MEMORY_MULTI, cSerialNumber)},
    {3, 4, sizeof(EVT_MAIN_MEMORY_USER_ACTION)},
    {3, 5, sizeof(EVT_MAIN_MEMORY_HW_STATUS)},
    {3, 6, sizeof(EVT_MAIN_MEMORY_CONFIG_ERR)},
    {3, 7, sizeof(EVT_MAIN_MEMORY_CONFIG_CHG)},
    {3, 8, sizeof(EVT_MAIN_MEMORY_SPARE_ENGAGED)},
    {3, 9, sizeof(EVT_MAIN_MEMORY_MIRROR_ENGAGED)},
    {3, 10, offsetof(EVT_MAIN_MEMORY, cSerialNumber)},
    {3, 11, sizeof(EVT_MAIN_MEMORY_SPARE_ENGAGED)},
    {3, 12, sizeof(EVT_MAIN_MEMORY_MIRROR_ENGAGED)},
    {3, 17, sizeof(EVT_MAIN_MEMORY_BOARD_FAILURE)},
    {3, 18, offsetof(EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG, szSerialNumber)},
    {4, 1, sizeof(EVT_CACHE_ACCEL_PARITY_ERROR)},
    {5, 1, sizeof(EVT_CPU_CORRECTABLE)},
    {5, 2, sizeof(EVT_CPU_UNCORRECTABLE)},
    {6, 1, sizeof(EVT_HOST_BUS_UNCORRECTABLE)},
    {6, 2, sizeof(EVT_INTERMODULE_BUS_UNCORRECTABLE)},
    {7, 1, sizeof(EVT_EISA_BUS)},
    {7, 2, sizeof(EVT_EISA_BUS)},
    {7, 3, sizeof(EVT_EISA_BUS)},
    {7, 4, sizeof(EVT_EISA_BUS)},
    {8, 1, sizeof(EVT_PCI_BUS)},
    {9, 1, sizeof(EVT_EXPANSION_SLOT)},
    {9, 2, sizeof(EVT_EXPANSION_SLOT)},
    {9, 3, sizeof(EVT_EXPANSION_SLOT)},
    {9, 4, sizeof(EVT_EXPANSION_SLOT)},
    {9, 5, sizeof(EVT_EXPANSION_SLOT)},
    {9, 6, sizeof(EVT_EXPANSION_SLOT)},
    {9, 7, sizeof(EVT_EXPANSION_SLOT)},
    {9, 8, sizeof(EVT_EXPANSION_SLOT)},
    {9, 9, sizeof(EVT_EXPANSION_SLOT)},
    {10, 1, offsetof(EVT_POST_MESSAGE, cMessage)},
    {11, 1, offsetof(EVT_POWER_SUPPLY_FAILURE, cChassisName)},
    {11, 2, sizeof(EVT_BATTERY_LOW)},
    {11, 3, sizeof(EVT_POWER_MODULE_FAILURE)},
    {11, 4, offsetof(EVT_POWER_SUPPLY_REMOVED, cChassisName)},
    {11, 5, offsetof(EVT_POWER_SUPPLY_INSERTED, cChassisName)},
    {11, 6, offsetof(EVT_POWER_NOT_REDUNDANT, cChassisName)},  // an enclosure's event has a different record
    {11, 7, offsetof(EVT_POWER_MODULES_NOT_REDUNDANT, cChassisName)},
    {11, 8, offsetof(EVT_POWER_AC_VOLTAGE, cChassisName)},
    {11, 9, offsetof(EVT_POWER_AC_OVERLOAD, cChassisName)},
    {11, 10, offsetof(EVT_POWER_SUPPLY_POWERED, cChassisName)},
    {11, 11, offsetof(EVT_POWER_SUPPLY_UNPOWERED, cChassisName)},
    {11, 12, offsetof(EVT_SYS_POWER_MODULE_FAILURE, cChassisName)},
    {11, 13, offsetof(EVT_SYS_POWER_MODULE_REMOVED, cChassisName)},
    {11, 14, offsetof(EVT_SYS_POWER_MODULE_INSERTED, cChassisName)},
    {11, 15, offsetof(EVT_SYS_POWER_MODULE_NOT_REDUNDANT, cChassisName)},
    {11, 16, offsetof(EVT_SYS_POWER_MODULE_OVERLOAD, cChassisName)},
    {11, 17, offsetof(EVT_POWER_AC_VOLTAGE, cChassisName)},
    {11, 18, sizeof(EVT_BATTERY_LOW)},  // a string follows the record
    {11, 19, offsetof(EVT_POWER_SUPPLY_FAILURE, cChassisName)},
    {11, 20, offsetof(EVT_SAS_POWER_SUPPLY_FAILURE, szChassis_Sun)},
    {13, 2, offsetof(EVT_ASR_LOCKUP, cMessage)},
    {14, 1, offsetof(EVT_OS_CRASH, cMessage)},
    {14, 2, sizeof(EVT_AUTO_SHUTDOWN)},
    {14, 3, offsetof(EVT_OS_FATAL_EXCEPTION, cCause)},
    {14, 5, offsetof(EVT_OS_PWR_SHED, cChassisName)},
    {17, 1, offsetof(EVT_NIC_ERROR, cChassisName)},
    {17, 2, offsetof(EVT_NIC_ERROR, cChassisName)},
    {17, 3, offsetof(EVT_NIC_ERROR, cChassisName)},
    {17, 4, offsetof(EVT_NICS_NOT_REDUNDANT, cChassisName)},
    {17, 5, offsetof(EVT_NIC_ERROR, cChassisName)},
    {17, 6, offsetof(EVT_NIC_ERROR, cChassisName)},
    {17, 7, offsetof(EVT_NIC_ERROR, cChassisName)},
    {18, 1, offsetof(EVT_SCSI_CTRL_FAILURE, cChassisName)},
    {18, 2, offsetof(EVT_SCSI_DEVICE_FAILURE, cChassisName)},
    {18, 3, offsetof(EVT_SCSI_CTRLS_NOT_REDUNDANT, cChassisName)},
    {19, 1, offsetof(EVT_ARRAY_CTRL_FAILURE, cChassisName)},
    {19, 2, offsetof(EVT_ARRAY_DEV_FAILURE, cChassisName)},
    {19, 3, offsetof(EVT_ARRAY_ACCEL_FAILURE, cChassisName)},
    {19, 4, offsetof(EVT_ARRAY_CTRLS_NOT_REDUNDANT, cChassisName)},
    {19, 7, offsetof(EVT_SAS_ARRAY_DEV_FAILURE, szChassis_Sun)},
    {19, 8, offsetof(EVT_SAS_ARRAY_PHY_ERROR, szChassis_Sun)},
    {20, 3, sizeof(EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA)},
    {32, 1, offsetof(EVT_ROM_FLASH_OCCURRED, cText)},
    {33, 1, offsetof(EVT_MAINTENANCE_INFO, cText)},
    {33, 2, offsetof(EVT_MAINTENANCE_INFO, cText)},
    {34, 1, offsetof(EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON, cChassisName)},
    {34, 2, offsetof(EVT_INF_ENV_MANUAL_OVERRIDE, cChassisName)},
    {34, 3, offsetof(EVT_INF_ENV_FUSE_OPEN, cChassisName)},
    {34, 4, offsetof(EVT_INF_ENV_I2C_FAULT, cChassisName)},
    {34, 5, offsetof(EVT_INF_ENV_BLADE_INS_REM, cChassisName)},
    {34, 6, offsetof(EVT_INF_ENV_PWR_LOAD_BALANCING, cChassisName)},
    {34, 7, offsetof(EVT_INF_ENV_DC_PWR_PROBLEM, cChassisName)},
    {34, 8, offsetof(EVT_INF_ENV_AC_INPUT_PWR_EXCEEDED, cChassisName)},
    {34, 9, offsetof(EVT_INF_ENV_LOSS_OF_CHASSIS_CONNECTIVITY, cChassisName)},
    {34, 10, offsetof(EVT_INF_ENV_NEW_CHASSIS_CONNECTIVITY, cChassisName)},
    {34, 11, offsetof(EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG, cChassisName)},
    {34, 12, offsetof(EVT_INF_ENV_UNKNOWN_PWR_CONSUMPTION, cChassisName)},
    {34, 13, offsetof(EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED, cChassisName)},
    {34, 14, offsetof(EVT_INF_ENV_ENCLOSURE_MGR_STATUS, cChassisName)},
    {34, 15, offsetof(EVT_INF_ENV_BLOWER_FAULT, cChassisName)},
    {34, 16, offsetof(EVT_INF_ENV_BLOWER_REMOVED, cChassisName)},
    {34, 17, offsetof(EVT_INF_ENV_ETHERNET_SWITCH_FAULT, cChassisName)},
    {34, 18, offsetof(EVT_INF_ENV_INPUT_PWR_SENSE_ERR, cChassisName)},
    {34, 19, offsetof(EVT_INF_ENV_BLADE_INS_REM_2, cChassisName)},
    {34, 20, offsetof(EVT_INF_ENV_BLADE_INS_REM_2, cChassisName)},
    {34, 21, sizeof(EVT_INF_ENV_RACK_TOPOLOGY_ERR)},
    {34, 24, sizeof(EVT_INF_ENV_CHASSIS_ERR)},
    {34, 25, offsetof(EVT_INF_FIRMWARE_MISMATCH, cChassisName)},
};
// clang-format on

bool IsEnclosure(uint8_t chassis_type) {
    return chassis_type == kChassisBladeEnclosure || chassis_type == kChassisPowerEnclosure;
}

}  // namespace

std::optional<size_t> OffsetOfStrings(uint16_t event_class, uint16_t code, Bytes payload) {
    const auto type = ReadPaddedField<uint8_t>(payload, offsetof(EVT_CHASSIS, bType));
    // The only event with two records.
    if (event_class == 11 && code == 6 && IsEnclosure(type)) {
        return offsetof(EVT_INF_POWER_NOT_REDUNDANT, cChassisName);
    }
    const auto* const row = std::find_if(
        std::begin(kEventRecords), std::end(kEventRecords),
        [=](const EventRecord& record) { return record.event_class == event_class && record.code == code; });
    if (row == std::end(kEventRecords)) return std::nullopt;
    return row->fields;
}
