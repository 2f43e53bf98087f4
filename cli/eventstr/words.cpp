#include "cli/eventstr/words.h"

#include <cstddef>

#include "include/event_log.h"
#include "src/utils/text.h"

namespace eventstr {

const char szUnknown[] = "Unknown";

namespace {

// Size of the longest name, including its NUL. The tables contain the names themselves, not pointers, which
// would be relocated at every start (see RowText).
constexpr size_t kNameSize = 44;

// clang-format off
constexpr CodeText szLocations[] = {
    {kZoneSystem,          "System"},
    {kZoneSystemBoard,     "System Board"},
    {kZoneIoBoard,         "I/O Board"},
    {kZoneCpu,             "CPU"},
    {kZoneMemory,          "Memory"},
    {kZoneStorage,         "Storage"},
    {kZoneRemovableMedia,  "Removable Media"},
    {kZonePowerSupply,     "Power Supply"},
    {kZoneAmbient,         "Ambient"},
    {kZoneChassis,         "Chassis"},
    {kZoneBridgeBoard,     "Bridge Board"},
    {kZoneManagementBoard, "Management Board"},
    {kZoneBackplane,       "Backplane"},
    {kZoneNetworkSlot,     "Network Slot"},
    {kZoneBladeSlot,       "Blade Slot"},
    {kZoneVirtual,         "Virtual"},
};
constexpr char szRedundancy[][kNameSize] = {
    "",
    "Enclosure",
    "Power Module",
    "Bus Bar",
    "Breaker",
    "Power Subsystem",
};
constexpr char szACProblem[][kNameSize] = {
    "",
    "Line Over Voltage",
    "Line Under Voltage",
    "Line Hit",
    "Brown Out",
    "AC Power Loss",
};
constexpr char szInadequatePowerReason[][kNameSize] = {
    "",
    "Lost Redundant Power",
    "Not Enough Power",
    "Denied By Server Enclosure Management Board",
    "Denied By Power Enclosure Management Board",
};
constexpr char szImproperPowerReason[][kNameSize] = {
    "",
    "Load Balancing Wire Missing",
    "Too Many Power Enclosures",
    "Improperly Populated Power Bank",
    "DC-to-DC Configuration Invalid",
};
constexpr char szRackSide[][kNameSize] = {
    "Unknown Location",
    "Left Side",
    "Right Side",
};
constexpr char szEthSwErr[][kNameSize] = {
    "Unknown",                          // code 0
    "Powering up",
    "Micro-controller fault",
    "Power fault",
    "Over-current fault",               // code 4
    "Fan 1 failed or removed",
    "Temperature at caution level",
    "Temperature at critical level",
    "RJ45 module missing",              // code 8
    "Fan 2 failed or removed",
};
constexpr char szPwrBus[][kNameSize] = {
    "Unknown Location",
    "Power Bus A",
    "Power Bus B",
};
constexpr char szFailedPowerModule[][kNameSize] = {
    "A Power Module has Failed",
    "A CPU Power Module has Failed",
    "A PCI Power Module has Failed",
    "An I/O Power Module has Failed",
};
constexpr char szInfMainLocation[][kNameSize] = {
    "Chassis Slot 1",                   // code 0
    "Chassis Slot 2",
    "Chassis Slot 3",
    "Chassis Slot 4",
    "Chassis Slot 5",                   // code 4
    "Chassis Slot 6",
    "Chassis Slot 7",
    "Chassis Slot 8",
    "Server Blade Management Module",   // code 8
    "Signal Backplane",
    "Power Backplane A",
    "Power Backplane B",
    "Interconnect Blade A",             // code 12
    "Interconnect Blade B",
    "RJ45 10 East",
    "RJ45 10 West",
    "RJ45 6 East",                      // code 16
    "RJ45 6 West",
    "Unknown",
};
constexpr char szInfSubLocation[][kNameSize] = {
    "Kelm Management Controller",       // code 0
    "FRU EEPROM",
    "Memory",
    "ICMB UART",
    "ROM",                              // code 4
    "LM75",
    "I2C Bus 0",
    "I2C Bus 1",
    "I2C Bus 2",                        // code 8
    "Software",
    "I2C Bus",
    "9544 Fuse Mux",
    "9555 Quick Switch",                // code 12
    "9555 Sense",
    "9555 Enable",
    "9555 IO Expander",
    "9555 Mux",                         // code 16
};
constexpr char szInfError[][kNameSize] = {
    "I2C Error",                        // code 0
    "Interrupt Error",
    "Invalid FRU Data",
    "POST Failure",
    "Backup ROM Booted",                // code 4
    "Bus Error",
    "Stack Overflow",
    "I2C Bus Timeout",
    "Unknown I2C Error",                // code 8
};
constexpr CodeText kPSErrors[] = {
    {0,   "General Failure"},
    {1,   "BIST Failure"},
    {2,   "Fan Failure"},
    {5,   "EPROM Failure"},
    {6,   "VREF Failure"},
    {7,   "DAC Failure"},
    {8,   "RAM Test Failed"},
    {9,   "Voltage Channel Failure"},
    {12,  "Give Up On Startup"},
    {13,  "NVRAM Invalid"},
    {14,  "Calibration Table Invalid"},
    {255, "No Error"},
};
// clang-format on

// Returns the name at `index`, or `other` if the table is shorter.
template <size_t N>
const char* NameAt(const char (&names)[N][kNameSize], uint8_t index, const char* other = szUnknown) {
    return index < N ? names[index] : other;
}

}  // namespace

const char* GetLocation(uint8_t bLocation) {
    return TextOfCode(szLocations, bLocation, szUnknown);
}

const char* GetRedundancy(uint8_t bRedundancy) {
    return NameAt(szRedundancy, bRedundancy);
}

const char* GetACProblem(uint8_t bACProblem) {
    return NameAt(szACProblem, bACProblem);
}

const char* GetInadequatePowerReason(uint8_t bReason) {
    return NameAt(szInadequatePowerReason, bReason);
}

const char* GetImproperPowerReason(uint8_t bReason) {
    return NameAt(szImproperPowerReason, bReason);
}

const char* GetRackSide(uint8_t bLocation) {
    return NameAt(szRackSide, bLocation, szRackSide[0]);
}

const char* GetEthSwErr(uint8_t bError) {
    return NameAt(szEthSwErr, bError);
}

const char* GetPwrBus(uint8_t bLocation) {
    return NameAt(szPwrBus, bLocation);
}

const char* GetPSError(uint8_t bPSError) {
    return TextOfCode(kPSErrors, bPSError, "Unknown Failure");
}

const char* GetFailedPowerModule(uint8_t bType) {
    return NameAt(szFailedPowerModule, bType, szFailedPowerModule[0]);
}

const char* GetInfMainLocation(uint8_t bLocation) {
    return NameAt(szInfMainLocation, bLocation);
}

const char* GetInfSubLocation(uint8_t bLocation) {
    return NameAt(szInfSubLocation, bLocation);
}

const char* GetInfErrString(uint8_t bErr) {
    return NameAt(szInfError, bErr);
}

const char* GetInternalExternal(uint8_t bType) {
    if (bType == kChassisExternalStorage) return "External";
    return bType == kChassisInternalStorage ? "Internal" : "";
}

const char* GetEnclosureType(uint8_t bType) {
    if (bType == kChassisBladeEnclosure) return "Server Blade Enclosure";
    return bType == kChassisPowerEnclosure ? "Power Enclosure" : "";
}

}  // namespace eventstr
