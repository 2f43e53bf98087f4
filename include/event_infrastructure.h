// Records of class 34: the enclosures of blade servers.
// The conventions are in event_payloads.h.
#pragma once

#include "include/event_log.h"

#pragma pack(push, 1)

struct EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON {  // 34/1: too little power to power on
    EVT_CHASSIS Chassis;
    uint8_t bBlade;
    uint8_t bReason;
    char cChassisName[1];
};
using PEVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON = EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON*;
static_assert(sizeof(EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON) == 6 &&
              offsetof(EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON, cChassisName) == 5);

struct EVT_INF_ENV_MANUAL_OVERRIDE {  // 34/2: blade powered on manually
    EVT_CHASSIS Chassis;
    uint8_t bBlade;
    char cChassisName[1];
};
using PEVT_INF_ENV_MANUAL_OVERRIDE = EVT_INF_ENV_MANUAL_OVERRIDE*;
static_assert(sizeof(EVT_INF_ENV_MANUAL_OVERRIDE) == 5 &&
              offsetof(EVT_INF_ENV_MANUAL_OVERRIDE, cChassisName) == 4);

struct EVT_INF_ENV_FUSE_OPEN {  // 34/3: fuse or breaker tripped
    EVT_CHASSIS Chassis;
    uint8_t bZoneId;    // bits 0 to 3: number of the slot or side; bit 4: fuse B (1) or A (0)
    uint8_t bZoneType;  // an EventZoneType
    char cChassisName[1];
};
using PEVT_INF_ENV_FUSE_OPEN = EVT_INF_ENV_FUSE_OPEN*;
static_assert(sizeof(EVT_INF_ENV_FUSE_OPEN) == 6 && offsetof(EVT_INF_ENV_FUSE_OPEN, cChassisName) == 5);

struct EVT_INF_ENV_I2C_FAULT {  // 34/4: I2C bus fault
    EVT_CHASSIS Chassis;
    uint8_t bBus;
    char cChassisName[1];
};
using PEVT_INF_ENV_I2C_FAULT = EVT_INF_ENV_I2C_FAULT*;
static_assert(sizeof(EVT_INF_ENV_I2C_FAULT) == 5 && offsetof(EVT_INF_ENV_I2C_FAULT, cChassisName) == 4);

struct EVT_INF_ENV_BLADE_INS_REM {  // 34/5: blade inserted or removed
    EVT_CHASSIS Chassis;
    uint8_t bBlade;
    uint8_t bPresent;  // 0: removed, otherwise inserted
    char cChassisName[1];
};
using PEVT_INF_ENV_BLADE_INS_REM = EVT_INF_ENV_BLADE_INS_REM*;
static_assert(sizeof(EVT_INF_ENV_BLADE_INS_REM) == 6 &&
              offsetof(EVT_INF_ENV_BLADE_INS_REM, cChassisName) == 5);

struct EVT_INF_ENV_PWR_LOAD_BALANCING {  // 34/6: power not balanced
    EVT_CHASSIS Chassis;
    char cSide;  // 1: bus A; other values: bus B
    uint16_t wAddress;
    char cChassisName[1];
};
using PEVT_INF_ENV_PWR_LOAD_BALANCING = EVT_INF_ENV_PWR_LOAD_BALANCING*;
static_assert(sizeof(EVT_INF_ENV_PWR_LOAD_BALANCING) == 7 &&
              offsetof(EVT_INF_ENV_PWR_LOAD_BALANCING, cChassisName) == 6);

struct EVT_INF_ENV_DC_PWR_PROBLEM {  // 34/7: DC power out of tolerance
    EVT_CHASSIS Chassis;
    char cSide;         // 0: bus A; other values: bus B
    uint16_t wVoltage;  // millivolts
    char cChassisName[1];
};
using PEVT_INF_ENV_DC_PWR_PROBLEM = EVT_INF_ENV_DC_PWR_PROBLEM*;
static_assert(sizeof(EVT_INF_ENV_DC_PWR_PROBLEM) == 7 &&
              offsetof(EVT_INF_ENV_DC_PWR_PROBLEM, cChassisName) == 6);

