// The event translator: formats an entry of the event log as one line of English.
#pragma once

#include "include/event_payloads.h"

// Writes the text of a log entry to `szString`, a buffer of `ulSize` bytes. Clears the whole buffer first;
// truncates a text that doesn't fit, and always terminates it. The text may contain any bytes of the entry's
// strings.
//
// The entry has wEvtLength bytes, but at most kEventEntryCapacity. If wEvtLength is less than the size of the
// header, the entry has kEventEntryCapacity bytes, like the buffer of a read. Bytes after the end count as 0.
//
// Returns 1, or 0 if the event is unknown: the text is then "Unknown Event" with its class and code. Also
// returns 0 if `ulSize` is 0 or 1.
int TranslateEventLogMessage(PEVT_LOG_ENTRY pEvtLogEntry, char* szString, unsigned int ulSize);

// Translates an entry of the management processor in the same way. The shell reads no such entries; other
// programs of the system link this function. An entry contains no length: the strings of `pIPMIEvent` must be
// terminated, and at most kIpmiPayloadCapacity bytes of its payload are read.
int TranslateIPMIEventMessage(PEVT_IPMI_LOG_ENTRY pIPMIEvent, char* szString, unsigned int ulSize);

constexpr size_t kIpmiPayloadCapacity = 256;
