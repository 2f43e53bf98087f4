// What composes the program: its command language, and the two ways in which commands come to be run.
#pragma once

#include <string_view>

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

// The start-up of a program: its standard streams, as a caller may have left them; whether it may run here at
// all; and what is in this server. program: its name, for the messages.

// Opens /dev/null for each standard stream that the caller has closed. Otherwise the first device or file
// that is opened would get the stream's descriptor, and output would be written into it. All three are opened
// for reading only, so that lost output is noticed. Returns false, with a message on standard error, if
// /dev/null can't be opened: the program must then end before it opens anything.
[[nodiscard]] bool KeepStandardDescriptors();

// Redirects what the shell's code prints to standard error, for a program whose own output is for other
// programs. Returns a descriptor for the real standard output, or -1 after a message.
[[nodiscard]] int MessagesToStandardError();

// Writes all of the bytes. Waits for the reader if the descriptor is non-blocking. Returns false with errno
// on failure.
bool WriteAll(int fd, std::string_view bytes);

// If standard output is non-blocking, starts a process that copies a pipe to it and waits for the reader; the
// pipe becomes standard output. stdio would lose what it can't write immediately, and clearing O_NONBLOCK
// would change the open file for the processes that share it. If the pipe or the process can't be created,
// nothing changes.
void RelayNonBlockingOutput();

// Flushes standard output and waits until it is copied. Nothing can be printed afterwards. Returns false if
// something could not be written, now or before.
bool FinishOutput();

// Looks for the maker's signature in the BIOS area. Result: 0 when it is there, 1 when it isn't or when the
// area can't be mapped. Prints nothing.
int detect_zet_rom();

// False, with a message, when the user isn't root.
bool CheckUser(const char* program = "brantcli");

// False, with a message, when the ROM isn't the maker's.
bool CheckRom(const char* program = "brantcli");

// Copies the SMBIOS tables, if there are any, into smbios_available, the inventory and system_name.
// False, with a message and the copy released, when they are those of another line of servers.
bool ReadFirmwareTables(const char* program = "brantcli");

// Both fill embedded_nics_installed and zthmac, from SMBIOS or else from the ROM. CountEmbeddedNics also says
// so when neither knows the NICs.
void FindEmbeddedNics();
void CountEmbeddedNics();