struct EVT_INF_ENV_AC_INPUT_PWR_EXCEEDED {  // 34/8: AC input power exceeded
    EVT_CHASSIS Chassis;
    char cChassisName[1];
};
using PEVT_INF_ENV_AC_INPUT_PWR_EXCEEDED = EVT_INF_ENV_AC_INPUT_PWR_EXCEEDED*;
static_assert(sizeof(EVT_INF_ENV_AC_INPUT_PWR_EXCEEDED) == 4 &&
              offsetof(EVT_INF_ENV_AC_INPUT_PWR_EXCEEDED, cChassisName) == 3);

struct EVT_INF_ENV_LOSS_OF_CHASSIS_CONNECTIVITY {  // 34/9: connection to a chassis lost
    EVT_CHASSIS Chassis;
    uint16_t wAddress;
    char cChassisName[1];
};
using PEVT_INF_ENV_LOSS_OF_CHASSIS_CONNECTIVITY = EVT_INF_ENV_LOSS_OF_CHASSIS_CONNECTIVITY*;
static_assert(sizeof(EVT_INF_ENV_LOSS_OF_CHASSIS_CONNECTIVITY) == 6 &&
              offsetof(EVT_INF_ENV_LOSS_OF_CHASSIS_CONNECTIVITY, cChassisName) == 5);

struct EVT_INF_ENV_NEW_CHASSIS_CONNECTIVITY {  // 34/10: new chassis connected
    EVT_CHASSIS Chassis;
    uint16_t wAddress;
    char cChassisName[1];
};
using PEVT_INF_ENV_NEW_CHASSIS_CONNECTIVITY = EVT_INF_ENV_NEW_CHASSIS_CONNECTIVITY*;
static_assert(sizeof(EVT_INF_ENV_NEW_CHASSIS_CONNECTIVITY) == 6 &&
              offsetof(EVT_INF_ENV_NEW_CHASSIS_CONNECTIVITY, cChassisName) == 5);

struct EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG {  // 34/11: name or settings of a rack changed
    EVT_CHASSIS Chassis;
    uint8_t bType;
    char cChassisName[1];
};
using PEVT_INF_ENV_RACK_INFRASTRUCTURE_CHG = EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG*;
static_assert(sizeof(EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG) == 5 &&
              offsetof(EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG, cChassisName) == 4);

struct EVT_INF_ENV_UNKNOWN_PWR_CONSUMPTION {  // 34/12: unknown power consumption
    EVT_CHASSIS Chassis;
    char cChassisName[1];
};
using PEVT_INF_ENV_UNKNOWN_PWR_CONSUMPTION = EVT_INF_ENV_UNKNOWN_PWR_CONSUMPTION*;
static_assert(sizeof(EVT_INF_ENV_UNKNOWN_PWR_CONSUMPTION) == 4 &&
              offsetof(EVT_INF_ENV_UNKNOWN_PWR_CONSUMPTION, cChassisName) == 3);

struct EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED {  // 34/13: power subsystem misconfigured
    EVT_CHASSIS Chassis;
    uint8_t bError;
    uint8_t bLocation;
    uint16_t wAddress;
    char cChassisName[1];
};
using PEVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED = EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED*;
static_assert(sizeof(EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED) == 8 &&
              offsetof(EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED, cChassisName) == 7);

struct EVT_INF_ENV_ENCLOSURE_MGR_STATUS {  // 34/14: status of an enclosure changed
    EVT_CHASSIS Chassis;
    char cChassisName[1];
};
using PEVT_INF_ENV_ENCLOSURE_MGR_STATUS = EVT_INF_ENV_ENCLOSURE_MGR_STATUS*;
static_assert(sizeof(EVT_INF_ENV_ENCLOSURE_MGR_STATUS) == 4 &&
              offsetof(EVT_INF_ENV_ENCLOSURE_MGR_STATUS, cChassisName) == 3);

struct EVT_INF_ENV_BLOWER_FAULT {  // 34/15: blower fault
    EVT_CHASSIS Chassis;
    uint8_t bProblem;  // the blower's number
    uint8_t bSide;
    char cChassisName[1];
};
using PEVT_INF_ENV_BLOWER_FAULT = EVT_INF_ENV_BLOWER_FAULT*;
static_assert(sizeof(EVT_INF_ENV_BLOWER_FAULT) == 6 && offsetof(EVT_INF_ENV_BLOWER_FAULT, cChassisName) == 5);

