// Reads and sets the unit identification (UID) light, which helps to find a server in its rack.
#pragma once

#include "cli/command/command.h"
#include "include/health_records.h"

// Sends a control request for the light. (generic_dtioctl can't send it, because it has no parameters for the
// control fields.) If the request succeeds, stores the light's state in `reply`, which the caller has
// cleared. Returns the result of the request.
int ControlLight(IndicatorSubfunction subfunction, INDCBASIC& reply);

enum class LightRead { Done, NoMemory, Failed };

// Reads the light's state: "on", "off", "blinking" or "in an unknown state". Prints nothing.
LightRead ReadLight(const char*& state);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_uid(InputLineType* InputLine);
int do_set_uid(InputLineType* InputLine);
