#include "cli/command/command.h"

#include <cstring>

InputLineType CurrentCommandLine;
CmdType* current_command = nullptr;

void ClearLine(InputLineType* InputLine) {
    std::memset(InputLine->CmdLine, 0, sizeof InputLine->CmdLine);
    std::memset(InputLine->ParseLine, 0, sizeof InputLine->ParseLine);
    std::memset(InputLine->Words, 0, sizeof InputLine->Words);
}
