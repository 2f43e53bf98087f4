// Prints a verdict on the server's health in the form that monitoring systems expect of a plugin: a line and
// an exit status.
#pragma once

#include <memory>

#include "brantexport/writer.h"

// The state of a server is that of its worst problem: Critical is worse than Warning, and Warning is worse
// than Unknown. The values are exit statuses.
enum class Health { Ok = 0, Warning = 1, Critical = 2, Unknown = 3 };

// Writes the verdict Unknown and the message `problem` to the descriptor `output`, for a run that could not
// read the values. Allocates no memory. Returns the exit status.
int WriteUnknown(int output, const char* problem);

// Returns a writer that writes the verdict to the descriptor `output`. Its Status() is a Health.
std::unique_ptr<Writer> NewCheckWriter(int output);
