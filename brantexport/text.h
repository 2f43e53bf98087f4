// The strings of exported values.
#pragma once

#include <string>
#include <string_view>

#include "brantexport/writer.h"

// Stores a name that the shell prints in `text`, in lower case.
void AssignLowerCase(std::string_view word, std::string& text);

// Returns the string of a value that is a word, text or time, as UTF-8. Text that isn't valid UTF-8 is read
// as Latin-1. The result refers to the value's string, or to `buffer` if it had to be converted.
std::string_view Utf8(const Value& value, std::string& buffer);
