// The driver's data tables about power supplies. Packed and little-endian, as the driver has them.
#pragma once

#include <cstddef>
#include <cstdint>

#include "include/data_tables.h"

constexpr DataTableType kSupplyHeaderTable = 151;   // POWERSUPPLYHEADER
constexpr DataTableType kSupplyNumbersTable = 158;  // POWERSUPPLYNUMBERS, which not every driver offers
constexpr DataTableType kSupplyBasicTable = 159;    // POWERSUPPLYBASIC
constexpr DataTableType kSupplyFeatureTable = 162;  // COMMONFEATUREINFO

#pragma pack(push, 1)

struct POWERSUPPLYHEADER {
    uint8_t ucNumSupportedByChassis;  // bays
    uint8_t ucDataAvailable;          // 0: no power supply data
    uint8_t ucTotalHealthyPresent;
    uint8_t ucPowerSubsystemRedundant;
    uint8_t ucMaximum_ucID;
};
using PPOWERSUPPLYHEADER = POWERSUPPLYHEADER*;
static_assert(sizeof(POWERSUPPLYHEADER) == 5, "as the driver has it");

struct POWERSUPPLYNUMBERS {
    uint8_t ucPresent;  // nonzero: a supply is installed
    uint8_t ucNumberOfRatings;
    uint8_t ucNumberOfChannels;
    uint8_t ucNumberOfSensors;
    uint8_t ucNumberOfFans;
};
using PPOWERSUPPLYNUMBERS = POWERSUPPLYNUMBERS*;
static_assert(sizeof(POWERSUPPLYNUMBERS) == 5, "as the driver has it");

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
