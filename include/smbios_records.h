// The SMBIOS tables as the firmware lays them out: the 32-bit entry point, the header that every record
// begins with, and where the fields stand that the program reads. Format: DMTF DSP0134 (System Management
// BIOS), and the maker's own record types. Packed, little-endian, lengths in bytes.
#pragma once

#include <cstddef>
#include <cstdint>

#pragma pack(push, 1)

struct SMBIOSEntryPoint {  // on a 16-byte boundary of the BIOS area
    char sAnchorString[4];
    uint8_t byEPSChecksum;  // makes the sum of the first byEPSLength bytes 0
    uint8_t byEPSLength;
    uint8_t byMajorVer;
    uint8_t byMinorVer;
    uint16_t wMaxStructSize;  // of the largest record, its strings included
    uint8_t byRevision;
    uint8_t abyReserved[5];
    char sIntermediateAnchor[5];
    uint8_t byIntermediateChecksum;  // makes the sum from the intermediate anchor on 0
    uint16_t wSTLength;              // of all records together
    uint32_t dwSTAddr;               // their physical address
    uint16_t wNumStructures;
    uint8_t byBCDRevision;
};
static_assert(sizeof(SMBIOSEntryPoint) == 31 && offsetof(SMBIOSEntryPoint, sIntermediateAnchor) == 0x10 &&
                  offsetof(SMBIOSEntryPoint, wSTLength) == 0x16 &&
                  offsetof(SMBIOSEntryPoint, dwSTAddr) == 0x18,
              "as the firmware has it");

constexpr char kEntryPointAnchor[] = "_SM_";
constexpr char kIntermediateAnchor[] = "_DMI_";

// A record is its formatted area, which begins with this header, and its string set: its strings, each with a
// terminating zero, and one more zero; two zeros when it has none. Fields name strings by number, from 1.
struct SMBIOS_HEADER {
    uint8_t byType;
    uint8_t byLength;  // of the formatted area, header included
    uint16_t wHandle;
};
static_assert(sizeof(SMBIOS_HEADER) == 4, "as the firmware has it");

// The maker's records. One in the tables may be shorter than its structure here.

struct ZTSMBIOS_ZET_PROC_INFO {  // type 197, one a processor
    SMBIOS_HEADER header;
    uint16_t wType4Handle;
    uint8_t byApicId;
    uint8_t bfBSP : 1;  // the boot processor
    uint8_t bfReserved : 7;
    uint8_t byPhysicalSlot;  // 0xFF: none
    uint8_t byPhysicalSocket;
};
using PZTSMBIOS_ZET_PROC_INFO = ZTSMBIOS_ZET_PROC_INFO*;
static_assert(sizeof(ZTSMBIOS_ZET_PROC_INFO) == 10 && offsetof(ZTSMBIOS_ZET_PROC_INFO, byPhysicalSlot) == 8,
              "as the firmware has it");

struct ZTSMBIOS_ZET_DIMM_LOCATION_INFO {  // type 202, one a memory device
    SMBIOS_HEADER header;
    uint16_t wType17Handle;
    uint8_t byPhysicalSlot;    // the memory board; kOnSystemBoard for none
    uint8_t byPhysicalSocket;  // the socket on that board
};
static_assert(sizeof(ZTSMBIOS_ZET_DIMM_LOCATION_INFO) == 8, "as the firmware has it");

struct ZTSMBIOS_ZET_RACK_INFO {  // type 204, a blade's place
    SMBIOS_HEADER header;
    uint8_t byRackName;
    uint8_t byEnclosureName;
    uint8_t byEnclosureModel;
    uint8_t byEnclosureBay;  // a string, the bay's decimal number
    uint8_t byTotalEnclosureBays;
    uint8_t byUsedEnclosureBays;
};
using PZTSMBIOS_ZET_RACK_INFO = ZTSMBIOS_ZET_RACK_INFO*;
static_assert(sizeof(ZTSMBIOS_ZET_RACK_INFO) == 10 && offsetof(ZTSMBIOS_ZET_RACK_INFO, byEnclosureBay) == 7,
              "as the firmware has it");

struct smbios_nic {
    uint8_t nic_devfcn;  // PCI device and function; 0 together with the bus: no NIC
    uint8_t nic_bus;
    uint8_t nic_mac[6];  // first byte first
};
static_assert(sizeof(smbios_nic) == 8, "as the firmware has it");

struct smbios_nic_table {  // type 209, the embedded NICs
    uint8_t nic_type;
    uint8_t nic_len;  // tells the number of entries
    uint16_t nic_handle;
    smbios_nic nic_nics[8];
};
static_assert(sizeof(smbios_nic_table) == 68, "as the firmware has it");

struct GBX_PORT_MAP {
    uint8_t mezzPortNumber : 2;
    uint8_t reserved1 : 2;
    uint8_t connection : 4;  // 0: no port; 15: the system board; else the mezzanine slot
    uint8_t portOffsetFromSVBBay : 5;
    uint8_t reserved2 : 2;
    uint8_t bayWidth : 1;
};
struct GBX_CONNECTOR_ENTRY {
    GBX_PORT_MAP PortMap[8];
};
struct SMBIOS_NIC_PORT_MAP_INFO {  // type 222, how a blade's NIC ports reach the enclosure's bays
    SMBIOS_HEADER header;
    uint16_t wGbxTableVersion;
    GBX_CONNECTOR_ENTRY GbxConnectorEntry[4];
};
static_assert(sizeof(GBX_PORT_MAP) == 2 && sizeof(SMBIOS_NIC_PORT_MAP_INFO) == 70 &&
                  offsetof(SMBIOS_NIC_PORT_MAP_INFO, GbxConnectorEntry) == 6,
              "as the firmware has it");

