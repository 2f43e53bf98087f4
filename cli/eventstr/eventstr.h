// The event translator: every entry of the event log as one line of English.
#pragma once

#include "include/event_payloads.h"

// Translates an entry of the log. The entry has wEvtLength bytes, but never more than kEventEntryRoom; bytes
// past its end read as zero. A wEvtLength below the size of the header was not filled in: the entry then has
// kEventEntryRoom bytes, as in the buffer of a read. Clears the `ulSize` bytes of `szString` and writes the
// text, truncated to fit and always terminated. The text may contain any byte that the entry's own strings
// contain. Returns 1, or 0 if the event isn't known and the text states its class and code, or if `ulSize` is
// 0 or 1.
int TranslateEventLogMessage(PEVT_LOG_ENTRY pEvtLogEntry, char* szString, unsigned int ulSize);

// Translates an entry of the management processor in the same way. The shell has no such entries; other
// programs of the system call this function. An entry has no length: its strings end at their NUL, at the
// latest kIpmiPayloadRoom bytes after the header.
int TranslateIPMIEventMessage(PEVT_IPMI_LOG_ENTRY pIPMIEvent, char* szString, unsigned int ulSize);

constexpr size_t kIpmiPayloadRoom = 256;  // bytes
