// Sample events of class 2: heat, fans, side panels.
#pragma once

#include "mkmachine/sample_event.h"

// Appends the events to `events`.
void AddMachineEvents(SampleEvents& events);
