// Sample events of class 34: blade enclosures and power enclosures.
#pragma once

#include "mkmachine/sample_event.h"

// Appends the events to `events`.
void AddInfrastructureEvents(SampleEvents& events);
