// Writes the output.
#pragma once

#include <string_view>

// Writes all of the bytes to the descriptor `output`. Throws std::system_error on failure.
void WriteOutput(int output, std::string_view bytes);
