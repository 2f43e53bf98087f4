// The driver's records of temperature sensors.
#include "tools/mkmachine/facts.h"

namespace {

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

void AddTemperatures(MachineBuilder& machine, const std::vector<Sensor>& sensors) {
    const auto counted = static_cast<uint8_t>(sensors.size() - 1);
    machine.Table(kTemperatureHeaderTable, 0, 0, TEMPERATUREHEADER{counted, 1, counted});
    for (size_t i = 0; i < sensors.size(); ++i) AddSensor(machine, static_cast<int>(i) - 1, sensors[i]);
}
