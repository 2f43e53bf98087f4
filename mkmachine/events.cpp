#include "mkmachine/events.h"

#include <algorithm>
#include <ctime>

#include "mkmachine/events_adapters.h"
#include "mkmachine/events_hardware.h"
#include "mkmachine/events_infrastructure.h"
#include "mkmachine/events_machine.h"
#include "mkmachine/events_memory.h"
#include "mkmachine/events_power.h"
#include "mkmachine/events_system.h"

namespace {

constexpr std::time_t kFirstEvent = 1142431620;  // 15 March 2006, 14:07
constexpr std::time_t kBetweenEvents = 97 * 60;
constexpr std::time_t kUntilUpdate = 25 * 60 * 60;

EVT_TIME_STAMP Stamp(std::time_t seconds) {
    std::tm time{};
    gmtime_r(&seconds, &time);
    const int year = time.tm_year + 1900;
    const auto byte = [](int value) { return static_cast<uint8_t>(value); };
    return {byte(year / 100),   byte(year % 100),   byte(time.tm_mon + 1),
            byte(time.tm_mday), byte(time.tm_hour), byte(time.tm_min)};
}

}  // namespace

EVT_HEADER EventHeader(uint32_t number, uint8_t severity, uint16_t event_class, uint16_t code) {
    EVT_HEADER header{};
    header.dwEvtNumber = number;
    header.bHdrRev = 1;
    header.bSeverity = severity;
    header.wClass = event_class;
    header.wCode = code;
    const std::time_t logged = kFirstEvent + static_cast<std::time_t>(number % 100000) * kBetweenEvents;
    header.InitTime = Stamp(logged);
    header.UpdateTime = Stamp(logged + kUntilUpdate);
    header.dwCount = 1;
    return header;
}

std::string EventEntry(EVT_HEADER header, const std::string& payload) {
    header.wEvtLength = static_cast<uint16_t>(sizeof header + payload.size());
    return MachineBuilder::Plain(header) + payload;
}

SampleEvents EveryEvent() {
    SampleEvents events = {{kInformational, 0, 0, ""}, {kInformational, 1, 0, ""}};
    AddMachineEvents(events);
    AddMemoryEvents(events);
    AddHardwareEvents(events);
    AddSystemEvents(events);
    AddPowerEvents(events);
    AddAdapterEvents(events);
    AddInfrastructureEvents(events);
    std::stable_sort(events.begin(), events.end(), [](const SampleEvent& a, const SampleEvent& b) {
        return a.event_class < b.event_class;
    });
    return events;
}

std::string EventLog(size_t entries) {
    const SampleEvents events = EveryEvent();
    std::string log;
    for (size_t i = 0; i < entries; ++i) {
        const SampleEvent& event = events[i % events.size()];
        log += EventEntry(
            EventHeader(static_cast<uint32_t>(i + 1), event.severity, event.event_class, event.code),
            event.payload);
    }
    return log;
}
