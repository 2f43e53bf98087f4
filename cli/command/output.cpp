#include "cli/command/output.h"

#include <cstdio>

#include "src/utils/standard_streams.h"

bool OutputIsWritten() {
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

int FinalStatus(int status) {
    return FinishOutput() || status != 0 ? status : 1;
}
