#include "cli/parse/command_tree.h"

#include <cstdio>
#include <cstring>
#include <new>

#include "cli/misc-commands/exit.h"

CmdType* Cmds = nullptr;

namespace {

constexpr size_t kUsageMax = 199;  // characters of a usage that are listed

[[noreturn]] void RefuseDuplicate(const char* token, const char* parent_token) {
    std::printf("\nDebug - Error %s is not unique subcommand of %s.\nCommand tree could not be built.\n",
                token, parent_token);
    EndProcess(1);
}

// Where a new child goes among the children, which stand in the order of their tokens.
CmdType** PlaceFor(CmdType* Cmd, const char* Token) {
    CmdType** place = &Cmd->Sub;
    // Mostly behind the last, because the table of commands is sorted but for a few rows.
    CmdType* last = Cmd->Sub;
    while (last != nullptr && last->Next != nullptr) last = last->Next;
    if (last != nullptr && std::strcmp(last->Token, Token) < 0) return &last->Next;

    while (*place != nullptr) {
        const int order = std::strcmp((*place)->Token, Token);
        if (order == 0) RefuseDuplicate(Token, Cmd->Token);
        if (order > 0) break;
        place = &(*place)->Next;
    }
    return place;
}

// What stands between the prefix and the next ':', the blank at its beginning included.
std::string_view UsageOf(const CmdType& node) {
    const std::string_view usage = std::string_view(node.Help).substr(kUsagePrefix.size(), kUsageMax);
    return usage.substr(0, usage.find(':'));
}

}  // namespace

CmdType* NewCommandNode(const char* Token, CmdType* Synonym, const char* Help, CommandHandler Function) {
    constexpr int kBlock = 64;  // the program's tree takes one
    static CmdType* unused = nullptr;
    static int unused_count = 0;
    if (unused_count == 0) {
        unused = new (std::nothrow) CmdType[kBlock];
        if (unused == nullptr) {
            std::printf("\nERROR: Could not allocate memory for the command tree.\n");
            EndProcess(1);
        }
        unused_count = kBlock;
    }
    --unused_count;
    *unused = {Token, Help, Synonym, Function, nullptr, nullptr};
    return unused++;
}

CmdType* AppendCmd(CmdType* Cmd, const char* Token, CmdType* Synonym, const char* Help,
                   CommandHandler Function) {
    CmdType* node =
        NewCommandNode(Token, Synonym, Help, Function != nullptr ? Function : Display_Subcommand_Usage);
    CmdType** place = PlaceFor(Cmd, Token);
    node->Next = *place;
    *place = node;
    return node;
}

CmdType* FindChild(const CmdType* Cmd, std::string_view Token) {
    CmdType* child = Cmd->Sub;
    while (child != nullptr && Token != child->Token) child = child->Next;
    return child;
}

void PropagateSynonyms(CmdType* Cmd) {
    for (CmdType* child = Cmd->Sub; child != nullptr; child = child->Next) {
        if (child->Synonym != nullptr) child->Sub = child->Synonym->Sub;
        PropagateSynonyms(child);
    }
}

void Print_Tree(CmdType* cmds, int depth) {
    int on_line = 0;
    for (CmdType* child = cmds->Sub; child != nullptr; child = child->Next) {
        if (on_line == 0) {
            for (int i = 0; i < depth; ++i) std::putchar('\t');
        }
        std::printf(on_line == 0 ? "%s" : " | %s", child->Token);
        if (child->Next != nullptr && child->Next->Help == child->Help) {
            ++on_line;
            continue;
        }
        std::putchar('\n');
        on_line = 0;
        if (child->Sub != nullptr) Print_Tree(child, depth + 1);
    }
}

int Display_Subcommand_Usage(InputLineType* InputLine) {
    if (std::strcmp(InputLine->Words[InputLine->NumWords - 1], current_command->Token) != 0) {
        std::printf("\nInvalid Arguments");
    }
    for (const CmdType* node = current_command->Sub; node != nullptr; node = node->Next) {
        if (node->Synonym != nullptr) continue;
        const std::string_view usage = UsageOf(*node);
        std::printf("\n\t%.*s", static_cast<int>(usage.size()), usage.data());
    }
    std::fflush(stdout);
    return 1;
}
