// The ways out of the program. EXIT and fatal errors close the devices in the order of opening, the end of
// main in the reverse one; traces show either, and tests hold both.
#pragma once

// Flushes standard output. False when something could not be written to it, now or before.
bool OutputIsWritten();

// The status to end with: status itself, or 1 instead of 0 when not all output could be written.
int FinalStatus(int status);

// Closes the devices in the order in which they were opened, gives the terminal back, frees the history and
// the SMBIOS copy.
void ReleaseEverything();

// The same, and ends the process with FinalStatus(status).
[[noreturn]] void EndProcess(int status);
