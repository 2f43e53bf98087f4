#pragma once

#include "cli/parse/input_line.h"

// SHOW TEMP: a table with a row for each temperature sensor. Prints nothing of it unless every sensor could
// be read. Result: 0, or 1 on failure.
int do_show_temp(InputLineType* InputLine);
