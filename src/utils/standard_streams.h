// Prepares the three standard streams, which the caller may have closed or made non-blocking.
#pragma once

#include <string_view>

// Opens /dev/null for each standard stream that the caller has closed. Otherwise the first device or file
// that is opened would get the stream's descriptor, and output would be written into it. All three are opened
// for reading only, so that lost output is noticed. Returns false, with a message on standard error, if
// /dev/null can't be opened: the program must then end before it opens anything.
[[nodiscard]] bool KeepStandardDescriptors();

// Makes a write to a closed pipe, or past the limit of a file's size, fail instead of ending the process.
void IgnoreWriteSignals();

// Redirects what the shell's code prints to standard error, for a program whose own output is for other
// programs. Returns a descriptor for the real standard output, or -1 after a message.
[[nodiscard]] int MessagesToStandardError();

// Writes all of the bytes. Waits for the reader if the descriptor is non-blocking. Returns false with errno
// on failure.
bool WriteAll(int fd, std::string_view bytes);

// Makes standard output blocking, because stdio loses what it can't write immediately. The mode belongs to
// the open file, so processes that share it are affected, too; FinishOutput() restores it.
void MakeOutputBlocking();

// Flushes standard output and restores its mode. Nothing can be printed afterwards. Returns false if
// something could not be written, now or before.
bool FinishOutput();
