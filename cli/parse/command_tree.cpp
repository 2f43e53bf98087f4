#include "cli/parse/command_tree.h"

#include <cstdio>
#include <cstring>
#include <new>

#include "cli/misc-commands/exit.h"

CmdType* Cmds = nullptr;

namespace {

constexpr size_t kUsageMax = 199;  // maximum number of characters of a usage that are printed

// Nodes are allocated in blocks. An allocation for each node would add 4 % to the instructions of a run with
// one short command.
constexpr int kBlockSize = 128;  // all commands fit into one block
struct NodeBlock {
    CmdType nodes[kBlockSize];
    NodeBlock* older;
};
NodeBlock* newest_block = nullptr;
CmdType* unused = nullptr;  // the next node to use
int unused_count = 0;

void AddBlock() {
    auto* const block = new (std::nothrow) NodeBlock;
    if (block == nullptr) {
        std::printf("\nERROR: Could not allocate memory for the command tree.\n");
        EndProcess(1);
    }
    block->older = newest_block;
    newest_block = block;
    unused = block->nodes;
    unused_count = kBlockSize;
}

[[noreturn]] void RejectDuplicate(const char* token, const char* parent_token) {
    std::printf("\nDebug - Error %s is not unique subcommand of %s.\nCommand tree could not be built.\n",
                token, parent_token);
    EndProcess(1);
}

// Returns the link (Sub or Next) at which a new child with this token must be inserted.
CmdType** FindLink(CmdType* Cmd, const char* Token) {
    // Most rows of the command table are in order, so the new child usually follows the last child. Comparing
    // it with every child first would add 3 % to the instructions of a run with one short command.
    CmdType* last = Cmd->Sub;
    while (last != nullptr && last->Next != nullptr) last = last->Next;
    if (last != nullptr && std::strcmp(last->Token, Token) < 0) return &last->Next;

    CmdType** link = &Cmd->Sub;
    while (*link != nullptr) {
        const int order = std::strcmp((*link)->Token, Token);
        if (order == 0) RejectDuplicate(Token, Cmd->Token);
        if (order > 0) break;
        link = &(*link)->Next;
    }
    return link;
}

// Returns the help text between the prefix and the next ':', including the space at its start.
std::string_view UsageOf(const CmdType& node) {
    const std::string_view usage = std::string_view(node.Help).substr(kUsagePrefix.size(), kUsageMax);
    return usage.substr(0, usage.find(':'));
}

}  // namespace

CmdType* NewCommandNode(const char* Token, CmdType* Synonym, const char* Help, CommandHandler Function) {
    if (unused_count == 0) AddBlock();
    --unused_count;
    *unused = {Token, Help, Synonym, Function, nullptr, nullptr};
    return unused++;
}

CmdType* AppendCmd(CmdType* Cmd, const char* Token, CmdType* Synonym, const char* Help,
                   CommandHandler Function) {
    CmdType* node =
        NewCommandNode(Token, Synonym, Help, Function != nullptr ? Function : Display_Subcommand_Usage);
    CmdType** link = FindLink(Cmd, Token);
    node->Next = *link;
    *link = node;
    return node;
}

void PropagateSynonyms(CmdType* Cmd) {
    for (CmdType* child = Cmd->Sub; child != nullptr; child = child->Next) {
        if (child->Synonym != nullptr) child->Sub = child->Synonym->Sub;
        PropagateSynonyms(child);
    }
}

void FreeCommands() {
    while (newest_block != nullptr) {
        NodeBlock* const older = newest_block->older;
        delete newest_block;
        newest_block = older;
    }
    unused_count = 0;
    Cmds = nullptr;
}

CmdType* FindChild(const CmdType* Cmd, std::string_view Token) {
    CmdType* child = Cmd->Sub;
    while (child != nullptr && Token != child->Token) child = child->Next;
    return child;
}

void Print_Tree(CmdType* cmds, int depth) {
    int on_line = 0;  // number of tokens already printed on the current line
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
