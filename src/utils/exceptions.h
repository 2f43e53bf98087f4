// The message of an exception that ends a program.
#pragma once

// Returns the message of the exception that is being handled: "out of memory" or its what(). Call this in a
// catch block; the string is valid until the block ends.
const char* ExceptionMessage();

// Prints this message on standard error, after the program's name. Returns the program's exit status, 1.
int ReportException(const char* program);
