// Sample events of classes 4 to 9: cache, processors, buses, expansion slots.
#pragma once

#include "mkmachine/sample_event.h"

// Appends the events to `events`.
void AddHardwareEvents(SampleEvents& events);
