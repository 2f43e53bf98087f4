// The event log as text, one line per event.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "brantexport/writer.h"

// Which events are printed.
struct EventFilter {
    int64_t since = 0;                    // a time as in time.h; earlier events are left out
    std::vector<std::string> severities;  // as exported; if empty, events of all severities are printed
};

// Returns a writer that writes the events to the descriptor `output`, and errors to standard error. A line
// consists of the time of the last occurrence, or "-" if it is invalid, the severity, the class and the text:
// "2006-03-15T14:07 critical Power Subsystem: ...". An event with an invalid time is printed regardless of
// `filter.since`.
std::unique_ptr<Writer> NewLinesWriter(int output, const EventFilter& filter);
