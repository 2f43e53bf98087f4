// The driver's data tables about indicator lights. Packed and little-endian, as the driver has them.
#pragma once

#include <cstddef>
#include <cstdint>

#include "include/data_tables.h"

constexpr DataTableType kIndicatorHeaderTable = 1500;   // INDCHEADER
constexpr DataTableType kIndicatorControlTable = 1503;  // INDCBASIC; its request carries a control function

// DT_IOCTL_HEADER's control function and its subfunctions.
constexpr uint8_t kIndicatorControl = 1;
enum IndicatorSubfunction : uint8_t { kTurnOn = 1, kTurnOff = 2, kReportState = 4 };

enum IndicatorState : uint8_t { kIndicatorOff = 0, kIndicatorOn = 1, kIndicatorBlinking = 2 };

#pragma pack(push, 1)

struct INDCHEADER {
    uint8_t ucNumSupportedByChassis;  // indicators
    uint8_t ucDataAvailable;          // 0: no indicator data
    uint8_t ucMaximum_ucID;
};
using PINDCHEADER = INDCHEADER*;
static_assert(sizeof(INDCHEADER) == 3, "as the driver has it");

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
