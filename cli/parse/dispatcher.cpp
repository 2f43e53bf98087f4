#include "cli/parse/dispatcher.h"

#include <cstdio>
#include <cstring>

#include "cli/brantcli/state.h"
#include "cli/parse/command_tree.h"

InputLineType CurrentCommandLine;

namespace {

// The deepest node that the line's words name one after the other; null when the first word is no command.
CmdType* MatchWords(const InputLineType& line) {
    CmdType* matched = nullptr;
    CmdType* level = Cmds->Sub;
    for (int i = 0; i < line.NumWords; ++i) {
        while (level != nullptr && std::strcmp(level->Token, line.Words[i]) != 0) level = level->Next;
        if (level == nullptr) break;
        matched = level;
        level = matched->Sub;
    }
    return matched;
}

}  // namespace

int Command(InputLineType* InputLine, int scriptFlag) {
    if (scriptFlag != 0) {
        Parse(InputLine);
    }
    if (InputLine->Words[0] == nullptr || InputLine->NumWords == 0) {
        std::printf("\n");
        return 1;
    }

    current_command = MatchWords(*InputLine);
    int result = 1;
    if (current_command != nullptr) {
        result = current_command->Function(InputLine);
    } else {
        std::printf("\nInvalid Command");
    }
    std::printf("\n");
    return script_mode != 0 ? result : 1;
}
