#include <vector>

#include "include/temperature_records.h"
#include "tools/mkmachine/features.h"
#include "tools/mkmachine/models.h"

namespace {

constexpr int kInvalid = -1;  // no reading, no threshold
constexpr uint8_t kOtherKind = 0;

struct Sensor {
    uint8_t kind;  // a SensorKind, or another
    unsigned state;
    Zone zone;
    unsigned instance;  // of the zone
    int reading;        // degrees Celsius, or kInvalid
    int threshold;      // likewise
};

// The first is the one before the first that the driver counts, its index 255.
// clang-format off
const std::vector<Sensor> kTr500k2Sensors = {
    {kBasicSensor, kPresent, kSystem,      0, 24,       60},
    {kBasicSensor, kPresent, kSystemBoard, 0, 31,       65},
    {kMax1617,     kPresent, kCpu,         1, 37,       85},
    {kMax1617,     kPresent, kCpu,         2, 40,       85},
    {kMax1617,     kAbsent,  kCpu,         3, 99,       99},
    {kLm75,        kPresent, kCpu,         0, 1,        kInvalid},
    {kLm75,        kAbsent,  kMemory,      0, 0,        70},
    {kTc610,       kPresent, kIo,          0, kInvalid, 70},
    {kTc620,       kPresent, kScsi,        0, kInvalid, kInvalid},
    {kLm75,        kPresent, kMedia,       0, 28,       55},
    {kLm75,        kPresent, kSupply,      0, 45,       0},
    {kBasicSensor, kPresent, kAmbient,     0, 21,       42},
    {kBasicSensor, kPresent, kChassis,     0, 29,       60},
    {kLm75,        kPresent, kBridge,      0, 55,       100},
    {kOtherKind,   kAbsent,  kExhaust,     0, 36,       70},
    {kOtherKind,   kPresent, kUnnamed,     0, 30,       70},
    {kOtherKind,   kPresent, kVirtual,     0, 255,      255},
};
const std::vector<Sensor> kTr300Sensors = {
    {kBasicSensor, kPresent, kSystemBoard, 0, 26, 60},
    {kBasicSensor, kPresent, kAmbient,     0, 22, 42},
    {kMax1617,     kPresent, kCpu,         1, 43, 90},
    {kMax1617,     kAbsent,  kCpu,         2, 0,  90},
};
const std::vector<Sensor> kBx20Sensors = {
    {kBasicSensor, kPresent, kSystemBoard, 0, 27, 65},
    {kLm75,        kPresent, kCpu,         1, 48, 95},
};
// clang-format on

const std::vector<Sensor>& SensorsOf(ModelId model) {
    switch (model) {
        case ModelId::Tr500k2: return kTr500k2Sensors;
        case ModelId::Tr300: return kTr300Sensors;
        default: return kBx20Sensors;
    }
}

void AddSensor(MachineBuilder& machine, int index, const Sensor& sensor) {
    const int driver_index = index & 255;
    COMMONFEATUREINFO feature = Feature(index, sensor.state, sensor.zone, sensor.instance);
    feature.ucTypeOf = sensor.kind;
    machine.Table(kTemperatureFeatureTable, driver_index, 0, feature);

    TEMPERATURENUMBERS numbers{};
    numbers.ucDataAvailable = 1;
    numbers.ucTemperatureIsValid = sensor.reading != kInvalid;
    numbers.ucCelciusTemperature = static_cast<uint8_t>(sensor.reading);
    numbers.ucThresholdIsValid = sensor.threshold != kInvalid;
    numbers.ucCelciusThreshold = static_cast<uint8_t>(sensor.threshold);
    machine.Table(kTemperatureNumbersTable, driver_index, 0, numbers);
}

}  // namespace

void AddTemperatures(MachineBuilder& machine, ModelId model) {
    const std::vector<Sensor>& sensors = SensorsOf(model);
    const auto counted = static_cast<uint8_t>(sensors.size() - 1);
    machine.Table(kTemperatureHeaderTable, 0, 0, TEMPERATUREHEADER{counted, 1, counted});
    for (size_t i = 0; i < sensors.size(); ++i) AddSensor(machine, static_cast<int>(i) - 1, sensors[i]);
}
