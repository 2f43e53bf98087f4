// Nothing past the caller's buffer is written, nothing past the entry's end is read, whatever the entry says.

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>

#include "tests/eventstr/translate.h"

namespace {

constexpr size_t kPayloadRoom = kEventEntryRoom - sizeof(EVT_HEADER);
constexpr char kUntouched = '#';

// The buffer after a translation that was told of `room` bytes, and the bytes behind them.
std::string BufferAfter(const std::string& entry, unsigned room, size_t size) {
    std::vector<char> bytes(entry.begin(), entry.end());
    std::string buffer(size, kUntouched);
    TranslateEventLogMessage(reinterpret_cast<PEVT_LOG_ENTRY>(bytes.data()), buffer.data(), room);
    return buffer;
}

TEST(EventText, IsCutAtTheBuffersEndAndNowhereElse) {
    for (const SampleEvent& event : EveryEvent()) {
        const std::string entry =
            EventEntry(EventHeader(1, event.severity, event.event_class, event.code), event.payload);
        const std::string whole = TranslateEntry(entry, 512).text;
        const auto length = static_cast<unsigned>(whole.size());
        for (const unsigned room : {1u, 2u, length / 2 + 1, length, length + 1, length + 9}) {
            std::string expected = whole.substr(0, room - 1);
            expected.resize(room, '\0');
            expected += std::string(8, kUntouched);
            EXPECT_EQ(BufferAfter(entry, room, room + 8), expected) << whole << " in " << room;
        }
    }
}

TEST(EventText, OfNoBytesIsNotWritten) {
    const std::string entry = EventEntry(EventHeader(1, kCaution, 13, 1), "");
    EXPECT_EQ(BufferAfter(entry, 0, 4), std::string(4, kUntouched));
}

// A buffer for the NUL alone holds no text, so not even a known event is reported as translated.
TEST(EventText, OfOneByteIsEmpty) {
    const std::string known = EventEntry(EventHeader(1, kCaution, 13, 1), "");
    EXPECT_EQ(TranslateEntry(known, 1), (Translation{"", false}));
    EXPECT_EQ(TranslateEntry(known, 2), (Translation{"A", true}));
}

// A long piece in the middle doesn't push out what stands before it.
TEST(EventText, KeepsWhatStandsBeforeALongPiece) {
    const std::string name(240, 'N');
    const std::string text =
        Translate(2, 8, WithTexts(EVT_MACH_FAN_FAIL{{2, 3, 0}, 1, kZoneCpu, {}}, {name, "extra"})).text;
    EXPECT_EQ(text, ("External Storage System Fan Failure (Chassis " + name).substr(0, 255));
}

// An entry that ends early reads as if zeros followed: this is what a payload cut to a length must print.
Translation Padded(uint16_t event_class, uint16_t code, std::string payload) {
    payload.resize(kPayloadRoom, '\0');
    return Translate(event_class, code, payload);
}

TEST(EventPayload, CutAnywhereReadsAsIfZerosFollowed) {
    for (const SampleEvent& event : EveryEvent()) {
        for (size_t length = 0; length < event.payload.size(); ++length) {
            const std::string cut = event.payload.substr(0, length);
            EXPECT_EQ(Translate(event.event_class, event.code, cut),
                      Padded(event.event_class, event.code, cut))
                << event.event_class << "/" << event.code << " cut to " << length;
        }
    }
}

TEST(EventPayload, OfAnyBytesReadsAsIfZerosFollowed) {
    EXPECT_TRUE(rc::check([] {
        const auto event_class = *rc::gen::inRange<uint16_t>(0, 36);
        const auto code = *rc::gen::inRange<uint16_t>(0, 28);
        auto payload = *rc::gen::arbitrary<std::string>();
        payload.resize(std::min(payload.size(), kPayloadRoom));
        const Translation event = Translate(event_class, code, payload);
        RC_ASSERT(event == Padded(event_class, code, payload));
        RC_ASSERT(event.known == (event.text != Fallback(event_class, code)));
    }));
}

struct LengthCase {
    const char* catches;
    uint16_t length;  // as the entry gives it
    const char* text;
};

// A length that can't be: the buffer holds kEventEntryRoom bytes and no more. One that doesn't hold the
// header was never filled in.
TEST(EventLength, IsNeverBelievedPastTheBuffer) {
    const std::string note(kPayloadRoom, 'x');
    const LengthCase cases[] = {
        {"a length that isn't filled in", 0, note.c_str()},
        {"half a header", 27, note.c_str()},
        {"a header alone", 28, ""},
        {"a byte too much", 29, "x"},
        {"past the buffer", 297, note.c_str()},
        {"all bits set", 65535, note.c_str()},
        {"all of the buffer", 296, note.c_str()},
        {"the length that SHOW HLOG presets", 284, note.c_str() + kPayloadRoom - 256},
    };
    for (const LengthCase& c : cases) {
        std::string entry = EventEntry(EventHeader(1, kCaution, 33, 1), note);
        entry[0] = static_cast<char>(c.length);
        entry[1] = static_cast<char>(c.length >> 8);
        EXPECT_EQ(TranslateEntry(entry, 512).text, "HLOG Cleared (" + std::string(c.text) + ")") << c.catches;
    }
}

TEST(IpmiEvent, ReadsAsTheLogsEntryDoes) {
    for (const SampleEvent& event : EveryEvent()) {
        std::string entry = {static_cast<char>(event.event_class), static_cast<char>(event.code), 1, 2, 3};
        entry += event.payload + std::string(3, '\0');
        std::vector<char> bytes(entry.begin(), entry.end());
        char text[256];
        const bool known = TranslateIPMIEventMessage(reinterpret_cast<PEVT_IPMI_LOG_ENTRY>(bytes.data()),
                                                     text, sizeof text) != 0;
        EXPECT_EQ((Translation{text, known}), Translate(event.event_class, event.code, event.payload));
    }
}

TEST(IpmiEvent, WithoutAZeroEndsWhereItsRoomDoes) {
    const std::string note(kIpmiPayloadRoom, 'x');
    std::string entry = "\x21\2\1\2\3" + note + "not the entry's";
    char text[512];
    TranslateIPMIEventMessage(reinterpret_cast<PEVT_IPMI_LOG_ENTRY>(entry.data()), text, sizeof text);
    EXPECT_EQ(text, note);
}

}  // namespace
