#include "cli/parse/help.h"

#include <cstdio>
#include <cstring>

#include "cli/parse/command_tree.h"
#include "cli/parse/completion.h"

namespace {

constexpr int kColumns = 80;  // width of the list of commands

const char* HelpOf(const CmdType* node) {
    return node->Help != nullptr ? node->Help : "(No help available)";
}

void ListCommands() {
    int column = kColumns + 20;  // a large value, so that the first token starts a new line
    for (const CmdType* node = Cmds->Sub; node != nullptr; node = node->Next) {
        const int length = static_cast<int>(std::strlen(node->Token));
        column += length + 2;
        if (column >= kColumns) {
            std::printf("\n%s ", node->Token);
            column = length + 1;
        } else {
            std::printf(" %s ", node->Token);
        }
    }
}

}  // namespace

int do_help(InputLineType* InputLine) {
    if (InputLine->NumWords == 2 && std::strcmp(InputLine->Words[1], "TREE") == 0) {
        std::printf("\n");
        Print_Tree(Cmds, 0);
        return 1;
    }
    if (InputLine->NumWords == 1) {
        ListCommands();
        return 0;
    }
    std::printf("\n%s", HelpOf(FollowWords(InputLine->Words + 1, InputLine->NumWords - 1)));
    return 0;
}

int FindHelp(char* CmdLine) {
    const int candidates = TabComplete(CmdLine);
    if (candidates > 1) return DoubleTabComplete(CmdLine);

    const CmdType* node = Cmds;
    if (candidates == 1) {
        const WordsOfLine line = SplitAtSpaces(CmdLine);
        node = FollowWords(line.words, line.count);
    }
    std::printf("\n%s\n", HelpOf(node));
    return 0;
}
