// The machines that mkmachine knows how to make. First the facts that a model states, family by family, each
// with the function that writes them into a machine; then the models, each in its file of models/.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "include/data_tables.h"
#include "include/health_records.h"
#include "include/rom_variables.h"
#include "mkmachine/firmware_records.h"
#include "mkmachine/machine_builder.h"

// The common feature record of a fan, a temperature sensor or a power supply.
enum State : unsigned { kAbsent = 0, kPresent = 1, kFailed = 2, kRedundant = 4 };  // DEVICE_STATE_FLAGS

constexpr auto kUnnamedZone = static_cast<ZoneType>(12);  // none that the driver's interface names

// index: the device's within its family, from -1. state: bits of State. instance: of the zone, 0 to 31.
inline COMMONFEATUREINFO Feature(int index, unsigned state, ZoneType zone, unsigned instance = 0) {
    COMMONFEATUREINFO feature{};
    feature.ucDataAvailable = 1;
    feature.DeviceState.usDeviceState = static_cast<uint16_t>(state);
    feature.ucId = static_cast<uint8_t>(index + 1);
    feature.Location.s1.bits_ZoneType = zone & 31u;
    feature.Location.s1.bits_InstanceOfZoneType = instance & 31;
    return feature;
}

constexpr uint8_t kOtherSpeed = 0;  // of a fan: none that the driver's interface names
constexpr int kNoPercent = -1;

struct Fan {
    unsigned state;  // bits of State
    ZoneType zone;
    unsigned instance;  // of the zone
    uint8_t speed;      // a FanSpeed, or kOtherSpeed
    int percent;        // of maximum, or kNoPercent
    bool hot_plug;
    unsigned partner;  // and redundancy group
    bool older_record;
};
void AddFans(MachineBuilder& machine, const std::vector<Fan>& fans);

constexpr uint8_t kOtherKind = 0;  // of a sensor: none of SensorKind
constexpr int kInvalid = -1;       // no reading, no threshold

struct Sensor {
    uint8_t kind;  // a SensorKind, or kOtherKind
    unsigned state;
    ZoneType zone;
    unsigned instance;  // of the zone
    int reading;        // degrees Celsius, or kInvalid
    int threshold;      // degrees Celsius, or kInvalid
};
// The first sensor is the one before the first that the driver counts, its index 255.
void AddTemperatures(MachineBuilder& machine, const std::vector<Sensor>& sensors);

enum class OlderRecord { None, Absent, Present };  // what the older record says, if there is one

struct Supply {
    unsigned state;
    bool hot_plug;
    OlderRecord older;
};
void AddPowerSupplies(MachineBuilder& machine, const std::vector<Supply>& supplies);

// The unit identification light.
void AddIndicators(MachineBuilder& machine, IndicatorState uid);

struct Module {
    uint32_t present;           // 0: an empty socket
    uint32_t size;              // megabytes
    uint32_t speed;             // MHz
    uint8_t form_factor, type;  // as SMBIOS numbers them
    uint32_t status;
};

// Memory as the driver tells it. A driver that knows nothing of memory has neither.
struct DriverMemory {
    std::vector<std::vector<Module>> cartridges;  // labelled from 1; all have as many sockets as the first
    std::vector<Module> system_board;
};
void AddMemoryModules(MachineBuilder& machine, const DriverMemory& memory);

constexpr uint16_t kArray = 0x1000;  // the handle of a model's one memory array

// The places of parts, as the maker's own records give them.
struct ProcessorPlace {
    uint16_t processor;  // its handle
    uint8_t socket;      // from 1, the boot processor's
};
struct ModulePlace {
    uint16_t device;  // its handle
    uint8_t board, socket;
};
struct RackPlace {  // a blade's
    const char* enclosure;
    const char* bay;
};

// What the SMBIOS tables tell, each list in table order. A model assigns by name what it has other than here.
// Where processors have places, those of the higher sockets come first: the inventory begins at the end.
struct Hardware {
    const char* rom_version = "";
    const char* rom_date = "";
    uint8_t smbios_minor_version = 6;  // of version 2
    const char* serial = "";
    uint8_t chassis = kRackMount;
    std::vector<Cache> caches = {};
    std::vector<Processor> processors = {};
    MemoryArray array = {};
    std::vector<MemoryDevice> devices = {};
    // From the maker's own records, of which there may be none.
    std::vector<smbios_nic> nics = {};
    std::vector<ProcessorPlace> processor_places = {};
    std::vector<ModulePlace> module_places = {};
    std::optional<RackPlace> rack = {};
    std::vector<MappedPort> ports = {};
};

// The last 64 KiB below 1 MiB, with the maker's signature in them.
void AddRomSignature(MachineBuilder& machine);

// The management processor, which the PICL tree shows.
enum class Kelm { Absent, Present };
void AddPicl(MachineBuilder& machine, Kelm kelm);

// The firmware's settings, and whether the recovery timer runs. A model assigns by name what it has
// other than here.
struct RomSettings {
    bool asr_enabled = false;
    uint8_t asr_minutes = 0;
    const char* asset = "";
    const char* name = "";                 // at most 14 characters
    bool shutdown = false;                 // automatic, when the environment is abnormal
    std::vector<uint8_t> boot_order = {};  // a BootDevice each, at most 8
    BootOnce boot_once = kBootOnceNone;
    std::vector<NicBoot> nics = {};  // from NIC 1, at most 5
    // Serial ports: the interrupt line in the high four bits, a Uart in the low three.
    uint8_t port_a = 0, port_b = 0, virtual_port = 0;
    WakeOnLan wake_on_lan = kWakeOnLanDisabled;
    F1Prompt f1_prompt = kF1Undefined;
    bool hyper_threading = false;
    BiosPortCode bios_port = kBiosPortDisabled;
    BiosBaudRate bios_baud = {};
    VERSEVREC versions = {};
    // Kept here by firmware without the maker's SMBIOS record; at most 8.
    std::vector<smbios_nic> nic_addresses = {};
};
void AddRomSettings(MachineBuilder& machine, const RomSettings& settings);

// The models.

struct Model {
    const char* name;          // as --model takes it
    const char* product_name;  // as SMBIOS gives it
    std::vector<Fan> fans;
    std::vector<Sensor> sensors;
    std::vector<Supply> supplies;
    IndicatorState uid;
    DriverMemory memory;
    Hardware hardware;
    RomSettings settings;
    Kelm kelm;
};

extern const Model kTr500k2;
extern const Model kTr300;
extern const Model kBx20;

// All of them; the first is the default.
const std::vector<Model>& Models();

// The model of a name; null when there is none.
const Model* FindModel(const std::string& name);

// A model's SMBIOS tables.
SmbiosTable TablesOf(const Model& model);

// Builds a model's whole machine in a directory that is empty or doesn't exist. events: the entries of its
// event log, else one of each sample. Throws std::system_error.
void MakeMachine(const Model& model, const std::string& directory, std::optional<size_t> events = {});
