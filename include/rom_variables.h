// The ROM variables, in which the firmware stores its settings: the request block that reads or writes a
// variable by its name, and the record of each variable. All are little-endian and packed; bit fields start
// at the least significant bit.
#pragma once

#include <cstddef>
#include <cstdint>

enum RomRequest : int { kReadVariable = 1, kWriteVariable = 2 };  // request codes of the crom device

struct EV_IOCTL_STRUCT {
    char EvName[256];     // ASCII, padded with NULs
    uint32_t Number;      // always 0
    uint32_t DataLength;  // bytes to read or write, at most 256
    uint8_t DataBuffer[256];
};
static_assert(sizeof(EV_IOCTL_STRUCT) == 520 && offsetof(EV_IOCTL_STRUCT, DataBuffer) == 264,
              "as the driver has it");

// The names of the variables. The comment of each name gives the type of its record.
constexpr char kNicAddressVariable[] = "ZTHMAC";     // smbios_nic[8], see zthmac
constexpr char kAsrVariable[] = "ZTHCPR";            // ASREVSTRUCT
constexpr char kAssetVariable[] = "ZTSCAT";          // AssetText
constexpr char kShutdownVariable[] = "ZTHCSM";       // CSMEVSTRUCT
constexpr char kServerNameVariable[] = "ZTHLS1";     // ServerName
constexpr char kBootOrderVariable[] = "ZTHIPL";      // ZTHIPLSTRUCT
constexpr char kBootOnceVariable[] = "ZTTBT1";       // ZTTBT1STRUCT
constexpr char kBootCountVariable[] = "ZTHNIPL";     // BootDeviceCount
constexpr char kNicBootVariable[] = "ZTHNIC";        // NicBootSettings
constexpr char kNicPxeVariable[] = "ZTHPXE";         // NicPxeFlags
constexpr char kConfigurationVariable[] = "ZTSBKT";  // WOLEVREC
constexpr char kBiosPortVariable[] = "ZTHCON";       // BiosPort
constexpr char kBiosBaudVariable[] = "ZTHBAUD";      // BiosBaud
constexpr char kVersionsVariable[] = "ZTHUV";        // VERSEVREC

#pragma pack(push, 1)

struct ASREVSTRUCT {  // settings of the automatic server recovery timer
    uint8_t ucMajor_version;
    uint8_t ucMinor_version;
    uint8_t ucTimeoutValue;  // minutes
    uint8_t ucReserved;
    uint16_t usBaseAddr;
    uint16_t usScaleValue;
};
static_assert(sizeof(ASREVSTRUCT) == 8 && offsetof(ASREVSTRUCT, ucMinor_version) == 1 &&
                  offsetof(ASREVSTRUCT, ucTimeoutValue) == 2 && offsetof(ASREVSTRUCT, usBaseAddr) == 4,
              "as the firmware has it");

struct AssetText {
    char asset_text[255];  // padded with NULs; a text of 255 characters has no terminator
};
static_assert(sizeof(AssetText) == 255, "as the firmware has it");

struct CSMEVSTRUCT {
    uint8_t ucEAAshutdown;  // bit 0: automatic shutdown in an abnormal environment (EAAS)
    uint8_t ucaRomDate[3];
    uint8_t ucRecoveryConf;
    uint8_t ucEAASShutdown;
    uint8_t ucFanFailure;
};
static_assert(sizeof(CSMEVSTRUCT) == 7 && offsetof(CSMEVSTRUCT, ucRecoveryConf) == 4 &&
                  offsetof(CSMEVSTRUCT, ucFanFailure) == 6,
              "as the firmware has it");

// The name is stored in two halves. Each is padded with NULs and has its own terminator.
constexpr int kServerNameHalf = 14;  // characters in each half
struct ServerName {
    char zthls1[2 * (kServerNameHalf + 1)];
};
static_assert(sizeof(ServerName) == 30, "as the firmware has it");

