// What composes the program: its command language, and the two ways in which commands come to be run.
#pragma once

// Builds the tree Cmds from the table of commands. Ends the process with status 1 when there is no memory for
// it.
void CreateCommands();

// Runs each command of a string, separated by ';' (quotes don't protect one). command: zeros are written
// over its separators. Result: the last command's result; 1 when there is none.
int do_scripted_command(char* command);

// Runs what is typed at the prompt. EXIT, or the end of the input, ends the process.
[[noreturn]] void RunPrompt();

// Ends a script: restores the terminal settings, frees the history, closes the devices, the one opened last
// first, and frees the SMBIOS copy. Returns CommonEnd(status).
int EndScript(int status);

// Prints the newline that ends every run of main. Returns FinalStatus(status).
int CommonEnd(int status);
