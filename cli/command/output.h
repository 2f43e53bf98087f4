// Whether everything that was printed has been written.
#pragma once

// Flushes standard output. Returns false if something could not be written to it, now or before.
bool OutputIsWritten();

// Flushes standard output and returns the exit status: `status`, or 1 instead of 0 if output was lost.
int FinalStatus(int status);
