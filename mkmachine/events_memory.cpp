#include "mkmachine/events_memory.h"

namespace {

// Adds an event for each kind of location that an error of a module or bank can have, with and without a
// serial number. The serial number contains spaces, which are printed unchanged.
void AddLocations(SampleEvents& events, uint8_t severity, uint16_t code, uint8_t module_or_bank) {
    constexpr uint8_t kNotKnown = 255;
    const EVT_MAIN_MEMORY locations[] = {
        {kNotKnown, kNotKnown, {}},      {0, kNotKnown, {}}, {0, module_or_bank, {}}, {2, module_or_bank, {}},
        {kNotKnown, module_or_bank, {}}, {2, kNotKnown, {}},
    };
    for (const EVT_MAIN_MEMORY& location : locations) {
        events.push_back({severity, 3, code, WithTexts(location, {""})});
        events.push_back({severity, 3, code, WithTexts(location, {" A  1"})});
    }
}

void AddSuspects(SampleEvents& events, uint8_t resolution, const char* serials) {
    const EVT_MAIN_MEMORY_MULTI suspects = {resolution, {{3, 1}, {5, 2}, {255, 0}, {7, 0}}, {}};
    events.push_back({kCritical, 3, 3, WithTexts(suspects, {serials})});
}

void AddRomDiag(SampleEvents& events, const EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG& record, const char* serial,
                const char* spare) {
    events.push_back({kCritical, 3, 18, WithTexts(record, {serial, spare})});
}

}  // namespace

void AddMemoryEvents(SampleEvents& events) {
    AddLocations(events, kCaution, 1, 4);
    AddLocations(events, kCritical, 2, 6);
    AddSuspects(events, 0, "");
    AddSuspects(events, 2, "S1,S2");
    AddSuspects(events, 4, " A1 ,,B  2,C3,D4");
    AddSuspects(events, 6, "A1");
    events.push_back({kCritical, 3, 3,
                      WithTexts(EVT_MAIN_MEMORY_MULTI{2, {{255, 255}, {255, 255}, {}, {}}, {}}, {",S2"})});
    for (uint8_t action = 0; action < 4; ++action) {
        AddRecord(events, kNotice, 3, 4, EVT_MAIN_MEMORY_USER_ACTION{5, action, 1});
        AddRecord(events, kNotice, 3, 4, EVT_MAIN_MEMORY_USER_ACTION{6, action, 0});
    }
    for (uint8_t status = 0; status < 4; ++status) {
        AddRecord(events, kCaution, 3, 5, EVT_MAIN_MEMORY_HW_STATUS{7, status});
    }
    AddRecord(events, kCaution, 3, 6, EVT_MAIN_MEMORY_CONFIG_ERR{2, 3, 1});
    AddRecord(events, kCaution, 3, 6, EVT_MAIN_MEMORY_CONFIG_ERR{4, 5, 0});
    AddRecord(events, kInformational, 3, 7, EVT_MAIN_MEMORY_CONFIG_CHG{9, 0, 4096});
    AddRecord(events, kInformational, 3, 7, EVT_MAIN_MEMORY_CONFIG_CHG{9, 1, 4096});
    for (const uint8_t slot : {uint8_t{0}, uint8_t{3}}) {
        AddRecord(events, kRepaired, 3, 8, EVT_MAIN_MEMORY_SPARE_ENGAGED{slot, 8});
        AddRecord(events, kRepaired, 3, 9, EVT_MAIN_MEMORY_MIRROR_ENGAGED{slot, 9});
    }
    AddLocations(events, kCaution, 10, 'B');
    for (const uint8_t slot : {uint8_t{0}, uint8_t{3}}) {
        AddRecord(events, kRepaired, 3, 11, EVT_MAIN_MEMORY_SPARE_ENGAGED{slot, 'C'});
        AddRecord(events, kRepaired, 3, 12, EVT_MAIN_MEMORY_MIRROR_ENGAGED{slot, 'D'});
    }
    for (uint16_t code = 13; code <= 16; ++code) events.push_back({kCaution, 3, code, ""});
    AddRecord(events, kCritical, 3, 17, EVT_MAIN_MEMORY_BOARD_FAILURE{4});
    AddRomDiag(events, {0, 3, 9, {0, 0}, {}}, "", "");
    AddRomDiag(events, {2, 3, 9, {0, 0}, {}}, "SN77", "");
    AddRomDiag(events, {2, 5, 9, {1, 0}, {}}, " SN  77", "SP  88 of the second row");
    AddRomDiag(events, {0, 5, 9, {1, 127}, {}}, "", "SP88");
}
