#include "mkmachine/events_power.h"

namespace {

// Adds an event of one power supply or power module.
template <typename Record>
void AddUnit(SampleEvents& events, uint8_t severity, uint16_t code, uint8_t unit) {
    AddForEachChassis(events, severity, 11, code, [=](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(Record{chassis, unit, {}}, {name});
    });
}

// Adds an event of one power supply or power module whose record has a second field. `extra` is the string
// after the chassis name.
template <typename Record>
void AddUnit(SampleEvents& events, uint8_t severity, uint16_t code, uint8_t unit, uint8_t value,
             const std::string& extra = "") {
    AddForEachChassis(events, severity, 11, code, [=](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(Record{chassis, unit, value, {}}, {name, extra});
    });
}

PayloadWithTexts NotRedundant(EVT_CHASSIS chassis, const char* name) {
    constexpr uint8_t kPowerModule = 2;
    if (chassis.bType < kChassisBladeEnclosure) {
        return WithTexts(EVT_POWER_NOT_REDUNDANT{chassis, {}}, {name});
    }
    return WithTexts(EVT_INF_POWER_NOT_REDUNDANT{chassis, kPowerModule, {}}, {name});
}

void AddPowerModules(SampleEvents& events) {
    constexpr EVT_CHASSIS kChassis[] = {
        {kChassisServer, 0, 0},
        {kChassisServer, 2, 0},
        ExternalStorage(3),
        InternalStorage(4),
    };
    for (uint8_t type = 0; type < 4; ++type) {
        for (const EVT_CHASSIS& chassis : kChassis) {
            AddRecord(events, kCritical, 11, 3, EVT_POWER_MODULE_FAILURE{chassis, 7, 8, type});
        }
    }
}

void AddBatteries(SampleEvents& events, uint16_t code, const std::string& text) {
    for (const EVT_CHASSIS& chassis :
         {EVT_CHASSIS{kChassisServer, 0, 0}, EVT_CHASSIS{kChassisBladeEnclosure, 3, 0}}) {
        const std::string battery = MachineBuilder::Plain(EVT_BATTERY_LOW{chassis});
        events.push_back({kCaution, 11, code, PayloadWithTexts{battery, text + '\0'}});
    }
}

}  // namespace

void AddPowerEvents(SampleEvents& events) {
    AddUnit<EVT_POWER_SUPPLY_FAILURE>(events, kCritical, 1, 5, 2);
    AddBatteries(events, 2, "not of this event");
    AddPowerModules(events);
    AddUnit<EVT_POWER_SUPPLY_REMOVED>(events, kCaution, 4, 6);
    AddUnit<EVT_POWER_SUPPLY_INSERTED>(events, kRepaired, 5, 7);
    AddForEachChassis(events, kCaution, 11, 6, NotRedundant);
    AddForEachChassis(events, kCaution, 11, 7, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_POWER_MODULES_NOT_REDUNDANT{chassis, 1, 2, 3, {}}, {name});
    });
    AddUnit<EVT_POWER_AC_VOLTAGE>(events, kCaution, 8, 8, 4);
    AddUnit<EVT_POWER_AC_OVERLOAD>(events, kCritical, 9, 9, 230);
    AddUnit<EVT_POWER_SUPPLY_POWERED>(events, kRepaired, 10, 10);
    AddUnit<EVT_POWER_SUPPLY_UNPOWERED>(events, kCaution, 11, 11);
    AddUnit<EVT_SYS_POWER_MODULE_FAILURE>(events, kCritical, 12, 12, 1);
    AddUnit<EVT_SYS_POWER_MODULE_REMOVED>(events, kCaution, 13, 13);
    AddUnit<EVT_SYS_POWER_MODULE_INSERTED>(events, kRepaired, 14, 14);
    AddForEachChassis(events, kCaution, 11, 15, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_SYS_POWER_MODULE_NOT_REDUNDANT{chassis, {}}, {name});
    });
    AddUnit<EVT_SYS_POWER_MODULE_OVERLOAD>(events, kCritical, 16, 16, 120);
    AddUnit<EVT_POWER_AC_VOLTAGE>(events, kCaution, 17, 17, 5, "Circuit 12");
    AddBatteries(events, 18, "Replace soon");
    AddUnit<EVT_POWER_SUPPLY_FAILURE>(events, kCritical, 19, 19, 255, "Spare 9");
    events.push_back(
        {kCritical, 11, 20,
         WithTexts(EVT_SAS_POWER_SUPPLY_FAILURE{ExternalStorage(3), 4, {'5', 'E'}, 10, {}}, {"ARRAY2", ""})});
}
