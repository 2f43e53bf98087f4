// The data tables of the health driver: the request block that asks for a record of a table, and the
// descriptor record that every fan, temperature sensor and power supply has. Little-endian, as the driver
// has them; bit fields are numbered from the least significant bit.
//
// Each record of a table, here and in its family's header, has a pointer type, P and the record's name. It
// belongs to the interface for code that works with generic_dtioctl's buffers; Reply does without.
#pragma once

#include <cstddef>
#include <cstdint>

constexpr int kDataTableRequest = 69;  // the cdt device's one request code

// The number of a data table, DT_IOCTL_HEADER::DT_Type. Each stands beside the record that it returns, in
// the header of its family.
using DataTableType = uint16_t;

struct DT_IOCTL_HEADER {
    uint32_t size;           // bytes of the reply buffer: the size of the record asked for
    DataTableType DT_Type;   // which table
    uint8_t Index;           // fan, sensor, supply or cartridge, from 0; 255 where -1 is meant
    uint8_t Index2;          // module within a cartridge; 0 elsewhere
    uint8_t CRUFunction;     // of an indicator request, see health_records.h; else 0
    uint8_t CRUSubfunction;  // likewise
    uint8_t pad[2];
};
static_assert(sizeof(DT_IOCTL_HEADER) == 12 && offsetof(DT_IOCTL_HEADER, DT_Type) == 4 &&
                  offsetof(DT_IOCTL_HEADER, Index) == 6 && offsetof(DT_IOCTL_HEADER, Index2) == 7 &&
                  offsetof(DT_IOCTL_HEADER, CRUFunction) == 8 &&
                  offsetof(DT_IOCTL_HEADER, CRUSubfunction) == 9,
              "as the driver has it");

struct DT_IOCTL {
    DT_IOCTL_HEADER DtHdr;
    void* pData;  // the caller's reply buffer, DtHdr.size bytes; as wide as an address
};
static_assert(sizeof(void*) != 4 || (sizeof(DT_IOCTL) == 16 && offsetof(DT_IOCTL, pData) == 12),
              "the server's own ABI: 16 bytes");

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

enum ZoneType : uint8_t {  // where in the chassis a device sits
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
        uint16_t bits_ZoneType : 5;            // a ZoneType, or another
        uint16_t bits_InstanceOfZoneType : 5;  // of the processor zone: the processor's number
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
    uint8_t ucDataAvailable;  // nonzero: the rest holds data
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
                  offsetof(COMMONFEATUREINFO, ucTypeOf) == 6 && offsetof(COMMONFEATUREINFO, RedGroup) == 9,
              "as the driver has it");

#pragma pack(pop)
