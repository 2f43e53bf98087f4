// Writes the output.
#pragma once

#include <string_view>

// Writes all of the bytes into the descriptor `output`. Throws std::system_error if they can't be written.
void WriteOutput(int output, std::string_view bytes);
