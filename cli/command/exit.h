// The ways out of the program, once it has started up.
#pragma once

// Flushes standard output. False when something could not be written to it, now or before.
bool OutputIsWritten();

// The status to end with: status itself, or 1 instead of 0 when not all output could be written.
int FinalStatus(int status);

// EXIT and fatal errors close the devices in the order in which they were opened, the end of main the last
// one first: traces show it.
enum class CloseOrder { AsOpened, LastFirst };

// Closes the devices, gives the terminal back, frees the history and the SMBIOS copy. Result: FinalStatus.
int EndRun(int status, CloseOrder order);

// Ends the run, with CloseOrder::kAsOpened, and then the process.
[[noreturn]] void EndProcess(int status);
