// Checks whether all output has been written.
#pragma once

// Flushes standard output. Returns false if this or an earlier write failed.
bool OutputIsWritten();

// Flushes standard output and returns the exit status: `status`, or 1 instead of 0 if output was lost.
int FinalStatus(int status);
