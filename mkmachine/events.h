// Builds entries of the event log, and the logs of the models.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "include/event_log.h"
#include "mkmachine/sample_event.h"

// EventHeader() derives the dates from `number`, and sets bHdrRev and dwCount to 1 and wEvtLength to 0.
// EventEntry() sets wEvtLength and returns the header and the payload as one entry.
EVT_HEADER EventHeader(uint32_t number, uint8_t severity, uint16_t event_class, uint16_t code);
std::string EventEntry(EVT_HEADER header, const std::string& payload);

// Returns a sample of every event that has a text, in every variant, sorted by class.
SampleEvents EveryEvent();

// Returns a log of `entries` entries, numbered from 1. Their events are those of EveryEvent(), repeated as
// often as necessary.
std::string EventLog(size_t entries);
