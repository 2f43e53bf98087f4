// Numbers in the machine's text files.
#pragma once

#include <cstdint>
#include <string_view>

// Reads a whole text as a number, decimal or hexadecimal after "0x". largest: the largest that is accepted.
// False, with value as it was, for anything else.
bool ReadNumber(std::string_view text, uint64_t largest, uint64_t& value);
