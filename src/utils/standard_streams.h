// The process's standard streams, as a caller may have left them.
#pragma once

// Opens those that the caller closed: the first device opened would get their descriptor, and keys be read
// from it. What takes their place can't be written either, so that lost output is noticed.
void KeepStandardDescriptors();

// For a program whose own output isn't for people: what the shell's code prints goes to standard error from
// now on. Result: a descriptor for the real standard output; -1 with errno on failure.
int MessagesToStandardError();
