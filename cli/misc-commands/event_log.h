// The firmware's event log, which is read from the cevt device.
#pragma once

#include <cstdint>

#include "cli/command/command.h"
#include "include/event_payloads.h"
#include "src/utils/bytes.h"

constexpr int kEventTextSize = 256;  // buffer size for an event's text in a listing

// The buffer of a read: a LOG_INFO, then the entry. An entry with its strings is longer than EVT_LOG_ENTRY,
// so it is kept as bytes.
struct EventRead {
    alignas(LOG_INFO) uint8_t bytes[kEventReadSize];
};
static_assert(sizeof(EventRead) == 312, "as the driver takes it");

// Returned by ReadEvent if the driver returned an entry that is numbered below the requested one. A listing
// that continued from there would never end.
constexpr int kEntryFromBefore = -1;

// Reads the first entry whose number is `number` or higher into `buffer` of `size` bytes, kEventReadSize or
// more, aligned as a LOG_INFO. Returns an EventLogStatus, kEntryFromBefore, or a status that isn't known. If
// the call itself fails, returns its errno, which counts as the status of that number: EPERM ends a listing
// as the log's end does, and after ESRCH the same entry is requested again.
int ReadEvent(uint8_t* buffer, size_t size, uint32_t number);

// Returns the header of the entry in a read's buffer.
inline EVT_HEADER HeaderOf(const uint8_t* buffer) {
    return CopyOf<EVT_HEADER>(buffer + sizeof(LOG_INFO));
}

// Returns the entry in a read's buffer as TranslateEventLogMessage takes it.
inline PEVT_LOG_ENTRY EntryOf(uint8_t* buffer) {
    return reinterpret_cast<PEVT_LOG_ENTRY>(buffer + sizeof(LOG_INFO));
}

// Returns "INFO", "REPAIRED", "CAUTION", "CRITICAL" or "UNKNOWN".
const char* SeverityWord(uint8_t bSeverity);

// Returns the name of a class of events, or "Not defined".
const char* EventClassName(uint16_t wClass);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_hlog(InputLineType* InputLine);
int do_clear_hlog(InputLineType* InputLine);
