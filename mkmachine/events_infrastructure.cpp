#include "mkmachine/events_infrastructure.h"

namespace {

constexpr EVT_CHASSIS kBlades = {kChassisBladeEnclosure, 0x01, 0x2F};
constexpr EVT_CHASSIS kPower = {kChassisPowerEnclosure, 0x00, 0x12};
constexpr EVT_CHASSIS kNoEnclosure = {kChassisServer, 0x00, 0x34};
constexpr char kSerial[] = "SGH123";

template <typename Record>
void Add(SampleEvents& events, uint8_t severity, uint16_t code, const Record& record, const char* name = "") {
    events.push_back({severity, 34, code, WithTexts(record, {name})});
}

template <typename Record>
void AddInsertOrRemove(SampleEvents& events, uint16_t code) {
    Add(events, kNotice, code, Record{kBlades, 6, kZoneBladeSlot, {}}, kSerial);
    Add(events, kNotice, code, Record{kBlades, 2, kZoneNetworkSlot, {}}, "");
}

void AddBladeEvents(SampleEvents& events) {
    Add(events, kCaution, 1, EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON{kBlades, 3, 2, {}}, kSerial);
    Add(events, kNotice, 2, EVT_INF_ENV_MANUAL_OVERRIDE{kBlades, 4, {}}, kSerial);
    Add(events, kCritical, 3, EVT_INF_ENV_FUSE_OPEN{kBlades, 0x12, kZoneBladeSlot, {}}, kSerial);
    Add(events, kCritical, 3, EVT_INF_ENV_FUSE_OPEN{kBlades, 0x01, kZoneNetworkSlot, {}});
    Add(events, kCaution, 4, EVT_INF_ENV_I2C_FAULT{kBlades, 7, {}}, kSerial);
    Add(events, kNotice, 5, EVT_INF_ENV_BLADE_INS_REM{kBlades, 3, 0, {}}, kSerial);
    Add(events, kNotice, 5, EVT_INF_ENV_BLADE_INS_REM{kBlades, 3, 1, {}}, "01234567890123456789");
    Add(events, kNotice, 5, EVT_INF_ENV_BLADE_INS_REM{kNoEnclosure, 5, 1, {}}, "-not a serial number");
}

void AddPowerEnclosureEvents(SampleEvents& events) {
    for (char side = 0; side < 3; ++side) {
        Add(events, kCaution, 6, EVT_INF_ENV_PWR_LOAD_BALANCING{kPower, side, 0x5678, {}}, kSerial);
        Add(events, kCaution, 7, EVT_INF_ENV_DC_PWR_PROBLEM{kPower, side, 950, {}}, kSerial);
    }
    Add(events, kCritical, 8, EVT_INF_ENV_AC_INPUT_PWR_EXCEEDED{kPower, {}}, kSerial);
    Add(events, kCaution, 9, EVT_INF_ENV_LOSS_OF_CHASSIS_CONNECTIVITY{kPower, 0x5678, {}}, kSerial);
    Add(events, kNotice, 10, EVT_INF_ENV_NEW_CHASSIS_CONNECTIVITY{kPower, 0x5678, {}}, kSerial);
    for (uint8_t change = 0; change < 10; ++change) {
        Add(events, kNotice, 11, EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG{kBlades, change, {}}, kSerial);
    }
    Add(events, kCaution, 12, EVT_INF_ENV_UNKNOWN_PWR_CONSUMPTION{kBlades, {}}, kSerial);
    Add(events, kCaution, 13, EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED{kPower, 3, 0, 0x5678, {}});
    Add(events, kCaution, 13, EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED{kPower, 4, 1, 0x5678, {}}, kSerial);
    Add(events, kNotice, 14, EVT_INF_ENV_ENCLOSURE_MGR_STATUS{kBlades, {}}, kSerial);
}

}  // namespace

void AddInfrastructureEvents(SampleEvents& events) {
    AddBladeEvents(events);
    AddPowerEnclosureEvents(events);
    Add(events, kCritical, 15, EVT_INF_ENV_BLOWER_FAULT{kPower, 3, 1, {}}, kSerial);
    Add(events, kCaution, 16, EVT_INF_ENV_BLOWER_REMOVED{kBlades, 4, 2, {}}, kSerial);
    Add(events, kCritical, 17, EVT_INF_ENV_ETHERNET_SWITCH_FAULT{kBlades, 5, 2, {}}, kSerial);
    Add(events, kCritical, 18, EVT_INF_ENV_INPUT_PWR_SENSE_ERR{kPower, 2, {}}, kSerial);
    AddInsertOrRemove<EVT_INF_ENV_BLADE_INS_REM_2>(events, 19);
    AddInsertOrRemove<EVT_INF_ENV_BLADE_INS_REM_2>(events, 20);
    AddRecord(events, kCaution, 34, 21, EVT_INF_ENV_RACK_TOPOLOGY_ERR{kBlades, 1});
    AddRecord(events, kCritical, 34, 24, EVT_INF_ENV_CHASSIS_ERR{kBlades, 8, 0, 3});
    const EVT_INF_FIRMWARE_MISMATCH old = {kBlades, 1, 0x10, 2, 0x20, 0x5678, {}};
    Add(events, kCaution, 25, old, kSerial);
}