enum BootDevice : uint8_t {
    kBootCdrom = 0,
    kBootFloppy = 1,
    kBootHdd = 2,
    kBootPxe = 3,
    // only on servers that can boot from a USB key
    kBootUsbKey = 3,
    kBootPxeAfterUsbKey = 4,
};

struct ZTHIPLSTRUCT {       // the standard boot order
    uint8_t ucPriority[8];  // BootDevice codes; as many are used as devices are installed
};
static_assert(sizeof(ZTHIPLSTRUCT) == 8, "as the firmware has it");

struct BootDeviceCount {
    uint8_t zthnipl;
};
static_assert(sizeof(BootDeviceCount) == 1, "as the firmware has it");

enum BootOnce : uint8_t {
    kBootOnceNone = 0,
    kBootOnceFloppy = 1,
    kBootOnceCdrom = 2,
    kBootOnceHdd = 3,
    kBootOnceKonf = 0x30,  // the ROM's setup utility
    kBootOncePxe = 0x40,
};

struct ZTTBT1STRUCT {  // the one-time boot device
    union {
        uint8_t bVal;  // a BootOnce
        struct {
            uint8_t b_order : 4;
            uint8_t b_mode : 4;
        } s;
    } boot;
    uint8_t flags;
};
static_assert(sizeof(ZTTBT1STRUCT) == 2 && offsetof(ZTTBT1STRUCT, flags) == 1, "as the firmware has it");

enum NicBoot : uint8_t { kNicBootNone = 0, kNicBootPxe = 1, kNicBootIscsi = 2 };

struct NicBootSettings {
    uint8_t nic[100];  // NicBoot codes, starting with NIC 1; the firmware stores one for each NIC
};
static_assert(sizeof(NicBootSettings) == 100, "the longest read");

struct NicPxeFlags {  // the NIC boot settings of older firmware
    uint8_t nics;     // bit i, from 0 to 4: NIC i+1 boots by PXE
    uint8_t reserved[9];
};
static_assert(sizeof(NicPxeFlags) == 10, "as the firmware has it");

enum WakeOnLan : uint8_t { kWakeOnLanEnabled = 1, kWakeOnLanDisabled = 2 };

enum Uart : uint8_t { kUartCom1 = 1, kUartCom2 = 2, kUartCom3 = 3, kUartCom4 = 4, kUartDisabled = 7 };

union SERIALPORT {  // an embedded serial port
    uint8_t ucData;
    struct {
        uint8_t bits_UART : 3;  // a Uart, or a value without a name
        uint8_t reserved_1 : 1;
        uint8_t bits_IRQ : 4;
    } s;
};

enum F1Prompt : uint8_t { kF1Undefined = 0, kF1Enabled = 1, kF1Disabled = 2, kF1Delayed = 3 };

