// Builds entries of the event log, and logs that contain every event.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "include/event_payloads.h"
#include "mkmachine/machine_builder.h"

// Builds the payload of a record that ends in a one-byte string field: the record without that byte, then
// each string with its NUL.
template <typename Record>
std::string WithTexts(const Record& record, std::initializer_list<std::string> texts) {
    std::string payload = MachineBuilder::Plain(record);
    payload.pop_back();
    for (const std::string& text : texts) payload += text + '\0';
    return payload;
}

// EventHeader() derives the dates from `number` and sets bHdrRev and dwCount to 1, wEvtLength to 0.
// EventEntry() sets wEvtLength and returns the header and the payload as one entry.
EVT_HEADER EventHeader(uint32_t number, uint8_t severity, uint16_t event_class, uint16_t code);
std::string EventEntry(EVT_HEADER header, const std::string& payload);

struct SampleEvent {
    uint8_t severity;
    uint16_t event_class;
    uint16_t code;
    std::string payload;
};
using SampleEvents = std::vector<SampleEvent>;

// Adds an event whose payload is a record without strings.
template <typename Record>
void AddRecord(SampleEvents& events, uint8_t severity, uint16_t event_class, uint16_t code,
               const Record& record) {
    events.push_back({severity, event_class, code, MachineBuilder::Plain(record)});
}

// Returns every event that has a text, in every variant, sorted by class.
SampleEvents EveryEvent();

// Returns a log of `entries` entries, numbered from 1, which repeats the list of every event.
std::string EventLog(size_t entries);

// Each adds the events of its family; the file has the family's name (events_machine.cpp).
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

// Adds the event for each kind of chassis. Every second chassis has a name; an even code names the first, an
// odd code the second. `make` returns the payload for a chassis and its name.
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
