// The two ways in which commands come to be run.
#pragma once

// Runs each command of a string, separated by ';' (quotes don't protect one). command: zeros are written
// over its separators. Result: the last command's result; 1 when there is none.
int do_scripted_command(char* command);

// Runs what is typed at the prompt. EXIT, or the end of the input, ends the process.
[[noreturn]] void RunPrompt();
