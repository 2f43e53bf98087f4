#include "cli/parse/dispatcher.h"

#include <cstdio>

#include "cli/command/state.h"
#include "cli/parse/command_tree.h"
#include "cli/parse/editor.h"
#include "cli/parse/tokenizer.h"

int Command(InputLineType* InputLine, int scriptFlag) {
    if (scriptFlag != 0) {
        Parse(InputLine);
    } else {
        GetCmd(InputLine);
    }
    if (InputLine->Words[0] == nullptr || InputLine->NumWords == 0) {
        std::printf("\n");
        return 1;
    }

    CmdType* matched = FollowWords(InputLine->Words, InputLine->NumWords);
    current_command = matched != Cmds ? matched : nullptr;
    int result = 1;
    if (current_command != nullptr) {
        result = current_command->Function(InputLine);
    } else {
        std::printf("\nInvalid Command");
    }
    std::printf("\n");
    return script_mode != 0 ? result : 1;
}
