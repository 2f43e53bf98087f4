// Sample events of classes 10, 13, 14, 20, 32 and 33: POST, server recovery, operating system, unrecoverable
// errors, ROM flashes, maintenance notes.
#pragma once

#include "mkmachine/sample_event.h"

// Appends the events to `events`.
void AddSystemEvents(SampleEvents& events);
