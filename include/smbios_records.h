// The layout of the SMBIOS tables: the 32-bit entry point, the header of a record, and the fields of each
// record type that the program reads. The format is DMTF DSP0134 (System Management BIOS) with OEM
// (vendor-specific) record types. All structures are packed and little-endian; lengths are in bytes.
#pragma once

#include <cstddef>
#include <cstdint>

// A field of the record type `Layout`: its offset, and the value that is read if a record is too short to
// contain it. The compiler rejects reading the field from a record of another type.
template <typename Layout, typename Unsigned>
struct SmbField {
    size_t offset;
    Unsigned missing = 0;
};

// A one-byte field that contains the number of one of the record's strings.
template <typename Layout>
struct SmbString {
    size_t offset;
};

// An array that starts at `offset`. Its entries consist of single bytes and bit fields.
template <typename Layout, typename Entry>
struct SmbArray {
    size_t offset;
};

constexpr uint16_t kNoHandle = 0xFFFF;

#pragma pack(push, 1)

struct SMBIOSEntryPoint {  // located on a 16-byte boundary of the BIOS area
    char sAnchorString[4];
    uint8_t byEPSChecksum;  // chosen so that the sum of the first byEPSLength bytes is 0 (modulo 256)
    uint8_t byEPSLength;
    uint8_t byMajorVer;
    uint8_t byMinorVer;
    uint16_t wMaxStructSize;  // size of the largest record, including its strings
    uint8_t byRevision;
    uint8_t abyReserved[5];
    char sIntermediateAnchor[5];
    uint8_t byIntermediateChecksum;  // chosen so that the sum of the bytes from the intermediate anchor to
                                     // the end is 0
    uint16_t wSTLength;              // total length of all records
    uint32_t dwSTAddr;               // physical address of the records
    uint16_t wNumStructures;
    uint8_t byBCDRevision;
};
static_assert(sizeof(SMBIOSEntryPoint) == 31 && offsetof(SMBIOSEntryPoint, byEPSChecksum) == 4 &&
                  offsetof(SMBIOSEntryPoint, byMajorVer) == 6 &&
                  offsetof(SMBIOSEntryPoint, wMaxStructSize) == 8 &&
                  offsetof(SMBIOSEntryPoint, abyReserved) == 0x0B &&
                  offsetof(SMBIOSEntryPoint, sIntermediateAnchor) == 0x10 &&
                  offsetof(SMBIOSEntryPoint, wSTLength) == 0x16 &&
                  offsetof(SMBIOSEntryPoint, dwSTAddr) == 0x18 &&
                  offsetof(SMBIOSEntryPoint, wNumStructures) == 0x1C,
              "as the firmware has it");

constexpr char kEntryPointAnchor[] = "_SM_";
constexpr char kIntermediateAnchor[] = "_DMI_";

// A record consists of its formatted area, which begins with this header, and its string set: NUL-terminated
// strings followed by another NUL, or two NULs if there are no strings. A string field contains the number of
// a string, counted from 1.
struct SMBIOS_HEADER {
    uint8_t byType;
    uint8_t byLength;  // length of the formatted area, including this header
    uint16_t wHandle;
};
static_assert(sizeof(SMBIOS_HEADER) == 4, "as the firmware has it");

// The OEM records. A record in the tables may be shorter than its structure here.

struct ZTSMBIOS_ZET_PROC_INFO {  // one for each processor
    static constexpr uint8_t kType = 197;
    SMBIOS_HEADER header;
    uint16_t wType4Handle;
    uint8_t byApicId;
    uint8_t bfBSP : 1;  // 1: the boot processor
    uint8_t bfReserved : 7;
    uint8_t byPhysicalSlot;  // 0xFF: no slot
    uint8_t byPhysicalSocket;
};
static_assert(sizeof(ZTSMBIOS_ZET_PROC_INFO) == 10 && offsetof(ZTSMBIOS_ZET_PROC_INFO, byPhysicalSlot) == 8,
              "as the firmware has it");

constexpr uint8_t kOnSystemBoard = 0xFF;

struct ZTSMBIOS_ZET_DIMM_LOCATION_INFO {  // one for each memory device
    static constexpr uint8_t kType = 202;
    SMBIOS_HEADER header;
    uint16_t wType17Handle;
    uint8_t byPhysicalSlot;    // the memory board, or kOnSystemBoard
    uint8_t byPhysicalSocket;  // the socket on that board
};
static_assert(sizeof(ZTSMBIOS_ZET_DIMM_LOCATION_INFO) == 8, "as the firmware has it");

