// The strings of exported values.
#pragma once

#include <string>
#include <string_view>

#include "brantexport/writer.h"

// Stores `word` in `text`, in lower case.
void AssignLowerCase(std::string_view word, std::string& text);

// Returns a value of the kind Word, Text or Time as a UTF-8 string. Text that isn't valid UTF-8 is converted
// from Latin-1. The result refers to the value's string, or to `buffer` if it had to be converted.
std::string_view Utf8(const Value& value, std::string& buffer);
