// The firmware's event log, which is read from the cevt device.
#pragma once

#include <cstdint>

#include "cli/command/command.h"
#include "include/event_payloads.h"
#include "src/utils/bytes.h"

constexpr int kEventTextSize = 256;  // size of the buffer for an event's text in a listing

// The buffer of a read: a LOG_INFO, then the entry. It is an array of bytes, because an entry with its
// strings is longer than EVT_LOG_ENTRY.
struct EventRead {
    alignas(LOG_INFO) uint8_t bytes[kEventReadSize];
};
static_assert(sizeof(EventRead) == 312, "as the driver takes it");

// The result of ReadEvent() if the driver returned an entry with a number below the requested one. Continuing
// from there would make the listing endless.
constexpr int kEntryFromBefore = -1;

// Reads the first entry whose number is `number` or higher. `buffer` has `size` bytes, kEventReadSize or
// more, and the alignment of a LOG_INFO. Returns an EventLogStatus, kEntryFromBefore, or any other status of
// the driver.
//
// If the call itself fails, returns its errno, which callers treat as the status with that number: EPERM ends
// a listing like the end of the log, and after ESRCH the same entry is requested again.
int ReadEvent(uint8_t* buffer, size_t size, uint32_t number);

// Returns the header of the entry in the buffer of a read request.
inline EVT_HEADER HeaderOf(const uint8_t* buffer) {
    return CopyOf<EVT_HEADER>(buffer + sizeof(LOG_INFO));
}

// Returns the entry in the buffer of a read request, for TranslateEventLogMessage().
inline PEVT_LOG_ENTRY EntryOf(uint8_t* buffer) {
    return reinterpret_cast<PEVT_LOG_ENTRY>(buffer + sizeof(LOG_INFO));
}

// Returns "INFO", "REPAIRED", "CAUTION", "CRITICAL" or "UNKNOWN".
const char* SeverityWord(uint8_t bSeverity);

// Returns the name of a class of events, or "Not defined".
const char* EventClassName(uint16_t wClass);

// Replaces control characters and bytes that aren't ASCII, which would disturb the terminal, with spaces.
void ReplaceUnprintable(char* text);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_hlog(InputLineType* InputLine);
int do_clear_hlog(InputLineType* InputLine);
