// A sample event, and functions that build the payloads of events with similar records.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "include/event_payloads.h"
#include "mkmachine/machine_builder.h"

// A payload with strings: the fields of its record, then each string with its NUL.
struct PayloadWithTexts {
    std::string fields;
    std::string texts;
    operator std::string() const { return fields + texts; }
};

struct SampleEvent {
    SampleEvent(uint8_t its_severity, uint16_t its_class, uint16_t its_code, const PayloadWithTexts& parts)
        : severity(its_severity),
          event_class(its_class),
          code(its_code),
          payload(parts),
          fields_size(parts.fields.size()) {}
    SampleEvent(uint8_t its_severity, uint16_t its_class, uint16_t its_code, const std::string& fields)
        : SampleEvent(its_severity, its_class, its_code, PayloadWithTexts{fields, ""}) {}

    uint8_t severity;
    uint16_t event_class;
    uint16_t code;
    std::string payload;
    size_t fields_size;  // offset of the strings
};
using SampleEvents = std::vector<SampleEvent>;

// Builds the payload of a record that ends in a one-byte string field.
template <typename Record>
PayloadWithTexts WithTexts(const Record& record, std::initializer_list<std::string> texts) {
    PayloadWithTexts payload{MachineBuilder::Plain(record), ""};
    payload.fields.pop_back();
    for (const std::string& text : texts) payload.texts += text + '\0';
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
