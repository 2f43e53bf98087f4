// The entries of the event log: a header, then a payload, which is one of many records. The class and the
// code in the header determine which record. Each family of events has a header file that declares its
// records; the comment of a record gives the class/code pairs of its events, such as 11/4. The pointer types,
// whose names are P followed by the record's name, are for programs that link the translator.
//
// All records are packed and little-endian. A field of type char[1] is the first character of a
// NUL-terminated string that extends beyond the record; if a second string follows, it starts after the NUL
// of the first. The value 255, or 0xFFFFFFFF in a 32-bit field, means that the value is unknown, except in
// addresses and in the numbers of the SAS records and of record 3/18.
//
// In the SAS records, szPortID contains the port's two letters, bBox is the number of a box in the enclosure,
// and szChassis_Sun is the chassis name. A location follows it as a second string; unless it is empty, it is
// printed instead of the slot.
#pragma once

#include "include/event_adapters.h"
#include "include/event_hardware.h"
#include "include/event_infrastructure.h"
#include "include/event_log.h"
#include "include/event_machine.h"
#include "include/event_memory.h"
#include "include/event_power.h"
#include "include/event_system.h"

#pragma pack(push, 1)

union _evtFreeForm {
    EVT_MACH_OVERHEAT MachHeat;
    EVT_MACH_FAN_FAIL MachFan;
    EVT_MACH_DOOR_OPEN MachDoor;
    EVT_MACH_FAN_REMOVED MachFanRem;
    EVT_MACH_FAN_INSERTED MachFanIns;
    EVT_MACH_FAN_NOT_REDUNDANT MachFanNotRed;
    EVT_MACH_FAN_NOT_REDUNDANT_SHARED MachFanNotRedShared;
    EVT_MACH_SAS_FAN_FAIL MachFanSas;
    EVT_MACH_SAS_OVERHEAT MachHeatSas;
    EVT_MAIN_MEMORY MainMem;
    EVT_MAIN_MEMORY_MULTI MainMemMulti;
    EVT_MAIN_MEMORY_USER_ACTION MainMemAction;
    EVT_MAIN_MEMORY_HW_STATUS MainMemHwStat;
    EVT_MAIN_MEMORY_CONFIG_ERR MainMemCfErr;
    EVT_MAIN_MEMORY_CONFIG_CHG MainMemCfChg;
    EVT_MAIN_MEMORY_SPARE_ENGAGED MainMemSpare;
    EVT_MAIN_MEMORY_MIRROR_ENGAGED MainMemMirror;
    EVT_MAIN_MEMORY_CONFIGURATION MainMemConfig;
    EVT_MAIN_MEMORY_BOARD_FAILURE MainMemBoardFailure;
    EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG MainMemFailInRomDiag;
    EVT_CACHE_ACCEL_PARITY_ERROR CacheAccelError;
    EVT_CPU_CORRECTABLE CpuCorr;
    EVT_CPU_UNCORRECTABLE CpuUncorr;
    EVT_HOST_BUS_UNCORRECTABLE HbUncorr;
    EVT_INTERMODULE_BUS_UNCORRECTABLE IntModUncorr;
    EVT_EISA_BUS EisaBus;
    EVT_PCI_BUS PciBus;
    EVT_EXPANSION_SLOT Slot;
    EVT_EXPANSION_SLOT_CONFIG_ERR SlotConfig;
    EVT_POST_MESSAGE PostMsg;
    EVT_POWER_SUPPLY_FAILURE PsFail;
    EVT_BATTERY_LOW BatLow;
    EVT_POWER_MODULE_FAILURE PowerMod;
    EVT_POWER_SUPPLY_REMOVED PsRem;
    EVT_POWER_SUPPLY_INSERTED PsIns;
    EVT_POWER_NOT_REDUNDANT PsNotRed;
    EVT_INF_POWER_NOT_REDUNDANT PsInfNotRed;
    EVT_POWER_MODULES_NOT_REDUNDANT PowerModNotRed;
    EVT_POWER_AC_VOLTAGE PsAcVolt;
    EVT_POWER_AC_OVERLOAD PsAcOverload;
    EVT_POWER_SUPPLY_UNPOWERED PsUnpowered;
    EVT_POWER_SUPPLY_POWERED PsPowered;
    EVT_SYS_POWER_MODULE_FAILURE PsModFail;
    EVT_SYS_POWER_MODULE_REMOVED PsModRem;
    EVT_SYS_POWER_MODULE_INSERTED PsModIns;
    EVT_SYS_POWER_MODULE_NOT_REDUNDANT PsModNotRed;
    EVT_SYS_POWER_MODULE_OVERLOAD PsModOverload;
    EVT_SAS_POWER_SUPPLY_FAILURE PsFailSas;
    EVT_ASR_LOCKUP AsrLockup;
    EVT_OS_CRASH OsCrash;
    EVT_AUTO_SHUTDOWN Shutdown;
    EVT_OS_FATAL_EXCEPTION OsExcept;
    EVT_OS_PWR_SHED OsPwrShed;
    EVT_NIC_ERROR NicErr;
    EVT_NICS_NOT_REDUNDANT NicNotRed;
    EVT_SCSI_CTRL_FAILURE ScsiCtrl;
    EVT_SCSI_DEVICE_FAILURE ScsiDev;
    EVT_SCSI_CTRLS_NOT_REDUNDANT ScsiNotRed;
    EVT_ARRAY_CTRL_FAILURE ArrayCtrl;
    EVT_ARRAY_DEV_FAILURE ArrayDev;
    EVT_ARRAY_ACCEL_FAILURE ArrayAccel;
    EVT_ARRAY_CTRLS_NOT_REDUNDANT ArrayNotRed;
    EVT_SAS_ARRAY_DEV_FAILURE ArrayDevSas;
    EVT_SAS_ARRAY_PHY_ERROR ArraySasPHY;
    EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA NmiPlusData;
    EVT_ROM_FLASH_OCCURRED RomFlash;
    EVT_MAINTENANCE_INFO Maint;
    EVT_HEALTHREQUEST HealthRequest;
    EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON InfCantPwrOn;
    EVT_INF_ENV_MANUAL_OVERRIDE InfManOverride;
    EVT_INF_ENV_FUSE_OPEN InfFuseOpen;
    EVT_INF_ENV_I2C_FAULT InfI2cFlt;
    EVT_INF_ENV_BLADE_INS_REM InfBladeInsRem;
    EVT_INF_ENV_PWR_LOAD_BALANCING InfPwrLoadBal;
    EVT_INF_ENV_DC_PWR_PROBLEM InfDcPwrProblem;
    EVT_INF_ENV_AC_INPUT_PWR_EXCEEDED InfAcPwrProblem;
    EVT_INF_ENV_LOSS_OF_CHASSIS_CONNECTIVITY InfLostCon;
    EVT_INF_ENV_NEW_CHASSIS_CONNECTIVITY InfNewCon;
    EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG InfRackChange;
    EVT_INF_ENV_UNKNOWN_PWR_CONSUMPTION InfUnknownPwrUse;
    EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED InfPwrMisconfig;
    EVT_INF_ENV_ENCLOSURE_MGR_STATUS InfEnclMgrStatus;
    EVT_INF_ENV_BLOWER_FAULT InfBlwrFault;
    EVT_INF_ENV_BLOWER_REMOVED InfBlwrRem;
    EVT_INF_ENV_ETHERNET_SWITCH_FAULT InfEthSwFlt;
    EVT_INF_ENV_INPUT_PWR_SENSE_ERR InfInPwrSenseErr;
    EVT_INF_ENV_BLADE_INS_REM_2 InfBladeInsRem2;
    EVT_INF_ENV_RACK_TOPOLOGY_ERR InfTopErr;
    EVT_INF_ENV_CHASSIS_ERR InfChassisError;
    EVT_INF_FIRMWARE_MISMATCH InfFirmwareMismatch;
    EVT_EMBEDDED_HEALTH EmbeddedHealth;
};
using EVT_FREE_FORM = _evtFreeForm;
using PEVT_FREE_FORM = EVT_FREE_FORM*;
static_assert(sizeof(EVT_FREE_FORM) == 10, "the fixed parts, without the rest of their strings");

