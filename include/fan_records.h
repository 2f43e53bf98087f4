// The driver's data tables about fans. Packed and little-endian, as the driver has them.
#pragma once

#include <cstddef>
#include <cstdint>

#include "include/data_tables.h"
#include "include/event_machine.h"

constexpr DataTableType kFanHeaderTable = 351;   // FANHEADER
constexpr DataTableType kFanDataTable = 352;     // FANDDATA, which not every driver offers
constexpr DataTableType kFanBasicTable = 353;    // FANBASIC
constexpr DataTableType kFanFeatureTable = 356;  // COMMONFEATUREINFO

enum FanSpeed : uint8_t { kFanNormal = 1, kFanHigh = 2, kFanOff = 3 };

#pragma pack(push, 1)

struct FANHEADER {
    uint8_t ucNumSupportedByChassis;  // fan positions
    uint8_t ucDataAvailable;          // 0: no fan data
    uint8_t ucNumFanControllers;
    uint8_t ucMaximum_ucID;
};
using PFANHEADER = FANHEADER*;
static_assert(sizeof(FANHEADER) == 4, "as the driver has it");

struct EVT_MINIHEADER {
    uint32_t dwEvtNumber;
    uint8_t bSeverity;
};

struct FANDDATA {
    uint8_t ucPresent;  // nonzero: a fan is installed
    EVT_MINIHEADER EvtCommon;
    EVT_MACH_FAN_FAIL Evt;
    char cChassisNameContinued[31];
    uint8_t ucType;
    uint8_t ucSpeedState;
    uint8_t ucRedundant;         // nonzero: redundant
    uint8_t ucRedundantPartner;  // the partner's number
};
using PFANDDATA = FANDDATA*;
static_assert(sizeof(FANDDATA) == 47 && offsetof(FANDDATA, Evt) == 6 && offsetof(FANDDATA, ucRedundant) == 45,
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
    uint8_t ucSpeedState;  // a FanSpeed, or another
    uint8_t ucSpeedPctIsValid;
    uint8_t ucSpeedPct;  // percent of maximum
    REDUNDANCYGROUPINFO SharedRedGroup;
};
using PFANBASIC = FANBASIC*;
static_assert(sizeof(FANBASIC) == 11 && offsetof(FANBASIC, FanDescriptor) == 1 &&
                  offsetof(FANBASIC, ucSpeedState) == 6 && offsetof(FANBASIC, ucSpeedPct) == 8,
              "as the driver has it");

#pragma pack(pop)
