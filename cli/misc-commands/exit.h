// Ends the process from within a command: for EXIT, QUIT and fatal errors. A script that runs to its end
// returns from main() instead.
#pragma once

#include "cli/command/command.h"

// Handles EXIT and QUIT: ends the process with status 0. Ignores its argument, which may be null.
int do_exit(InputLineType* InputLine);

// Closes the devices in the order in which they were opened, restores the terminal settings, frees the
// history and the SMBIOS copy, prints `last_output` and exits with FinalStatus(status). After a fatal error
// `last_output` is empty, because the error message is complete.
[[noreturn]] void EndProcess(int status, const char* last_output = "");
