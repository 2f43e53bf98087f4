#include "platform/sim/numbers.h"

#include <charconv>
#include <system_error>

bool ReadNumber(std::string_view text, uint64_t largest, uint64_t& value) {
    const bool hexadecimal = text.substr(0, 2) == "0x";
    if (hexadecimal) text.remove_prefix(2);

    uint64_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number, hexadecimal ? 16 : 10);
    if (error != std::errc() || stopped != end || number > largest) return false;
    value = number;
    return true;
}
