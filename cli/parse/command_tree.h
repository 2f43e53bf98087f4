// The tree of keywords: a command is the path of tokens from the top level down to a node. Built once at
// start-up, then only read; its nodes are never freed.
#pragma once

#include <string_view>

#include "cli/command/command.h"

// The root, above the top-level commands.
extern CmdType* Cmds;

// What the help text of every command begins with; the listings of usages leave it out.
constexpr std::string_view kUsagePrefix = "USAGE:";

// A node outside any tree, without children. The texts aren't copied. When memory runs out, the process
// ends with status 1.
CmdType* NewCommandNode(const char* Token, CmdType* Synonym, const char* Help, CommandHandler Function);

// Adds a child in its sorted place. Cmd: the parent. Synonym: the node that the new one stands for, or null.
// Function: null for an inner node, which then lists its children.
// Result: the new node. A token that the parent already has, or no memory, ends the process with status 1.
CmdType* AppendCmd(CmdType* Cmd, const char* Token, CmdType* Synonym, const char* Help,
                   CommandHandler Function);

// The child with exactly this token; null when Cmd has none.
CmdType* FindChild(const CmdType* Cmd, std::string_view Token);

// The deepest node to which the words lead, from the top level down; the root when the first word is no
// command. Word: char* or std::string_view, already upper case.
template <typename Word>
CmdType* FollowWords(const Word* words, int count) {
    CmdType* node = Cmds;
    for (int i = 0; i < count; ++i) {
        CmdType* child = FindChild(node, words[i]);
        if (child == nullptr) break;
        node = child;
    }
    return node;
}

// Gives every synonym below Cmd the children of the node that it stands for.
void PropagateSynonyms(CmdType* Cmd);

// Prints the tree below cmds, one line per token, depth TABs deep; siblings that share one help text and
// follow each other stand on one line, joined by " | ".
void Print_Tree(CmdType* cmds, int depth);

// The handler of every inner node: lists the usage of current_command's children. Result: 1.
int Display_Subcommand_Usage(InputLineType* InputLine);
