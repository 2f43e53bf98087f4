// The unit identification (UID) light, which shows where in its rack a server is.
#pragma once

#include "cli/command/command.h"

enum class LightRead { Done, NoMemory, Failed };

// Reads what the light does. state: set to "on", "off", "blinking" or "in an unknown state" when it is done.
LightRead ReadLight(const char*& state);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_uid(InputLineType* InputLine);
int do_set_uid(InputLineType* InputLine);
