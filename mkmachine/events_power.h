// Sample events of class 11: the power subsystem.
#pragma once

#include "mkmachine/sample_event.h"

// Appends the events to `events`.
void AddPowerEvents(SampleEvents& events);
