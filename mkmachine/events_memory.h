// Sample events of class 3: main memory.
#pragma once

#include "mkmachine/sample_event.h"

// Appends the events to `events`.
void AddMemoryEvents(SampleEvents& events);
