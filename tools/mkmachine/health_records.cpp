// The driver's records of fans, temperature sensors, power supplies and the unit identification light.
#include "include/health_records.h"

#include "tools/mkmachine/facts.h"

namespace {

void AddFan(MachineBuilder& machine, int index, const Fan& fan) {
    const bool redundant = (fan.state & kRedundant) != 0;
    if (fan.older_record) {
        FANDDATA older{};
        older.ucPresent = (fan.state & kPresent) != 0;
        older.ucRedundant = redundant;
        older.ucRedundantPartner = static_cast<uint8_t>(fan.partner);
        machine.Table(kFanDataTable, index, 0, older);
    }

    COMMONFEATUREINFO feature = Feature(index, fan.state, fan.zone, fan.instance);
    feature.RedGroup.s1.bit_RedundantCapable = redundant;
    feature.RedGroup.s1.bits_RedundantGroupId = fan.partner & 31;
    machine.Table(kFanFeatureTable, index, 0, feature);

    FANBASIC basic{};
    basic.ucDataAvailable = 1;
    basic.FanDescriptor.s1.bit_HotPlug = fan.hot_plug;
    basic.ucSpeedStateIsValid = 1;
    basic.ucSpeedState = fan.speed;
    basic.ucSpeedPctIsValid = fan.percent != kNoPercent;
    basic.ucSpeedPct = static_cast<uint8_t>(fan.percent != kNoPercent ? fan.percent : 0);
    machine.Table(kFanBasicTable, index, 0, basic);
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

void AddSupply(MachineBuilder& machine, int index, const Supply& supply) {
    if (supply.older != OlderRecord::None) {
        POWERSUPPLYNUMBERS older{};
        older.ucPresent = supply.older == OlderRecord::Present;
        machine.Table(kSupplyNumbersTable, index, 0, older);
    }
    machine.Table(kSupplyFeatureTable, index, 0, Feature(index, supply.state, kPowerSupplyZone));

    POWERSUPPLYBASIC basic{};
    basic.ucDataAvailable = 1;
    basic.PsDescriptor.s1.bit_HotPlug = supply.hot_plug;
    machine.Table(kSupplyBasicTable, index, 0, basic);
}

}  // namespace

void AddFans(MachineBuilder& machine, const std::vector<Fan>& fans) {
    const auto count = static_cast<uint8_t>(fans.size());
    machine.Table(kFanHeaderTable, 0, 0, FANHEADER{count, 1, 1, count});
    for (size_t i = 0; i < fans.size(); ++i) AddFan(machine, static_cast<int>(i), fans[i]);
}

void AddTemperatures(MachineBuilder& machine, const std::vector<Sensor>& sensors) {
    const auto counted = static_cast<uint8_t>(sensors.size() - 1);
    machine.Table(kTemperatureHeaderTable, 0, 0, TEMPERATUREHEADER{counted, 1, counted});
    for (size_t i = 0; i < sensors.size(); ++i) AddSensor(machine, static_cast<int>(i) - 1, sensors[i]);
}

void AddPowerSupplies(MachineBuilder& machine, const std::vector<Supply>& supplies) {
    if (supplies.empty()) {
        machine.Table(kSupplyHeaderTable, 0, 0, POWERSUPPLYHEADER{});
        return;
    }
    const auto count = static_cast<uint8_t>(supplies.size());
    machine.Table(kSupplyHeaderTable, 0, 0, POWERSUPPLYHEADER{count, 1, 1, 0, count});
    for (size_t i = 0; i < supplies.size(); ++i) AddSupply(machine, static_cast<int>(i), supplies[i]);
}

void AddIndicators(MachineBuilder& machine, IndicatorState uid) {
    machine.Table(kIndicatorHeaderTable, 0, 0, INDCHEADER{1, 1, 1});

    INDCBASIC light{};
    light.ucDataAvailable = 1;
    light.ucCurrState = uid;
    light.IndcDescriptor.s1.bit_SWCtrl = 1;
    machine.Table(kIndicatorControlTable, 0, 0, light);
}
