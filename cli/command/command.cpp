#include "cli/command/command.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

InputLineType CurrentCommandLine;
CmdType* current_command = nullptr;

void ClearLine(InputLineType* InputLine) {
    std::memset(InputLine->CmdLine, 0, sizeof InputLine->CmdLine);
    std::memset(InputLine->ParseLine, 0, sizeof InputLine->ParseLine);
    std::memset(InputLine->Words, 0, sizeof InputLine->Words);
}

int InvalidArguments() {
    return Fail("\nInvalid argument(s)\n%s", current_command->Help);
}

int ShowUsage() {
    return Fail("\n%s", current_command->Help);
}

int Fail(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
    return 1;
}
