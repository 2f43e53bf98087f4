// How a run ends from within a command: EXIT, QUIT and fatal errors.
#pragma once

#include "cli/command/command.h"

// Leaving the shell. Never returns; the argument is ignored and may be null.
int do_exit(InputLineType* InputLine);

// Ends the process from within a command: closes the devices in the order in which they were opened, restores
// the terminal settings, frees the history and the SMBIOS copy, prints `last_output`, and exits with
// FinalStatus(status). A fatal error has already printed its whole message, so it prints nothing more.
[[noreturn]] void EndProcess(int status, const char* last_output = "");
