// SHOW TEMP: a table with a row for each temperature sensor.
#pragma once

#include "cli/command/command.h"

// Prints nothing of the table unless every sensor could be read. Result: 0, or 1 on failure.
int do_show_temp(InputLineType* InputLine);
