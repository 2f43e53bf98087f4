// Entries of the event log, byte for byte, and the log that shows what every event looks like.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "include/event_payloads.h"
#include "tools/mkmachine/machine_builder.h"

// A payload whose record ends in a text field: the record up to there, then each text with its zero.
template <typename Record>
std::string WithTexts(const Record& record, std::initializer_list<std::string> texts) {
    std::string payload = MachineBuilder::Plain(record);
    payload.pop_back();
    for (const std::string& text : texts) payload += text + '\0';
    return payload;
}

// An entry that carries a payload. Its dates go with its number; what the header isn't given is 0.
EVT_HEADER EventHeader(uint32_t number, uint8_t severity, uint16_t event_class, uint16_t code);
std::string EventEntry(EVT_HEADER header, const std::string& payload);

struct SampleEvent {
    uint8_t severity;
    uint16_t event_class;
    uint16_t code;
    std::string payload;
};
using SampleEvents = std::vector<SampleEvent>;

// Adds an event whose payload is a record and nothing else.
template <typename Record>
void AddRecord(SampleEvents& events, uint8_t severity, uint16_t event_class, uint16_t code,
               const Record& record) {
    events.push_back({severity, event_class, code, MachineBuilder::Plain(record)});
}

// Every event that has a text, in every variant, by class.
SampleEvents EveryEvent();

// A log of so many entries, numbered from 1, which run through every event again and again.
std::string EventLog(size_t entries);

// The families of events, a file each.
void AddMachineEvents(SampleEvents& events);
void AddMemoryEvents(SampleEvents& events);
void AddHardwareEvents(SampleEvents& events);
void AddSystemEvents(SampleEvents& events);
void AddPowerEvents(SampleEvents& events);
void AddAdapterEvents(SampleEvents& events);
void AddInfrastructureEvents(SampleEvents& events);

constexpr EVT_CHASSIS ExternalStorage(uint8_t slot) {
    return {kChassisExternalStorage, slot, 0};
}
constexpr EVT_CHASSIS InternalStorage(uint8_t slot) {
    return {kChassisInternalStorage, slot, 0};
}

struct SampleChassis {
    EVT_CHASSIS chassis;
    const char* name;
};

// The same event on each kind of chassis, some with a name and some without: which ones have one changes from
// code to code. make: the payload for a chassis and its name.
template <typename Make>
void AddForEachChassis(SampleEvents& events, uint8_t severity, uint16_t event_class, uint16_t code,
                       Make make) {
    constexpr SampleChassis kNamed[] = {
        {{kChassisServer, 0, 0}, "SELF"},
        {{kChassisServer, 2, 0}, "RACK7"},
        {ExternalStorage(3), "SHELF"},
        {InternalStorage(4), "CAGE"},
        {{kChassisBladeEnclosure, 0x01, 0x2F}, "SGH123"},
        {{kChassisPowerEnclosure, 0x00, 0x12}, "PWR456"},
    };
    bool named = code % 2 == 0;
    for (const SampleChassis& kind : kNamed) {
        events.push_back({severity, event_class, code, make(kind.chassis, named ? kind.name : "")});
        named = !named;
    }
}