struct ZTSMBIOS_ZET_RACK_INFO {  // the location of a blade
    static constexpr uint8_t kType = 204;
    SMBIOS_HEADER header;
    uint8_t byRackName;
    uint8_t byEnclosureName;
    uint8_t byEnclosureModel;
    uint8_t byEnclosureBay;  // number of a string, which contains the bay's decimal number
    uint8_t byTotalEnclosureBays;
    uint8_t byUsedEnclosureBays;
};
static_assert(sizeof(ZTSMBIOS_ZET_RACK_INFO) == 10 &&
                  offsetof(ZTSMBIOS_ZET_RACK_INFO, byEnclosureName) == 5 &&
                  offsetof(ZTSMBIOS_ZET_RACK_INFO, byEnclosureBay) == 7 &&
                  offsetof(ZTSMBIOS_ZET_RACK_INFO, byUsedEnclosureBays) == 9,
              "as the firmware has it");

struct smbios_nic {      // an embedded NIC; entries for which IsEmpty() is true are unused
    uint8_t nic_devfcn;  // PCI device and function
    uint8_t nic_bus;
    uint8_t nic_mac[6];  // MAC address, in the order in which it is printed
};
static_assert(sizeof(smbios_nic) == 8 && offsetof(smbios_nic, nic_bus) == 1, "as the firmware has it");
constexpr bool IsEmpty(const smbios_nic& nic) {
    return nic.nic_devfcn == 0 && nic.nic_bus == 0;
}

struct smbios_nic_table {  // the embedded NICs
    static constexpr uint8_t kType = 209;
    uint8_t nic_type;
    uint8_t nic_len;  // size of the record, which determines the number of entries
    uint16_t nic_handle;
    smbios_nic nic_nics[8];
};
static_assert(sizeof(smbios_nic_table) == 68 && offsetof(smbios_nic_table, nic_len) == 1,
              "as the firmware has it");

struct GBX_PORT_MAP {
    uint8_t mezzPortNumber : 2;
    uint8_t reserved1 : 2;
    uint8_t connection : 4;  // 0: no port; 15: a port of the system board; other values: the mezzanine slot
    uint8_t portOffsetFromSVBBay : 5;
    uint8_t reserved2 : 2;
    uint8_t bayWidth : 1;
};
struct GBX_CONNECTOR_ENTRY {
    GBX_PORT_MAP PortMap[8];
};
struct SMBIOS_NIC_PORT_MAP_INFO {  // the bays of the enclosure that the blade's NIC ports are connected to
    static constexpr uint8_t kType = 222;
    SMBIOS_HEADER header;
    uint16_t wGbxTableVersion;
    GBX_CONNECTOR_ENTRY GbxConnectorEntry[4];
};
static_assert(sizeof(GBX_PORT_MAP) == 2 && sizeof(SMBIOS_NIC_PORT_MAP_INFO) == 70 &&
                  offsetof(SMBIOS_NIC_PORT_MAP_INFO, GbxConnectorEntry) == 6,
              "as the firmware has it");

#pragma pack(pop)

namespace smbios {

// Base of the standard record types; `kNumber` is the number of the type.
template <typename Layout, uint8_t kNumber>
struct Standard {
    static constexpr uint8_t kType = kNumber;
    template <typename Unsigned>
    using Field = SmbField<Layout, Unsigned>;
    using String = SmbString<Layout>;
};

struct Bios : Standard<Bios, 0> {
    static constexpr String kVersion = {5};
    static constexpr String kDate = {8};
};

struct System : Standard<System, 1> {
    static constexpr String kProductName = {5};
    static constexpr String kSerialNumber = {7};
};

struct Processor : Standard<Processor, 4> {
    static constexpr String kSocket = {4};
    static constexpr Field<uint8_t> kKind = {5};  // kCentral, or another kind
    static constexpr Field<uint8_t> kFamily = {6};
    static constexpr Field<uint32_t> kId = {8};  // first 32 bits of the processor's ID; bits 3..0: stepping
    static constexpr Field<uint16_t> kExternalClock = {18};  // MHz
    static constexpr Field<uint16_t> kCurrentSpeed = {22};   // MHz
    static constexpr Field<uint8_t> kStatus = {24};          // bits 2..0: state; kPopulated: not empty
    static constexpr Field<uint16_t> kL2Cache = {28, kNoHandle};
    static constexpr Field<uint16_t> kL3Cache = {30, kNoHandle};
    static constexpr Field<uint8_t> kCoreCount = {35};
    static constexpr Field<uint8_t> kThreadCount = {37};  // added to the format with kCoreCount

