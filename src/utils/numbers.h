// Numbers out of text.
#pragma once

#include <algorithm>
#include <climits>
#include <cstdlib>

// The decimal number that a text begins with, behind any white space and a sign; 0 when there is none. What
// an int can't hold becomes the largest or the smallest int.
inline int DecimalNumber(const char* text) {
    const long number = std::strtol(text, nullptr, 10);
    return static_cast<int>(std::clamp(number, long{INT_MIN}, long{INT_MAX}));
}
