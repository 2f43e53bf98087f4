// Class 2: heat, fans and side panels.
#include "tools/mkmachine/events.h"

namespace {

enum Zone : uint8_t { kIoBoard = 2, kCpu = 3, kStorage = 5, kAmbient = 8, kVirtual = 15 };

}  // namespace

void AddMachineEvents(SampleEvents& events) {
    AddForEachChassis(events, kCritical, 2, 1, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_OVERHEAT{chassis, 6, kCpu, 75, {}}, {name});
    });
    AddForEachChassis(events, kCritical, 2, 2, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_FAN_FAIL{chassis, 9, kStorage, {}}, {name, "not of this event"});
    });
    AddForEachChassis(events, kCaution, 2, 3, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_DOOR_OPEN{chassis, 1, kCpu, {}}, {name});
    });
    AddForEachChassis(events, kCaution, 2, 4, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_FAN_REMOVED{chassis, 7, kIoBoard, {}}, {name});
    });
    AddForEachChassis(events, kRepaired, 2, 5, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_FAN_INSERTED{chassis, 10, kAmbient, {}}, {name});
    });
    AddForEachChassis(events, kCaution, 2, 6, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_FAN_NOT_REDUNDANT{chassis, kVirtual, {}}, {name});
    });
    events.push_back(
        {kCaution, 2, 7, WithTexts(EVT_MACH_FAN_NOT_REDUNDANT_SHARED{{4, 0, 1}, kCpu, kStorage, {}}, {""})});
    AddForEachChassis(events, kCritical, 2, 8, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_FAN_FAIL{chassis, 11, kIoBoard, {}}, {name, "Bay 2"});
    });
    AddForEachChassis(events, kCaution, 2, 9, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_DOOR_OPEN{chassis, 1, kCpu, {}}, {name, "Left panel"});
    });
    AddForEachChassis(events, kCritical, 2, 10, [](EVT_CHASSIS chassis, const char* name) {
        return WithTexts(EVT_MACH_OVERHEAT{chassis, 12, kAmbient, 50, {}}, {name, "Front intake"});
    });
    events.push_back(
        {kCritical, 2, 11,
         WithTexts(EVT_MACH_SAS_FAN_FAIL{{2, 4, 0}, 15, kStorage, {'1', 'A'}, 6, {}}, {"ARRAY1", ""})});
    events.push_back(
        {kCritical, 2, 11,
         WithTexts(EVT_MACH_SAS_FAN_FAIL{{3, 5, 0}, 16, kCpu, {'2', 'B'}, 7, {}}, {"ENC", "Shelf 1"})});
    events.push_back(
        {kCritical, 2, 12,
         WithTexts(EVT_MACH_SAS_OVERHEAT{{3, 2, 0}, 13, kAmbient, {'3', 'C'}, 8, {}}, {"", ""})});
    events.push_back(
        {kCritical, 2, 12,
         WithTexts(EVT_MACH_SAS_OVERHEAT{{2, 2, 0}, 14, kIoBoard, {'4', 'D'}, 9, {}}, {"", "Shelf 2"})});
}
