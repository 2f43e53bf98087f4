#include "platform/sim/text_file.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <system_error>

bool Lines::Take() {
    while (!rest_.empty()) {
        const size_t end = std::min(rest_.find('\n'), rest_.size());
        line_ = rest_.substr(0, end);
        line_ = line_.substr(0, line_.find_last_not_of(" \t\r") + 1);
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        ++number_;
        if (!line_.empty() && line_[Indentation()] != '#') return true;
    }
    return false;
}

size_t Lines::Indentation() const {
    return line_.find_first_not_of(' ');
}

void Lines::Reject() const {
    std::fprintf(stderr, "simulated machine: %s: line %d can't be read\n", file_, number_);
}

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
