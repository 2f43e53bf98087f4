#include "cli/parse/command_tree.h"

#include <cstdio>
#include <cstring>
#include <new>

#include "cli/command/command.h"
#include "cli/parse/command_line.h"

CmdType* Cmds = nullptr;

namespace {

void RefuseDuplicate(const CmdType* node, const char* token, const char* parent_token) {
    if (std::strcmp(node->Token, token) != 0) return;
    std::printf("\nDebug - Error %s is not unique subcommand of %s.\nCommand tree could not be built.\n",
                token, parent_token);
    EndProcess(1);
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
    CmdType** place = &Cmd->Sub;
    while (*place != nullptr && std::strcmp((*place)->Token, Token) <= 0) {
        RefuseDuplicate(*place, Token, Cmd->Token);
        place = &(*place)->Next;
    }
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
        if (child->Sub != nullptr) PropagateSynonyms(child);
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
