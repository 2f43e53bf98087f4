// Records of classes 17 to 19: network adapters, SCSI, drive arrays.
// The conventions are in event_payloads.h.
#pragma once

#include "include/event_log.h"

#pragma pack(push, 1)

struct EVT_NIC_ERROR {  // 17/1-3, 17/5-7: network adapter faults
    EVT_CHASSIS Chassis;
    uint8_t bSlot;
    char cChassisName[1];  // 17/6, 17/7: a second string follows
};
using PEVT_NIC_ERROR = EVT_NIC_ERROR*;
static_assert(sizeof(EVT_NIC_ERROR) == 5 && offsetof(EVT_NIC_ERROR, cChassisName) == 4);

struct EVT_NICS_NOT_REDUNDANT {  // 17/4: network adapters not redundant
    EVT_CHASSIS Chassis;
    uint8_t bSlot;
    char cChassisName[1];
};
using PEVT_NICS_NOT_REDUNDANT = EVT_NICS_NOT_REDUNDANT*;
static_assert(sizeof(EVT_NICS_NOT_REDUNDANT) == 5 && offsetof(EVT_NICS_NOT_REDUNDANT, cChassisName) == 4);

struct EVT_SCSI_CTRL_FAILURE {  // 18/1: SCSI controller failure
    EVT_CHASSIS Chassis;
    uint8_t bSlot;
    char cChassisName[1];
};
using PEVT_SCSI_CTRL_FAILURE = EVT_SCSI_CTRL_FAILURE*;
static_assert(sizeof(EVT_SCSI_CTRL_FAILURE) == 5 && offsetof(EVT_SCSI_CTRL_FAILURE, cChassisName) == 4);

struct EVT_SCSI_DEVICE_FAILURE {  // 18/2: SCSI device failure
    EVT_CHASSIS Chassis;
    uint8_t bBay;
    char cChassisName[1];
};
using PEVT_SCSI_DEVICE_FAILURE = EVT_SCSI_DEVICE_FAILURE*;
static_assert(sizeof(EVT_SCSI_DEVICE_FAILURE) == 5 && offsetof(EVT_SCSI_DEVICE_FAILURE, cChassisName) == 4);

struct EVT_SCSI_CTRLS_NOT_REDUNDANT {  // 18/3: SCSI controllers not redundant
    EVT_CHASSIS Chassis;
    char cChassisName[1];
};
using PEVT_SCSI_CTRLS_NOT_REDUNDANT = EVT_SCSI_CTRLS_NOT_REDUNDANT*;
static_assert(sizeof(EVT_SCSI_CTRLS_NOT_REDUNDANT) == 4 &&
              offsetof(EVT_SCSI_CTRLS_NOT_REDUNDANT, cChassisName) == 3);

struct EVT_ARRAY_CTRL_FAILURE {  // 19/1: array controller failure
    EVT_CHASSIS Chassis;
    uint8_t bSlot;
    char cChassisName[1];
};
using PEVT_ARRAY_CTRL_FAILURE = EVT_ARRAY_CTRL_FAILURE*;
static_assert(sizeof(EVT_ARRAY_CTRL_FAILURE) == 5 && offsetof(EVT_ARRAY_CTRL_FAILURE, cChassisName) == 4);

struct EVT_ARRAY_DEV_FAILURE {  // 19/2: array device failure
    EVT_CHASSIS Chassis;
    uint8_t bBay;
    char cChassisName[1];
};
using PEVT_ARRAY_DEV_FAILURE = EVT_ARRAY_DEV_FAILURE*;
static_assert(sizeof(EVT_ARRAY_DEV_FAILURE) == 5 && offsetof(EVT_ARRAY_DEV_FAILURE, cChassisName) == 4);

struct EVT_ARRAY_ACCEL_FAILURE {  // 19/3: battery failure of an array accelerator
    EVT_CHASSIS Chassis;
    uint8_t bSlot;
    char cChassisName[1];
};
using PEVT_ARRAY_ACCEL_FAILURE = EVT_ARRAY_ACCEL_FAILURE*;
static_assert(sizeof(EVT_ARRAY_ACCEL_FAILURE) == 5 && offsetof(EVT_ARRAY_ACCEL_FAILURE, cChassisName) == 4);

struct EVT_ARRAY_CTRLS_NOT_REDUNDANT {  // 19/4: array controllers not redundant
    EVT_CHASSIS Chassis;
    char cChassisName[1];
};
using PEVT_ARRAY_CTRLS_NOT_REDUNDANT = EVT_ARRAY_CTRLS_NOT_REDUNDANT*;
static_assert(sizeof(EVT_ARRAY_CTRLS_NOT_REDUNDANT) == 4 &&
              offsetof(EVT_ARRAY_CTRLS_NOT_REDUNDANT, cChassisName) == 3);

struct EVT_SAS_ARRAY_DEV_FAILURE {  // 19/7: device failure in a SAS enclosure
    EVT_CHASSIS Chassis;
    uint8_t bBay;
    char szPortID[2];
    uint8_t bBox;
    char szChassis_Sun[1];
};
using PEVT_SAS_ARRAY_DEV_FAILURE = EVT_SAS_ARRAY_DEV_FAILURE*;
static_assert(sizeof(EVT_SAS_ARRAY_DEV_FAILURE) == 8 &&
              offsetof(EVT_SAS_ARRAY_DEV_FAILURE, szChassis_Sun) == 7);

struct EVT_SAS_ARRAY_PHY_ERROR {  // 19/8: link error in a SAS enclosure
    EVT_CHASSIS Chassis;
    char szPortID[2];
    uint8_t bBox;
    uint8_t bExpanderNumber;
    uint8_t bExpanderPhyNumber;
    char szChassis_Sun[1];
};
using PEVT_SAS_ARRAY_PHY_ERROR = EVT_SAS_ARRAY_PHY_ERROR*;
static_assert(sizeof(EVT_SAS_ARRAY_PHY_ERROR) == 9 && offsetof(EVT_SAS_ARRAY_PHY_ERROR, szChassis_Sun) == 8);

#pragma pack(pop)