struct EVT_INF_ENV_BLOWER_REMOVED {  // 34/16: blower removed
    EVT_CHASSIS Chassis;
    uint8_t bProblem;  // the blower's number
    uint8_t bSide;
    char cChassisName[1];
};
using PEVT_INF_ENV_BLOWER_REMOVED = EVT_INF_ENV_BLOWER_REMOVED*;
static_assert(sizeof(EVT_INF_ENV_BLOWER_REMOVED) == 6 &&
              offsetof(EVT_INF_ENV_BLOWER_REMOVED, cChassisName) == 5);

struct EVT_INF_ENV_ETHERNET_SWITCH_FAULT {  // 34/17: Ethernet switch fault
    EVT_CHASSIS Chassis;
    uint8_t bProblem;
    uint8_t bSide;
    char cChassisName[1];
};
using PEVT_INF_ENV_ETHERNET_SWITCH_FAULT = EVT_INF_ENV_ETHERNET_SWITCH_FAULT*;
static_assert(sizeof(EVT_INF_ENV_ETHERNET_SWITCH_FAULT) == 6 &&
              offsetof(EVT_INF_ENV_ETHERNET_SWITCH_FAULT, cChassisName) == 5);

struct EVT_INF_ENV_INPUT_PWR_SENSE_ERR {  // 34/18: power feed missing
    EVT_CHASSIS Chassis;
    uint8_t bSide;
    char cChassisName[1];
};
using PEVT_INF_ENV_INPUT_PWR_SENSE_ERR = EVT_INF_ENV_INPUT_PWR_SENSE_ERR*;
static_assert(sizeof(EVT_INF_ENV_INPUT_PWR_SENSE_ERR) == 5 &&
              offsetof(EVT_INF_ENV_INPUT_PWR_SENSE_ERR, cChassisName) == 4);

struct EVT_INF_ENV_BLADE_INS_REM_2 {  // 34/19: blade or component inserted; 34/20: removed
    EVT_CHASSIS Chassis;
    uint8_t bZoneId;
    uint8_t bZoneType;  // an EventZoneType
    char cChassisName[1];
};
using PEVT_INF_ENV_BLADE_INS_REM_2 = EVT_INF_ENV_BLADE_INS_REM_2*;
static_assert(sizeof(EVT_INF_ENV_BLADE_INS_REM_2) == 6 &&
              offsetof(EVT_INF_ENV_BLADE_INS_REM_2, cChassisName) == 5);

struct EVT_INF_ENV_RACK_TOPOLOGY_ERR {  // 34/21: invalid topology
    EVT_CHASSIS Chassis;
    uint8_t bReason;
};
using PEVT_INF_ENV_RACK_TOPOLOGY_ERR = EVT_INF_ENV_RACK_TOPOLOGY_ERR*;
static_assert(sizeof(EVT_INF_ENV_RACK_TOPOLOGY_ERR) == 4 &&
              offsetof(EVT_INF_ENV_RACK_TOPOLOGY_ERR, bReason) == 3);

struct EVT_INF_ENV_CHASSIS_ERR {  // 34/24: infrastructure fault
    EVT_CHASSIS Chassis;
    uint8_t bLocation;
    uint8_t bSubLocation;
    uint8_t bError;
};
using PEVT_INF_ENV_CHASSIS_ERR = EVT_INF_ENV_CHASSIS_ERR*;
static_assert(sizeof(EVT_INF_ENV_CHASSIS_ERR) == 6 && offsetof(EVT_INF_ENV_CHASSIS_ERR, bError) == 5);

struct EVT_INF_FIRMWARE_MISMATCH {  // 34/25: firmware is too old
    EVT_CHASSIS Chassis;
    uint8_t bCurrentMajor;
    uint8_t bCurrentMinor;  // BCD; the low digit is printed first
    uint8_t bRequiredMajor;
    uint8_t bRequiredMinor;  // BCD; the low digit is printed first
    uint16_t wICMB_Number;
    char cChassisName[1];
};
using PEVT_INF_FIRMWARE_MISMATCH = EVT_INF_FIRMWARE_MISMATCH*;
static_assert(sizeof(EVT_INF_FIRMWARE_MISMATCH) == 10 &&
              offsetof(EVT_INF_FIRMWARE_MISMATCH, bRequiredMajor) == 5 &&
              offsetof(EVT_INF_FIRMWARE_MISMATCH, cChassisName) == 9);

#pragma pack(pop)
