// The event translator: every entry of the event log as one line of English.
#pragma once

#include "include/event_payloads.h"

// Translates an entry of the log. pEvtLogEntry: wEvtLength bytes of entry, but never more than
// kEventEntryRoom; bytes past that end count as zero. A wEvtLength that doesn't even hold the header is taken
// as not filled in: the entry then has kEventEntryRoom bytes, as in the buffer of a read. szString: the
// caller's buffer of ulSize bytes, cleared whole; always terminated, and a longer text is cut to fit. The
// text may hold any byte that the entry's own texts hold.
// Result: 1, or 0 when nothing is known of the event and the text gives its class and code.
int TranslateEventLogMessage(PEVT_LOG_ENTRY pEvtLogEntry, char* szString, unsigned int ulSize);

// The same for an entry that comes from the management processor. The shell has no such entries; other
// programs of the system link this. An entry has no length: pIPMIEvent is an EVT_IPMI_LOG_ENTRY whose texts
// are terminated; one that isn't is read up to kIpmiPayloadRoom.
int TranslateIPMIEventMessage(PEVT_IPMI_LOG_ENTRY pIPMIEvent, char* szString, unsigned int ulSize);

constexpr size_t kIpmiPayloadRoom = 256;  // bytes
