// A sample event, and functions that build the payloads of events with similar records.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "include/event_payloads.h"
#include "mkmachine/machine_builder.h"

struct SampleEvent {
    uint8_t severity;
    uint16_t event_class;
    uint16_t code;
    std::string payload;
};
using SampleEvents = std::vector<SampleEvent>;

// Builds the payload of a record that ends in a one-byte string field: the record without that byte, then
// each string with its NUL.
template <typename Record>
std::string WithTexts(const Record& record, std::initializer_list<std::string> texts) {
    std::string payload = MachineBuilder::Plain(record);
    payload.pop_back();
    for (const std::string& text : texts) payload += text + '\0';
    return payload;
}

// Adds an event whose payload is a record without strings.
template <typename Record>
void AddRecord(SampleEvents& events, uint8_t severity, uint16_t event_class, uint16_t code,
               const Record& record) {
    events.push_back({severity, event_class, code, MachineBuilder::Plain(record)});
}

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

// Adds the event for each kind of chassis. Every second chassis has a name: the first, third and fifth if
// `code` is even, the second, fourth and sixth if it is odd. `make` returns the payload for a chassis and its
// name.
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
