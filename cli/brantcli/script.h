// Script mode: the commands of one string.
#pragma once

// Runs each command of a string, separated by ';' (quotes don't protect one). command: zeros are written
// over its separators. Result: the last command's result; 1 when there is none.
int do_scripted_command(char* command);
