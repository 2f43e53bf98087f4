// What the listing of the event log calls a class of events.
#pragma once

#include <cstdint>

constexpr int kEventClasses = 35;
extern const char* const EventClass[kEventClasses];  // by EVT_HEADER::wClass

// The name of any class; of one beyond the table, what the table calls a class that isn't defined.
const char* EventClassName(uint16_t wClass);
