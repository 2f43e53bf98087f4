#include "mkmachine/events_machine.h"

namespace {

constexpr EVT_CHASSIS kBlades = {kChassisBladeEnclosure, 0, 1};

}  // namespace

void AddMachineEvents(SampleEvents& events) {
    AddForEachChassis(events, kCritical, 2, 1, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_OVERHEAT{chassis, 6, kZoneCpu, 75, {}}, {name});
    });
    AddForEachChassis(events, kCritical, 2, 2, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_FAN_FAIL{chassis, 9, kZoneStorage, {}}, {name, "not of this event"});
    });
    AddForEachChassis(events, kCaution, 2, 3, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_DOOR_OPEN{chassis, 1, kZoneCpu, {}}, {name});
    });
    AddForEachChassis(events, kCaution, 2, 4, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_FAN_REMOVED{chassis, 7, kZoneIoBoard, {}}, {name});
    });
    AddForEachChassis(events, kRepaired, 2, 5, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_FAN_INSERTED{chassis, 10, kZoneAmbient, {}}, {name});
    });
    AddForEachChassis(events, kCaution, 2, 6, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_FAN_NOT_REDUNDANT{chassis, kZoneVirtual, {}}, {name});
    });
    events.push_back(
        {kCaution, 2, 7,
         WithTexts(EVT_MACH_FAN_NOT_REDUNDANT_SHARED{kBlades, kZoneCpu, kZoneStorage, {}}, {""})});
    AddForEachChassis(events, kCritical, 2, 8, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_FAN_FAIL{chassis, 11, kZoneIoBoard, {}}, {name, "Bay 2"});
    });
    AddForEachChassis(events, kCaution, 2, 9, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_DOOR_OPEN{chassis, 1, kZoneCpu, {}}, {name, "Left panel"});
    });
    AddForEachChassis(events, kCritical, 2, 10, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_OVERHEAT{chassis, 12, kZoneAmbient, 50, {}}, {name, "Front intake"});
    });
    events.push_back(
        {kCritical, 2, 11,
         WithTexts(EVT_MACH_SAS_FAN_FAIL{ExternalStorage(4), 15, kZoneStorage, {'1', 'A'}, 6, {}},
                   {"ARRAY1", ""})});
    events.push_back({kCritical, 2, 11,
                      WithTexts(EVT_MACH_SAS_FAN_FAIL{InternalStorage(5), 16, kZoneCpu, {'2', 'B'}, 7, {}},
                                {"ENC", "Shelf 1"})});
    events.push_back(
        {kCritical, 2, 12,
         WithTexts(EVT_MACH_SAS_OVERHEAT{InternalStorage(2), 13, kZoneAmbient, {'3', 'C'}, 8, {}},
                   {"", ""})});
    events.push_back(
        {kCritical, 2, 12,
         WithTexts(EVT_MACH_SAS_OVERHEAT{ExternalStorage(2), 14, kZoneIoBoard, {'4', 'D'}, 9, {}},
                   {"", "Shelf 2"})});
}
