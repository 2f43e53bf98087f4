// The data tables of the health driver: the request block that reads a record of a table, and the common
// feature record, which every fan, temperature sensor and power supply has. All are little-endian; bit fields
// start at the least significant bit.
//
// Each record of a table, here and in its family's header, has a pointer type, whose name is P followed by
// the record's name. The pointer types are for code that uses generic_dtioctl without Reply.
#pragma once

#include <cstddef>
#include <cstdint>

constexpr int kDataTableRequest = 69;  // the only request code of the cdt device

// The number of a data table, DT_IOCTL_HEADER::DT_Type. The header of each family of devices defines the
// numbers of its tables, next to their records.
using DataTableType = uint16_t;

struct DT_IOCTL_HEADER {
    uint32_t size;           // size of the caller's reply buffer: that of the requested record
    DataTableType DT_Type;   // the table
    uint8_t Index;           // index of the fan, sensor, power supply or cartridge, from 0; 255 for -1
    uint8_t Index2;          // index of the module in a cartridge; 0 for other tables
    uint8_t CRUFunction;     // control function, see health_records.h; 0 except in indicator requests
    uint8_t CRUSubfunction;  // control subfunction, also 0 in other requests
    uint8_t pad[2];
};
static_assert(sizeof(DT_IOCTL_HEADER) == 12 && offsetof(DT_IOCTL_HEADER, DT_Type) == 4 &&
                  offsetof(DT_IOCTL_HEADER, Index) == 6 && offsetof(DT_IOCTL_HEADER, Index2) == 7 &&
                  offsetof(DT_IOCTL_HEADER, CRUFunction) == 8 &&
                  offsetof(DT_IOCTL_HEADER, CRUSubfunction) == 9,
              "as the driver has it");

struct DT_IOCTL {
    DT_IOCTL_HEADER DtHdr;
    void* pData;  // the caller's reply buffer of DtHdr.size bytes
};
static_assert(sizeof(void*) != 4 || (sizeof(DT_IOCTL) == 16 && offsetof(DT_IOCTL, pData) == 12),
              "as the driver has it on the server, which is a 32-bit system");

#pragma pack(push, 1)

union DEVICE_STATE_FLAGS {
    uint16_t usDeviceState;
    struct {
        uint16_t bit_PhysicallyPresent : 1;
        uint16_t bit_PhysicallyFailed : 1;
        uint16_t bit_GroupIsRedundant : 1;
        uint16_t bit_SharedGrpIsRedundant : 1;
        uint16_t bits_Reserved : 12;
    } s1;
};

union FEATURE_STATE_FLAGS {
    uint16_t usFeatureState;
    struct {
        uint16_t bit_Detected : 1;
        uint16_t bit_Avail : 1;
        uint16_t bit_Enabled : 1;
        uint16_t bits_Reserved : 13;
    } s1;
};

enum ZoneType : uint8_t {  // zone of the chassis in which a device is located
    kSystemZone = 0,
    kSystemBoardZone = 1,
    kIoZone = 2,
    kProcessorZone = 3,
    kMemoryZone = 4,
    kScsiBackplaneZone = 5,
    kRemovableMediaZone = 6,
    kPowerSupplyZone = 7,
    kAmbientZone = 8,
    kChassisZone = 9,
    kPciBridgeZone = 10,
    kExhaustZone = 11,
    kVirtualZone = 15,
};

union LOCATIONDESIGNATOR {
    uint16_t usLocation;
    struct {
        uint16_t bits_ZoneType : 5;            // a ZoneType, or a value without a name
        uint16_t bits_InstanceOfZoneType : 5;  // number of the processor, in the processor zone
        uint16_t bit_ExternalAccess : 1;
        uint16_t bits_Reserved : 5;
    } s1;
};

union REDUNDANCYGROUPINFO {
    uint16_t usRedundancyInfo;
    struct {
        uint16_t bit_RedundantCapable : 1;
        uint16_t bits_NumberRequiredForRedundancy : 5;
        uint16_t bits_RedundantGroupId : 5;
        uint16_t bits_MinimumNumRequiredToRun : 5;
    } s1;
};

union FEATUREREACTION {
    uint16_t usReaction;
    struct {
        uint16_t bit_ShutdownReq : 1;
        uint16_t bit_Shutdown : 1;
        uint16_t bit_Blowout : 1;
        uint16_t bit_DisplayWarning : 1;
        uint16_t bit_DisplayError : 1;
        uint16_t bit_ImmediatePowerOff : 1;
        uint16_t bit_HardPowerReset : 1;
        uint16_t bit_DedicatedIndicator : 1;
        uint16_t bits_Reserved : 8;
    } s1;
};

struct COMMONFEATUREINFO {
    uint8_t ucDataAvailable;  // nonzero if the other members are valid
    DEVICE_STATE_FLAGS DeviceState;
    FEATURE_STATE_FLAGS FeatureState;
    uint8_t ucId;
    uint8_t ucTypeOf;  // the device's kind within its family
    LOCATIONDESIGNATOR Location;
    REDUNDANCYGROUPINFO RedGroup;
    FEATUREREACTION Reaction;
};
using PCOMMONFEATUREINFO = COMMONFEATUREINFO*;
static_assert(sizeof(COMMONFEATUREINFO) == 13 && offsetof(COMMONFEATUREINFO, DeviceState) == 1 &&
                  offsetof(COMMONFEATUREINFO, FeatureState) == 3 &&
                  offsetof(COMMONFEATUREINFO, ucTypeOf) == 6 && offsetof(COMMONFEATUREINFO, RedGroup) == 9,
              "as the driver has it");

#pragma pack(pop)
