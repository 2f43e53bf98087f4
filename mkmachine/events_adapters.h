// Sample events of classes 17 to 19: network adapters, SCSI, drive arrays.
#pragma once

#include "mkmachine/sample_event.h"

// Appends the events to `events`.
void AddAdapterEvents(SampleEvents& events);
