// SHOW FANS: a table with a row for each fan position of the chassis.
#pragma once

#include "cli/command/command.h"

// Prints nothing of the table unless every fan could be read. Result: 0, or 1 on failure.
int do_show_fans(InputLineType* InputLine);