#pragma pack(pop)

enum SmbRecordType : uint8_t {
    kBiosInformation = 0,
    kSystemInformation = 1,
    kProcessorInformation = 4,
    kCacheInformation = 7,
    kMemoryArray = 16,
    kMemoryDevice = 17,
    kZetProcInfo = 197,
    kZetDimmLocation = 202,
    kZetRackInfo = 204,
    kNicTable = 209,
    kNicPortMap = 222,
};

constexpr uint16_t kNoHandle = 0xFFFF;
constexpr uint8_t kOnSystemBoard = 0xFF;

// A field of a record's formatted area: where it stands, and what it reads as in a record too short for it.
template <typename Unsigned>
struct SmbField {
    size_t offset;
    Unsigned missing = 0;
};

constexpr SmbField<uint8_t> kRecordType = {offsetof(SMBIOS_HEADER, byType)};
constexpr SmbField<uint16_t> kRecordHandle = {offsetof(SMBIOS_HEADER, wHandle)};

namespace bios {
constexpr SmbField<uint8_t> kVersion = {5};  // string
constexpr SmbField<uint8_t> kDate = {8};     // string
}  // namespace bios

namespace system_information {
constexpr SmbField<uint8_t> kProductName = {5};   // string
constexpr SmbField<uint8_t> kSerialNumber = {7};  // string
}  // namespace system_information

namespace processor {
constexpr SmbField<uint8_t> kSocket = {4};  // string
constexpr SmbField<uint8_t> kType = {5};    // kCentral or another
constexpr SmbField<uint8_t> kFamily = {6};
constexpr SmbField<uint32_t> kId = {8};              // its first word; bits 3..0 the stepping
constexpr SmbField<uint16_t> kExternalClock = {18};  // MHz
constexpr SmbField<uint16_t> kCurrentSpeed = {22};   // MHz
constexpr SmbField<uint8_t> kStatus = {24};          // bits 2..0 the state, kPopulated
constexpr SmbField<uint16_t> kL2Cache = {28, kNoHandle};
constexpr SmbField<uint16_t> kL3Cache = {30, kNoHandle};
constexpr SmbField<uint8_t> kCoreCount = {35};
constexpr SmbField<uint8_t> kThreadCount = {37};  // came into the record together with the core count

constexpr uint8_t kCentral = 3;
constexpr uint8_t kPopulated = 1 << 6;
}  // namespace processor

namespace cache {
constexpr SmbField<uint8_t> kConfiguration = {5};   // low byte; bits 2..0 the level, from 0
constexpr SmbField<uint16_t> kInstalledSize = {9};  // KiB, or 64 KiB with kIn64KiB

constexpr uint16_t kIn64KiB = 0x8000;
}  // namespace cache

namespace memory_array {
constexpr SmbField<uint8_t> kUse = {5};
constexpr SmbField<uint8_t> kErrorCorrection = {6};  // kNoCorrection; above: parity, ECC or CRC

constexpr uint8_t kSystemMemory = 3;
constexpr uint8_t kNoCorrection = 3;
}  // namespace memory_array

namespace memory_device {
constexpr SmbField<uint16_t> kArray = {4, kNoHandle};
constexpr SmbField<uint16_t> kSize = {12};  // MiB, or KiB with kInKiB; 0: an empty socket
constexpr SmbField<uint8_t> kFormFactor = {14};
constexpr SmbField<uint8_t> kLocator = {16};      // string
constexpr SmbField<uint16_t> kTypeDetail = {19};  // a bit for each trait
constexpr SmbField<uint16_t> kSpeed = {21};       // MHz; 0: unknown

constexpr uint16_t kInKiB = 0x8000;
}  // namespace memory_device

namespace zet_processor {
constexpr SmbField<uint16_t> kType4Handle = {offsetof(ZTSMBIOS_ZET_PROC_INFO, wType4Handle), kNoHandle};
}  // namespace zet_processor

namespace zet_dimm {
constexpr SmbField<uint16_t> kType17Handle = {offsetof(ZTSMBIOS_ZET_DIMM_LOCATION_INFO, wType17Handle),
                                              kNoHandle};
constexpr SmbField<uint8_t> kSlot = {offsetof(ZTSMBIOS_ZET_DIMM_LOCATION_INFO, byPhysicalSlot)};
constexpr SmbField<uint8_t> kSocket = {offsetof(ZTSMBIOS_ZET_DIMM_LOCATION_INFO, byPhysicalSocket)};
}  // namespace zet_dimm

namespace zet_rack {
constexpr SmbField<uint8_t> kEnclosureBay = {offsetof(ZTSMBIOS_ZET_RACK_INFO, byEnclosureBay)};
}  // namespace zet_rack

namespace nic_port_map {
constexpr SmbField<uint16_t> kTableVersion = {offsetof(SMBIOS_NIC_PORT_MAP_INFO, wGbxTableVersion)};
}  // namespace nic_port_map
