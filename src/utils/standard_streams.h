// Prepares the three standard streams, which the caller may have closed or made non-blocking.
#pragma once

#include <string_view>

// Opens /dev/null for each standard stream that the caller has closed. Otherwise the first device or file
// that the program opens would get the stream's descriptor, and output would be written into it. Opens
// /dev/null only for reading, so that the loss of output is detected as a failed write.
//
// If /dev/null can't be opened, prints a message on standard error and returns false: the program must then
// end before it opens anything.
[[nodiscard]] bool KeepStandardDescriptors();

// Makes a write fail, instead of ending the process, if a pipe is closed or the limit of a file's size is
// exceeded.
void IgnoreWriteSignals();

// Redirects the output of the shell's code to standard error, for programs whose own output is read by other
// programs. Returns a descriptor for the real standard output. Returns -1 and prints a message on failure.
[[nodiscard]] int MessagesToStandardError();

// Writes all bytes. If the descriptor is non-blocking, waits until they can be written. Returns false, with
// errno set, on failure.
bool WriteAll(int fd, std::string_view bytes);

// Makes standard output blocking, because stdio loses the bytes that a non-blocking write doesn't accept. The
// mode belongs to the open file, so it also changes for other processes that share the file. FinishOutput()
// restores it.
void MakeOutputBlocking();

// Flushes standard output and restores its mode. Nothing can be printed afterwards. Returns false if this or
// an earlier write failed.
bool FinishOutput();