struct WOLEVREC {  // the system configuration, shared by several commands
    uint8_t ucHeader;
    union {
        uint8_t ucData;
        struct {
            uint8_t bits_SerialNo : 2;
            uint8_t bits_APIC : 2;
            uint8_t bits_Memory : 2;
            uint8_t bits_Mouse : 2;
        } s;
    } data1;
    SERIALPORT uart1;  // embedded port A
    SERIALPORT uart2;  // embedded port B
    union {
        uint8_t ucData;
        struct {
            uint8_t bits_Port : 3;
            uint8_t reserved_1 : 1;
            uint8_t bits_IRQ : 4;
        } s;
    } parallel;
    union {
        uint8_t ucData;
        struct {
            uint8_t bits_DMA : 4;
            uint8_t bits_FloppyWrites : 2;
            uint8_t bits_USBKb : 2;
        } s;
    } dma;
    union {
        uint8_t ucData;
        struct {
            uint8_t bits_WOL : 2;  // a WakeOnLan, or a value without a name
            uint8_t bits_PCIUSB : 2;
            uint8_t bits_KONF : 2;
            uint8_t bit_OptRom : 1;
            uint8_t bit_OnlineSpare : 1;
        } s;
    } flags;
    union {
        uint8_t ucData;
        struct {
            uint8_t bits_F1 : 2;  // an F1Prompt
            uint8_t bits_FanSpeed : 2;
            uint8_t bits_IDE : 2;
            uint8_t bit_NMI : 1;
            uint8_t bit_HyperThreading : 1;  // 1: hyper-threading is disabled
        } s;
    } flags2;
    union {
        uint8_t ucData;
        struct {
            uint8_t bit_OnlineSpare : 1;
            uint8_t bit_SingleCardMemory : 1;
            uint8_t bit_DualCardMemory : 1;
            uint8_t reserved : 5;
        } s;
    } amp;
    union {
        uint8_t ucData;
        struct {
            uint8_t bits_ParallelPort : 3;
            uint8_t reserved : 1;
            uint8_t bits_ACPI : 1;
            uint8_t reserved2 : 1;
            uint8_t bits_CPU : 1;
            uint8_t reserved3 : 1;
        } s;
    } flags3;
    union {
        uint8_t ucData;
        struct {
            uint8_t bits_UART1 : 3;  // a Uart, or a value without a name
            uint8_t reserved : 1;
            uint8_t bits_IRQ : 4;
        } s;
    } vsp;  // the management processor's virtual serial port
    union {
        uint8_t ucData;
        struct {
            uint8_t bits_USB : 2;
            uint8_t bit_EHCIController : 1;
            uint8_t bit_IPMILegacy : 1;
            uint8_t : 4;
        } s;
    } flags4;
    union {
        uint8_t ucData;
        struct {
            uint8_t bit_NXMPSupported : 1;
            uint8_t bit_SERREnabled : 1;
            uint8_t bit_PCIXRiser : 1;
            uint8_t reserved : 1;
            uint8_t bits_PowerOnDelay : 4;
        } s;
    } flags5;
};
static_assert(sizeof(WOLEVREC) == 13 && offsetof(WOLEVREC, uart1) == 2 && offsetof(WOLEVREC, uart2) == 3 &&
                  offsetof(WOLEVREC, flags) == 6 && offsetof(WOLEVREC, flags2) == 7 &&
                  offsetof(WOLEVREC, flags3) == 9 && offsetof(WOLEVREC, vsp) == 10 &&
                  offsetof(WOLEVREC, flags5) == 12,
              "as the firmware has it");

enum BiosPortCode : uint8_t {  // the code 3 isn't used
    kBiosPortDisabled = 0,
    kBiosPortCom1 = 1,
    kBiosPortCom2 = 2,
    kBiosPortCom3 = 4,
    kBiosPortCom4 = 5,
    kBiosPortVirtual = 6,
};

struct BiosPort {  // the serial port of the BIOS console
    uint8_t port;  // a BiosPortCode, or a value without a name
    uint8_t unused;
};
static_assert(sizeof(BiosPort) == 2, "as the firmware has it");

enum BiosBaudRate : uint8_t { kBaud9600 = 1, kBaud19200 = 2, kBaud57600 = 3, kBaud115200 = 4 };

struct BiosBaud {  // the baud rate of the BIOS console
    union {
        uint8_t ucData;
        struct {
            uint8_t bits_Rate : 3;  // a BiosBaudRate, or a value without a name
            uint8_t reserved : 5;
        } s;
    } baud;
    uint8_t unused[9];
};
static_assert(sizeof(BiosBaud) == 10, "as the firmware has it");

struct VERSION {
    uint8_t major;
    uint8_t minor;
    uint8_t revision;
};

struct VERSEVREC {  // the versions of the firmware's components: as delivered, and now
    VERSION tz_baseline, tz_current;
    VERSION vetro_baseline, vetro_current;
    VERSION flasko_baseline, flasko_current;
    VERSION pw_baseline, pw_current;
    VERSION sift_baseline, sift_current;
    VERSION extmod_baseline, extmod_current;
    VERSION krl_baseline, krl_current;
};
static_assert(sizeof(VERSEVREC) == 42 && offsetof(VERSEVREC, pw_current) == 21 &&
                  offsetof(VERSEVREC, krl_current) == 39,
              "as the firmware has it");

#pragma pack(pop)
