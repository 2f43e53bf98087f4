#include "mkmachine/events_system.h"

namespace {

constexpr EVT_CHASSIS kBlades = {kChassisBladeEnclosure, 0, 1};

}  // namespace

void AddSystemEvents(SampleEvents& events) {
    events.push_back(
        {kCaution, 10, 1, WithTexts(EVT_POST_MESSAGE{7, {}}, {"  301-Keyboard\r\n\tError  or  absent \n"})});
    events.push_back({kCritical, 13, 1, ""});
    events.push_back({kCritical, 13, 2, WithTexts(EVT_ASR_LOCKUP{}, {"CPU 0 stopped"})});
    events.push_back({kCritical, 13, 3, ""});
    events.push_back({kCritical, 14, 1, WithTexts(EVT_OS_CRASH{}, {"bad\ttrap"})});
    for (const int cause : {0x01, 0x02, 0x03, 0x81, 0x82, 0x83, 0x84, 0x85, 0x86}) {
        AddRecord(events, kCaution, 14, 2, EVT_AUTO_SHUTDOWN{static_cast<uint8_t>(cause)});
    }
    events.push_back({kCritical, 14, 3, WithTexts(EVT_OS_FATAL_EXCEPTION{14, {}}, {"page fault"})});
    events.push_back({kCaution, 14, 4, ""});
    events.push_back({kCaution, 14, 5, WithTexts(EVT_OS_PWR_SHED{kBlades, 5, kZoneBladeSlot, {}}, {""})});
    events.push_back({kCaution, 14, 5, WithTexts(EVT_OS_PWR_SHED{kBlades, 6, kZoneNetworkSlot, {}}, {""})});
    events.push_back({kCaution, 14, 6, ""});
    events.push_back({kCritical, 20, 1, ""});
    events.push_back({kCritical, 20, 2, ""});
    AddRecord(events, kCritical, 20, 3, EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA{0x12, 0xABCDEF34});
    events.push_back({kInformational, 32, 1, WithTexts(EVT_ROM_FLASH_OCCURRED{}, {"P56 2006.03.15"})});
    events.push_back({kInformational, 33, 1, WithTexts(EVT_MAINTENANCE_INFO{}, {"by root"})});
    events.push_back(
        {kInformational, 33, 2, WithTexts(EVT_MAINTENANCE_INFO{}, {"Fan 9 changed,\nall well"})});
}
