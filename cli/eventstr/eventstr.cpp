// Dispatcher: selects the translator of an event's class. Prints "Unknown Event" if the class has no
// translator, or if the translator prints nothing.
#include "cli/eventstr/eventstr.h"

#include <algorithm>
#include <cstring>

#include "cli/eventstr/translators.h"

namespace eventstr {
namespace {

void TranslateEmpty(unsigned short /*wEventCode*/, Bytes /*pEventData*/, TextWriter& out) {
    out.Text("Empty");
}

void TranslateReserved(unsigned short /*wEventCode*/, Bytes /*pEventData*/, TextWriter& out) {
    out.Text("Reserved");
}

struct ClassTranslator {
    uint16_t event_class;
    void (*translate)(unsigned short wEventCode, Bytes pEventData, TextWriter& out);
};

constexpr ClassTranslator kTranslators[] = {
    {0x00, TranslateEmpty},   {0x01, TranslateReserved}, {0x02, TranslateClass02}, {0x03, TranslateClass03},
    {0x04, TranslateClass04}, {0x05, TranslateClass05},  {0x06, TranslateClass06}, {0x07, TranslateClass07},
    {0x08, TranslateClass08}, {0x09, TranslateClass09},  {0x0A, TranslateClass0A}, {0x0B, TranslateClass0B},
    {0x0D, TranslateClass0D}, {0x0E, TranslateClass0E},  {0x11, TranslateClass11}, {0x12, TranslateClass12},
    {0x13, TranslateClass13}, {0x14, TranslateClass14},  {0x20, TranslateClass20}, {0x21, TranslateClass21},
    {0x22, TranslateClass22},
};

// Translates the event with `wEventClass` and `wEventCode`. `pEventData` is its payload, up to the end of the
// entry. `szString`, `ulSize` and the result are those of TranslateEventLogMessage.
int TranslateEventToMessage(unsigned short wEventClass, unsigned short wEventCode, Bytes pEventData,
                            char* szString, unsigned int ulSize) {
    if (ulSize == 0) return 0;
    std::memset(szString, 0, ulSize);
    TextWriter out(szString, ulSize);
    for (const ClassTranslator& translator : kTranslators) {
        if (translator.event_class == wEventClass) translator.translate(wEventCode, pEventData, out);
    }
    if (!out.Empty()) return 1;

    out.Text("Unknown Event (Class ");
    out.Number(wEventClass);
    out.Text(", Code ");
    out.Number(wEventCode);
    out.Text(")");
    return 0;
}

}  // namespace
}  // namespace eventstr

// Entries are only read as bytes, because an entry with strings is longer than the record type of its
// pointer.

int TranslateEventLogMessage(PEVT_LOG_ENTRY pEvtLogEntry, char* szString, unsigned int ulSize) {
    const auto* entry = reinterpret_cast<const uint8_t*>(pEvtLogEntry);
    const auto header = CopyOf<EVT_HEADER>(entry);
    const bool has_length = header.wEvtLength >= sizeof header;
    const size_t length =
        has_length ? std::min<size_t>(header.wEvtLength, kEventEntryCapacity) : kEventEntryCapacity;
    const Bytes payload = {entry + sizeof(EVT_HEADER), length - sizeof(EVT_HEADER)};
    return eventstr::TranslateEventToMessage(header.wClass, header.wCode, payload, szString, ulSize);
}

int TranslateIPMIEventMessage(PEVT_IPMI_LOG_ENTRY pIPMIEvent, char* szString, unsigned int ulSize) {
    const auto* entry = reinterpret_cast<const uint8_t*>(pIPMIEvent);
    const auto header = CopyOf<EVT_IPMI_HEADER>(entry);
    const Bytes payload = {entry + sizeof(EVT_IPMI_HEADER), kIpmiPayloadCapacity};
    return eventstr::TranslateEventToMessage(header.bClass, header.bCode, payload, szString, ulSize);
}
