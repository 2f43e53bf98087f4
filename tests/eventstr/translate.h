// Translates an entry for the tests. The entry is in a buffer of its exact size, so that the sanitizers
// detect a read beyond its end.
#pragma once

#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "cli/eventstr/eventstr.h"
#include "mkmachine/events.h"
#include "src/utils/bytes.h"

struct Translation {
    std::string text;
    bool known;
    std::string event = "";  // class and code of the event, for failure messages
};

inline bool operator==(const Translation& a, const Translation& b) {
    return a.text == b.text && a.known == b.known;
}

inline void PrintTo(const Translation& translation, std::ostream* out) {
    *out << translation.event << (translation.known ? "" : "unknown: ") << '"' << translation.text << '"';
}

// Translates the entry `bytes` into a buffer of `capacity` bytes.
inline Translation TranslateEntry(const std::string& bytes, unsigned capacity = 256) {
    std::vector<char> entry(bytes.begin(), bytes.end());
    std::vector<char> text(capacity, '#');
    const bool known =
        TranslateEventLogMessage(reinterpret_cast<PEVT_LOG_ENTRY>(entry.data()), text.data(), capacity) == 1;
    const auto header = CopyOf<EVT_HEADER>(reinterpret_cast<const uint8_t*>(entry.data()));
    return {std::string(text.data(), strnlen(text.data(), capacity)), known,
            "class " + std::to_string(header.wClass) + ", code " + std::to_string(header.wCode) + ": "};
}

inline Translation Translate(uint16_t event_class, uint16_t code, const std::string& payload) {
    return TranslateEntry(EventEntry(EventHeader(1, kCaution, event_class, code), payload));
}
