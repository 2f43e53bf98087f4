// The firmware's event log as the shell lists it, for whatever reads it in another way.
#pragma once

#include "include/event_payloads.h"

// The buffer of a read: the request, and room for the longest entry behind what a nominal one takes.
struct EventRead {
    EVT_IOCTL_ENTRY request;
    uint8_t more[kEventReadSize - sizeof(EVT_IOCTL_ENTRY)];
};
static_assert(sizeof(EventRead) == 312, "as the driver takes it");

// Beside the driver's answers: it gave an entry numbered below the one asked for. A listing that went on from
// there would never end.
constexpr int kEntryFromBefore = -1;

// Reads the first entry whose number is `number` or higher into a buffer of size bytes, kEventReadSize or
// more. Result: an EventLogStatus, kEntryFromBefore, or a status that isn't known. A failed call's errno
// stands among the statuses and is taken for one: EPERM ends a listing as the log's end does, and after ESRCH
// the same entry is asked for again.
int ReadEvent(EVT_IOCTL_ENTRY* buffer, size_t size, uint32_t number);

// "INFO", "REPAIRED", "CAUTION", "CRITICAL" or "UNKNOWN".
const char* SeverityWord(uint8_t bSeverity);

// What the listing calls a class of events; of one that it does not know, what it calls those not defined.
const char* EventClassName(uint16_t wClass);
