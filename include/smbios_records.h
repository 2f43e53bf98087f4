// The SMBIOS tables as the firmware lays them out: the 32-bit entry point, the header that every record
// begins with, and for each type of record the fields that the program reads. Format: DMTF DSP0134 (System
// Management BIOS), and the maker's own record types. Packed, little-endian, lengths in bytes.
#pragma once

#include <cstddef>
#include <cstdint>

// A field of a type of record, Layout: where it stands, and what it reads as in a record too short for it. It
// can't be read from a record of another type.
template <typename Layout, typename Unsigned>
struct SmbField {
    size_t offset;
    Unsigned missing = 0;
};

// A field of one byte that names one of the record's strings.
template <typename Layout>
struct SmbString {
    size_t offset;
};

// Entries of single bytes or of bit fields within bytes, from an offset on.
template <typename Layout, typename Entry>
struct SmbArray {
    size_t offset;
};

constexpr uint16_t kNoHandle = 0xFFFF;

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

struct ZTSMBIOS_ZET_PROC_INFO {  // one for each processor
    static constexpr uint8_t kType = 197;
    SMBIOS_HEADER header;
    uint16_t wType4Handle;
    uint8_t byApicId;
    uint8_t bfBSP : 1;  // the boot processor
    uint8_t bfReserved : 7;
    uint8_t byPhysicalSlot;  // 0xFF: none
    uint8_t byPhysicalSocket;
};
static_assert(sizeof(ZTSMBIOS_ZET_PROC_INFO) == 10 && offsetof(ZTSMBIOS_ZET_PROC_INFO, byPhysicalSlot) == 8,
              "as the firmware has it");

constexpr uint8_t kOnSystemBoard = 0xFF;

struct ZTSMBIOS_ZET_DIMM_LOCATION_INFO {  // one for each memory device
    static constexpr uint8_t kType = 202;
    SMBIOS_HEADER header;
    uint16_t wType17Handle;
    uint8_t byPhysicalSlot;    // the memory board; kOnSystemBoard for none
    uint8_t byPhysicalSocket;  // the socket on that board
};
static_assert(sizeof(ZTSMBIOS_ZET_DIMM_LOCATION_INFO) == 8, "as the firmware has it");

struct ZTSMBIOS_ZET_RACK_INFO {  // a blade's place
    static constexpr uint8_t kType = 204;
    SMBIOS_HEADER header;
    uint8_t byRackName;
    uint8_t byEnclosureName;
    uint8_t byEnclosureModel;
    uint8_t byEnclosureBay;  // a string, the bay's decimal number
    uint8_t byTotalEnclosureBays;
    uint8_t byUsedEnclosureBays;
};
static_assert(sizeof(ZTSMBIOS_ZET_RACK_INFO) == 10 && offsetof(ZTSMBIOS_ZET_RACK_INFO, byEnclosureBay) == 7,
              "as the firmware has it");

struct smbios_nic {      // an embedded NIC; IsEmpty: there is none in its place
    uint8_t nic_devfcn;  // PCI device and function
    uint8_t nic_bus;
    uint8_t nic_mac[6];  // first byte first
};
static_assert(sizeof(smbios_nic) == 8, "as the firmware has it");
constexpr bool IsEmpty(const smbios_nic& nic) {
    return nic.nic_devfcn == 0 && nic.nic_bus == 0;
}

struct smbios_nic_table {  // the embedded NICs
    static constexpr uint8_t kType = 209;
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
struct SMBIOS_NIC_PORT_MAP_INFO {  // how a blade's NIC ports reach the enclosure's bays
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

// The standard records, by their type.
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
    static constexpr Field<uint8_t> kKind = {5};  // kCentral or another
    static constexpr Field<uint8_t> kFamily = {6};
    static constexpr Field<uint32_t> kId = {8};              // its first word; bits 3..0 the stepping
    static constexpr Field<uint16_t> kExternalClock = {18};  // MHz
    static constexpr Field<uint16_t> kCurrentSpeed = {22};   // MHz
    static constexpr Field<uint8_t> kStatus = {24};          // bits 2..0 the state, kPopulated
    static constexpr Field<uint16_t> kL2Cache = {28, kNoHandle};
    static constexpr Field<uint16_t> kL3Cache = {30, kNoHandle};
    static constexpr Field<uint8_t> kCoreCount = {35};
    static constexpr Field<uint8_t> kThreadCount = {37};  // came together with the core count

    static constexpr uint8_t kCentral = 3;
    static constexpr uint8_t kPopulated = 1 << 6;
};

struct Cache : Standard<Cache, 7> {
    static constexpr Field<uint8_t> kConfiguration = {5};   // low byte; bits 2..0 the level, from 0
    static constexpr Field<uint16_t> kInstalledSize = {9};  // KiB, or 64 KiB with kIn64KiB

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
    static constexpr Field<uint16_t> kSize = {12};  // MiB, or KiB with kInKiB; 0: empty
    static constexpr Field<uint8_t> kFormFactor = {14};
    static constexpr String kLocator = {16};
    static constexpr Field<uint16_t> kTypeDetail = {19};  // a bit for each trait
    static constexpr Field<uint16_t> kSpeed = {21};       // MHz; 0: unknown

    static constexpr uint16_t kInKiB = 0x8000;
};

// Fields of the maker's records.
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

constexpr unsigned int kBiosArea = 0xF0000;  // physical address
constexpr unsigned int kBiosAreaSize = 0x10000;

// The maker's signature, in the bytes before the reset vector; no terminator.
constexpr char kRomSignature[] = "ZETRIX";
constexpr size_t kRomSignatureSize = sizeof kRomSignature - 1;
constexpr unsigned int kRomSignatureOffset = 0xFFEA;  // into the area
static_assert(kRomSignatureOffset + kRomSignatureSize == 0xFFF0, "the reset vector");
