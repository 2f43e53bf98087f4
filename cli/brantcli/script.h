// The two modes of the program: running a script, and running the commands that the user types at the prompt.
#pragma once

// Runs the commands in `command`. Each ';' separates two commands, even inside quotes, and is overwritten
// with a NUL. Returns the result of the last command, or 1 if there is no command.
int do_scripted_command(char* command);

// Reads and runs commands until EXIT or the end of the input ends the process.
[[noreturn]] void RunPrompt();
