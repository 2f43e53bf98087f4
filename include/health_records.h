// The driver's records of fans, temperature sensors, power supplies and indicator lights, and the request
// codes of the recovery timer. All records are packed and little-endian.
#pragma once

#include <cstddef>
#include <cstdint>

#include "include/data_tables.h"
#include "include/event_machine.h"

// Fans. The comment of each table gives its record type.

constexpr DataTableType kFanHeaderTable = 351;   // FANHEADER
constexpr DataTableType kFanDataTable = 352;     // FANDDATA, a legacy record that some drivers lack
constexpr DataTableType kFanBasicTable = 353;    // FANBASIC
constexpr DataTableType kFanFeatureTable = 356;  // COMMONFEATUREINFO

enum FanSpeed : uint8_t { kFanNormal = 1, kFanHigh = 2, kFanOff = 3 };

#pragma pack(push, 1)

struct FANHEADER {
    uint8_t ucNumSupportedByChassis;  // number of fan positions
    uint8_t ucDataAvailable;          // 0 if the driver has no data on fans
    uint8_t ucNumFanControllers;
    uint8_t ucMaximum_ucID;
};
using PFANHEADER = FANHEADER*;
static_assert(sizeof(FANHEADER) == 4 && offsetof(FANHEADER, ucMaximum_ucID) == 3, "as the driver has it");

struct EVT_MINIHEADER {
    uint32_t dwEvtNumber;
    uint8_t bSeverity;
};
static_assert(sizeof(EVT_MINIHEADER) == 5 && offsetof(EVT_MINIHEADER, bSeverity) == 4,
              "as the driver has it");

struct FANDDATA {
    uint8_t ucPresent;  // nonzero: a fan is installed
    EVT_MINIHEADER EvtCommon;
    EVT_MACH_FAN_FAIL Evt;
    char cChassisNameContinued[31];
    uint8_t ucType;
    uint8_t ucSpeedState;
    uint8_t ucRedundant;         // nonzero: the fan is redundant
    uint8_t ucRedundantPartner;  // number of the redundant partner
};
using PFANDDATA = FANDDATA*;
static_assert(sizeof(FANDDATA) == 47 && offsetof(FANDDATA, EvtCommon) == 1 && offsetof(FANDDATA, Evt) == 6 &&
                  offsetof(FANDDATA, ucType) == 43 && offsetof(FANDDATA, ucRedundant) == 45,
              "as the driver has it");

union FANDESCRIPTOR {
    uint16_t usFanDescriptor;
    struct {
        uint16_t bit_Primary : 1;
        uint16_t bit_SpeedCntrl : 1;
        uint16_t bit_HotPlug : 1;
        uint16_t bit_TachForFault : 1;
        uint16_t bit_SharedFan : 1;
        uint16_t bit_AlwaysSpeedsUp : 1;
        uint16_t bit_FailedFanBlowOut : 1;
        uint16_t bit_FanBlkRedCapable : 1;
        uint16_t bits_Reserved : 8;
    } s1;
};

struct FANBASIC {
    uint8_t ucDataAvailable;
    FANDESCRIPTOR FanDescriptor;
    uint8_t ucSpinTypeIsValid;
    uint8_t ucSpinType;
    uint8_t ucSpeedStateIsValid;
    uint8_t ucSpeedState;  // a FanSpeed, or a value without a name
    uint8_t ucSpeedPctIsValid;
    uint8_t ucSpeedPct;  // percent of the maximum speed
    REDUNDANCYGROUPINFO SharedRedGroup;
};
using PFANBASIC = FANBASIC*;
static_assert(sizeof(FANBASIC) == 11 && offsetof(FANBASIC, FanDescriptor) == 1 &&
                  offsetof(FANBASIC, ucSpinType) == 4 && offsetof(FANBASIC, ucSpeedState) == 6 &&
                  offsetof(FANBASIC, ucSpeedPct) == 8,
              "as the driver has it");

#pragma pack(pop)

// Temperature sensors. The comment of each table gives its record type.

constexpr DataTableType kTemperatureHeaderTable = 251;   // TEMPERATUREHEADER
constexpr DataTableType kTemperatureNumbersTable = 254;  // TEMPERATURENUMBERS
constexpr DataTableType kTemperatureFeatureTable = 256;  // COMMONFEATUREINFO

// The kind of a sensor: the values of COMMONFEATUREINFO::ucTypeOf.
enum SensorKind : uint8_t {
    kBasicSensor = 1,
    kTc610 = 2,
    kTc620 = 3,
    kLm75 = 4,
    kMax1617 = 5,  // the only kind that reports whether it is present
};

#pragma pack(push, 1)

struct TEMPERATUREHEADER {
    uint8_t ucNumSupportedByChassis;  // number of sensors
    uint8_t ucDataAvailable;          // 0 if the driver has no data on sensors
    uint8_t ucMaximum_ucID;
};
using PTEMPERATUREHEADER = TEMPERATUREHEADER*;
static_assert(sizeof(TEMPERATUREHEADER) == 3, "as the driver has it");