    static constexpr uint8_t kCentral = 3;
    static constexpr uint8_t kPopulated = 1 << 6;
};

struct Cache : Standard<Cache, 7> {
    static constexpr Field<uint8_t> kConfiguration = {5};   // low byte; bits 2..0: level of the cache, from 0
    static constexpr Field<uint16_t> kInstalledSize = {9};  // in KiB, or in 64 KiB if kIn64KiB is set

    static constexpr uint16_t kIn64KiB = 0x8000;
};

struct MemoryArray : Standard<MemoryArray, 16> {
    static constexpr Field<uint8_t> kUse = {5};
    static constexpr Field<uint8_t> kErrorCorrection = {6};  // above kNone: parity, ECC or CRC

    static constexpr uint8_t kSystemMemory = 3;
    static constexpr uint8_t kNone = 3;
};

struct MemoryDevice : Standard<MemoryDevice, 17> {
    static constexpr Field<uint16_t> kArray = {4, kNoHandle};
    static constexpr Field<uint16_t> kSize = {12};  // in MiB, or in KiB if kInKiB is set; 0: empty
    static constexpr Field<uint8_t> kFormFactor = {14};
    static constexpr String kLocator = {16};
    static constexpr Field<uint16_t> kTypeDetail = {19};  // one bit for each property of the memory
    static constexpr Field<uint16_t> kSpeed = {21};       // MHz; 0: unknown

    static constexpr uint16_t kInKiB = 0x8000;
};

// Fields of the OEM records.
constexpr SmbField<ZTSMBIOS_ZET_PROC_INFO, uint16_t> kType4Handle = {
    offsetof(ZTSMBIOS_ZET_PROC_INFO, wType4Handle), kNoHandle};
constexpr SmbField<ZTSMBIOS_ZET_DIMM_LOCATION_INFO, uint16_t> kType17Handle = {
    offsetof(ZTSMBIOS_ZET_DIMM_LOCATION_INFO, wType17Handle), kNoHandle};
constexpr SmbField<ZTSMBIOS_ZET_DIMM_LOCATION_INFO, uint8_t> kPhysicalSlot = {
    offsetof(ZTSMBIOS_ZET_DIMM_LOCATION_INFO, byPhysicalSlot)};
constexpr SmbField<ZTSMBIOS_ZET_DIMM_LOCATION_INFO, uint8_t> kPhysicalSocket = {
    offsetof(ZTSMBIOS_ZET_DIMM_LOCATION_INFO, byPhysicalSocket)};
constexpr SmbString<ZTSMBIOS_ZET_RACK_INFO> kEnclosureBay = {
    offsetof(ZTSMBIOS_ZET_RACK_INFO, byEnclosureBay)};
constexpr SmbArray<smbios_nic_table, smbios_nic> kNics = {offsetof(smbios_nic_table, nic_nics)};
constexpr SmbField<SMBIOS_NIC_PORT_MAP_INFO, uint16_t> kGbxTableVersion = {
    offsetof(SMBIOS_NIC_PORT_MAP_INFO, wGbxTableVersion)};
constexpr SmbArray<SMBIOS_NIC_PORT_MAP_INFO, GBX_CONNECTOR_ENTRY> kGbxConnectors = {
    offsetof(SMBIOS_NIC_PORT_MAP_INFO, GbxConnectorEntry)};

}  // namespace smbios

// The BIOS area of physical memory: the last 64 KiB below 1 MiB.

constexpr unsigned int kBiosArea = 0xF0000;  // its physical address
constexpr unsigned int kBiosAreaSize = 0x10000;

// The manufacturer's signature in the bytes before the reset vector, without a terminator.
constexpr char kRomSignature[] = "ZETRIX";
constexpr size_t kRomSignatureSize = sizeof kRomSignature - 1;
constexpr unsigned int kRomSignatureOffset = 0xFFEA;  // offset in the BIOS area
static_assert(kRomSignatureOffset + kRomSignatureSize == 0xFFF0, "the reset vector follows the signature");
