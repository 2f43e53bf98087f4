// Tests that no entry makes the translator write beyond the caller's buffer or read beyond the entry's end.

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/eventstr/translate.h"

namespace {

constexpr size_t kMaxPayload = kEventEntryCapacity - sizeof(EVT_HEADER);
constexpr char kUnwritten = '#';

// Translates the entry into a buffer of `size` bytes, but passes `capacity` as the buffer's size. Returns the
// whole buffer.
std::string BufferAfter(const std::string& entry, unsigned capacity, size_t size) {
    std::vector<char> bytes(entry.begin(), entry.end());
    std::string buffer(size, kUnwritten);
    TranslateEventLogMessage(reinterpret_cast<PEVT_LOG_ENTRY>(bytes.data()), buffer.data(), capacity);
    return buffer;
}

TEST(EventText, IsTruncatedAtTheEndOfTheBufferOnly) {
    for (const SampleEvent& event : EveryEvent()) {
        const std::string entry =
            EventEntry(EventHeader(1, event.severity, event.event_class, event.code), event.payload);
        const std::string whole = TranslateEntry(entry, 512).text;
        const auto length = static_cast<unsigned>(whole.size());
        for (const unsigned capacity : {1u, 2u, length / 2 + 1, length, length + 1, length + 9}) {
            std::string expected = whole.substr(0, capacity - 1);
            expected.resize(capacity, '\0');
            expected += std::string(8, kUnwritten);
            EXPECT_EQ(BufferAfter(entry, capacity, capacity + 8), expected)
                << whole << " in " << capacity << " bytes";
        }
    }
}

// A buffer of one byte has only space for the NUL, so even a known event counts as not translated.
TEST(EventText, IsEmptyInABufferOfOneByteAndNotWrittenWithoutABuffer) {
    const std::string known = EventEntry(EventHeader(1, kCaution, 13, 1), "");
    EXPECT_EQ(BufferAfter(known, 0, 4), std::string(4, kUnwritten));
    for (const unsigned size : {0u, 1u}) EXPECT_EQ(TranslateEntry(known, size), (Translation{"", false}));
    EXPECT_EQ(TranslateEntry(known, 2), (Translation{"A", true}));
}

// A string of an event is printed whole or not at all. Only the serial numbers of event 3/3 are truncated
// here: a name that begins with '#' isn't the serial number of an enclosure.
TEST(EventText, ContainsWholeStrings) {
    for (const SampleEvent& event : EveryEvent()) {
        if (event.payload.size() == event.fields_size) continue;
        for (const size_t strings_before : {0, 1}) {
            const std::string payload = event.payload.substr(0, event.fields_size) +
                                        std::string(strings_before, '\0') + std::string(250, '#') + '\0';
            const std::string entry =
                EventEntry(EventHeader(1, kCaution, event.event_class, event.code), payload);
            const std::string text = TranslateEntry(entry, 512).text;
            const auto length = std::count(text.begin(), text.end(), '#');
            const bool is_suspect = event.event_class == 3 && event.code == 3;
            EXPECT_TRUE(length == 0 || length == (is_suspect ? 79 : 250)) << text;
        }
    }
}

// A truncated payload is translated like the same payload padded with zeros.
TEST(EventPayload, IsPaddedWithZerosWhereverItIsTruncated) {
    for (const SampleEvent& event : EveryEvent()) {
        for (size_t length = 0; length < event.payload.size(); ++length) {
            const std::string truncated = event.payload.substr(0, length);
            const std::string padded = truncated + std::string(kMaxPayload - length, '\0');
            EXPECT_EQ(Translate(event.event_class, event.code, truncated),
                      Translate(event.event_class, event.code, padded))
                << event.event_class << "/" << event.code << " truncated to " << length;
        }
    }
}

struct LengthCase {
    const char* catches;
    uint16_t length;  // value of wEvtLength
    const char* text;
};

// The translator ignores a wEvtLength that is less than the header and limits one that exceeds the buffer.
TEST(EventLength, IsLimitedToTheBuffer) {
    const std::string note(kMaxPayload, 'x');
    const LengthCase cases[] = {
        {"a length of 0 taken for an empty entry", 0, note.c_str()},
        {"27 bytes taken for a header", 27, note.c_str()},
        {"bytes after a header without payload printed", 28, ""},
        {"a byte missing or too many", 29, "x"},
        {"a byte after the buffer read", 297, note.c_str()},
        {"a length read as signed", 65535, note.c_str()},
        {"the last byte of the buffer missing", 296, note.c_str()},
        {"the length that SHOW HLOG presets not used", 284, note.c_str() + kMaxPayload - 256},
    };
    for (const LengthCase& c : cases) {
        std::string entry = EventEntry(EventHeader(1, kCaution, 33, 1), note);
        entry[0] = static_cast<char>(c.length);
        entry[1] = static_cast<char>(c.length >> 8);
        EXPECT_EQ(TranslateEntry(entry, 512).text, "HLOG Cleared (" + std::string(c.text) + ")") << c.catches;
    }
}

TEST(IpmiEvent, HasTheTextOfTheLogEntry) {
    SampleEvents events = EveryEvent();
    events.push_back({kCaution, 200, 201, ""});  // unknown
    for (const SampleEvent& event : events) {
        std::string entry = {static_cast<char>(event.event_class), static_cast<char>(event.code), 1, 2, 3};
        entry += event.payload + std::string(3, '\0');
        std::vector<char> bytes(entry.begin(), entry.end());
        char text[256];
        const bool known = TranslateIPMIEventMessage(reinterpret_cast<PEVT_IPMI_LOG_ENTRY>(bytes.data()),
                                                     text, sizeof text) == 1;
        EXPECT_EQ((Translation{text, known}), Translate(event.event_class, event.code, event.payload));
    }
}

TEST(IpmiEvent, WithoutANulEndsAtItsMaximumSize) {
    const std::string note(kIpmiPayloadCapacity, 'x');
    std::string entry = "\x21\2\1\2\3" + note + "after the entry";
    char text[512];
    TranslateIPMIEventMessage(reinterpret_cast<PEVT_IPMI_LOG_ENTRY>(entry.data()), text, sizeof text);
    EXPECT_EQ(text, note);
}

}  // namespace
