#include "src/utils/program_arguments.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "src/utils/standard_streams.h"
#include "src/utils/version.h"

bool ProgramArguments::Next() {
    if (next_ == end_) return false;
    text_ = *next_++;
    return true;
}

bool ProgramArguments::HasValue(std::string_view option, std::string& value) {
    if (text_ == option && next_ != end_) {
        value = *next_++;
        return true;
    }
    if (text_.substr(0, option.size()) != option || text_.substr(option.size(), 1) != "=") return false;
    value = text_.substr(option.size() + 1);
    return true;
}

bool ProgramArguments::AsksForReply(const char* program, std::string_view help, std::string& reply) const {
    if (Is("--help")) {
        reply = help;
    } else if (Is("--version")) {
        reply = std::string(program) + ' ' + kVersion + '\n';
    } else {
        return false;
    }
    return true;
}

int PrintReply(int output, const char* program, std::string_view reply) {
    if (WriteAll(output, reply)) return 0;
    std::fprintf(stderr, "%s: %s\n", program, std::strerror(errno));
    return 1;
}