struct _evtLogEntry {
    EVT_HEADER Hdr;
    EVT_FREE_FORM Data;
};
using EVT_LOG_ENTRY = _evtLogEntry;
using PEVT_LOG_ENTRY = EVT_LOG_ENTRY*;
static_assert(sizeof(EVT_LOG_ENTRY) == 38 && offsetof(EVT_LOG_ENTRY, Data) == 28);

struct _evtLogIpmiHdr {  // header of entries that come from the management processor
    uint8_t bClass;
    uint8_t bCode;
    uint8_t bAlertId;
    uint8_t bFlag;
    uint8_t bSeverity;
};
using EVT_IPMI_HEADER = _evtLogIpmiHdr;
using PEVT_IPMI_HEADER = EVT_IPMI_HEADER*;
static_assert(sizeof(EVT_IPMI_HEADER) == 5 && offsetof(EVT_IPMI_HEADER, bCode) == 1 &&
              offsetof(EVT_IPMI_HEADER, bAlertId) == 2 && offsetof(EVT_IPMI_HEADER, bFlag) == 3);

struct _evtIpmiLogEntry {
    EVT_IPMI_HEADER Hdr;
    EVT_FREE_FORM Data;
};
using EVT_IPMI_LOG_ENTRY = _evtIpmiLogEntry;
using PEVT_IPMI_LOG_ENTRY = EVT_IPMI_LOG_ENTRY*;
static_assert(sizeof(EVT_IPMI_LOG_ENTRY) == 15 && offsetof(EVT_IPMI_LOG_ENTRY, Data) == 5);

#pragma pack(pop)

// A request of the cevt device; the reply overwrites it. It has natural alignment, so 2 bytes of padding
// follow the entry. The buffer of a read is larger: kEventReadSize bytes.
struct _ioctlEntry {
    LOG_INFO info;
    EVT_LOG_ENTRY Evt;
};
using EVT_IOCTL_ENTRY = _ioctlEntry;
using PEVT_IOCTL_ENTRY = EVT_IOCTL_ENTRY*;
static_assert(sizeof(EVT_IOCTL_ENTRY) == 56 && offsetof(EVT_IOCTL_ENTRY, Evt) == 16);

constexpr size_t kEventReadSize = 312;
constexpr size_t kEventEntryCapacity = kEventReadSize - sizeof(LOG_INFO);  // 296 bytes
