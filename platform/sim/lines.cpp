#include "platform/sim/lines.h"

#include <algorithm>
#include <cstdio>

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
