// The two modes: running a script and running what is typed at the prompt.
#pragma once

// Runs the commands in `command`, which are separated by ';', also inside quotes. Overwrites the separators
// with NULs. Returns the result of the last command, or 1 if there is no command.
int do_scripted_command(char* command);

// Reads and runs commands until EXIT or the end of the input ends the process.
[[noreturn]] void RunPrompt();