struct TEMPERATURENUMBERS {  // temperatures in degrees Celsius, 0 to 255
    uint8_t ucDataAvailable;
    uint8_t ucTemperatureIsValid;  // nonzero: ucCelciusTemperature is valid
    uint8_t ucCelciusTemperature;
    uint8_t ucThresholdIsValid;  // nonzero: ucCelciusThreshold is valid
    uint8_t ucCelciusThreshold;
    uint8_t ucPrevTempIsValid;
    uint8_t ucPrevTemperature;
};
using PTEMPERATURENUMBERS = TEMPERATURENUMBERS*;
static_assert(sizeof(TEMPERATURENUMBERS) == 7 && offsetof(TEMPERATURENUMBERS, ucCelciusThreshold) == 4 &&
                  offsetof(TEMPERATURENUMBERS, ucPrevTemperature) == 6,
              "as the driver has it");

#pragma pack(pop)

// Power supplies. The comment of each table gives its record type.

constexpr DataTableType kSupplyHeaderTable = 151;   // POWERSUPPLYHEADER
constexpr DataTableType kSupplyNumbersTable = 158;  // POWERSUPPLYNUMBERS, which some drivers lack
constexpr DataTableType kSupplyBasicTable = 159;    // POWERSUPPLYBASIC
constexpr DataTableType kSupplyFeatureTable = 162;  // COMMONFEATUREINFO

#pragma pack(push, 1)

struct POWERSUPPLYHEADER {
    uint8_t ucNumSupportedByChassis;  // number of bays
    uint8_t ucDataAvailable;          // 0 if the driver has no data on power supplies
    uint8_t ucTotalHealthyPresent;
    uint8_t ucPowerSubsystemRedundant;
    uint8_t ucMaximum_ucID;
};
using PPOWERSUPPLYHEADER = POWERSUPPLYHEADER*;
static_assert(sizeof(POWERSUPPLYHEADER) == 5 && offsetof(POWERSUPPLYHEADER, ucPowerSubsystemRedundant) == 3,
              "as the driver has it");

struct POWERSUPPLYNUMBERS {
    uint8_t ucPresent;  // nonzero: a power supply is installed
    uint8_t ucNumberOfRatings;
    uint8_t ucNumberOfChannels;
    uint8_t ucNumberOfSensors;
    uint8_t ucNumberOfFans;
};
using PPOWERSUPPLYNUMBERS = POWERSUPPLYNUMBERS*;
static_assert(sizeof(POWERSUPPLYNUMBERS) == 5 && offsetof(POWERSUPPLYNUMBERS, ucNumberOfChannels) == 2 &&
                  offsetof(POWERSUPPLYNUMBERS, ucNumberOfSensors) == 3,
              "as the driver has it");

union PSDESCRIPTOR {
    uint16_t usPsDescriptor;
    struct {
        uint16_t bit_HotPlug : 1;
        uint16_t bits_Reserved : 15;
    } s1;
};

struct POWERSUPPLYBASIC {
    uint8_t ucDataAvailable;
    PSDESCRIPTOR PsDescriptor;
};
using PPOWERSUPPLYBASIC = POWERSUPPLYBASIC*;
static_assert(sizeof(POWERSUPPLYBASIC) == 3 && offsetof(POWERSUPPLYBASIC, PsDescriptor) == 1,
              "as the driver has it");

#pragma pack(pop)

// Indicator lights. The comment of each table gives its record type.

constexpr DataTableType kIndicatorHeaderTable = 1500;   // INDCHEADER
constexpr DataTableType kIndicatorControlTable = 1503;  // INDCBASIC; requests contain a control function

// The values of DT_IOCTL_HEADER::CRUFunction and CRUSubfunction.
constexpr uint8_t kIndicatorControl = 1;
enum IndicatorSubfunction : uint8_t { kTurnOn = 1, kTurnOff = 2, kReportState = 4 };

enum IndicatorState : uint8_t { kIndicatorOff = 0, kIndicatorOn = 1, kIndicatorBlinking = 2 };

#pragma pack(push, 1)

struct INDCHEADER {
    uint8_t ucNumSupportedByChassis;  // number of indicators
    uint8_t ucDataAvailable;          // 0 if the driver has no data on indicators
    uint8_t ucMaximum_ucID;
};
using PINDCHEADER = INDCHEADER*;
static_assert(sizeof(INDCHEADER) == 3 && offsetof(INDCHEADER, ucDataAvailable) == 1, "as the driver has it");

union INDCDESCRIPTOR {
    uint16_t usIndcDescriptor;
    struct {
        uint16_t bit_InitialState : 1;
        uint16_t bit_HWCtrl : 1;
        uint16_t bit_SWCtrl : 1;
        uint16_t bit_HWCtrlSwtch : 1;
        uint16_t bit_SWCtrlSwtch : 1;
        uint16_t bit_SWGenIntr : 1;
        uint16_t bits_Buttons : 2;
        uint16_t bits_Reserved : 8;
    } s1;
};

struct INDCBASIC {
    uint8_t ucDataAvailable;
    uint8_t ucCurrState;  // an IndicatorState
    INDCDESCRIPTOR IndcDescriptor;
    uint8_t ucCRUReturnCode;
};
using PINDCBASIC = INDCBASIC*;
static_assert(sizeof(INDCBASIC) == 5 && offsetof(INDCBASIC, ucCurrState) == 1 &&
                  offsetof(INDCBASIC, ucCRUReturnCode) == 4,
              "as the driver has it");

#pragma pack(pop)

// The request codes of the casr device, the automatic server recovery timer. The timer's timeout is in a ROM
// variable.
enum AsrRequest : int {
    kDisableTimer = 3,  // has no request block
    kEnableTimer = 4,   // has no request block
    kTimerState = 6,    // stores an int32_t in the block: nonzero if the timer is enabled
};
