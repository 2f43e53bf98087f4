// The tree of keywords. A command is a path of tokens from the top level down to a node. Start-up builds the
// tree; afterwards the program only reads it, and never frees it.
#pragma once

#include <string_view>

#include "cli/command/command.h"

// The root. Its children are the top-level commands.
extern CmdType* Cmds;

// Every help text except the root's begins with this prefix.
constexpr std::string_view kUsagePrefix = "USAGE:";

// Creates a node that isn't linked to any other node yet. Doesn't copy the strings. Ends the process with
// status 1 if memory runs out.
CmdType* NewCommandNode(const char* Token, CmdType* Synonym, const char* Help, CommandHandler Function);

// Creates a child of `Cmd` and inserts it in the order of the tokens. `Synonym`: the node that the new one is
// a synonym of, or null. `Function`: null for an inner node, whose handler is Display_Subcommand_Usage.
// Returns the new node. Ends the process with status 1 if `Cmd` already has a child with this token, or if
// memory runs out.
CmdType* AppendCmd(CmdType* Cmd, const char* Token, CmdType* Synonym, const char* Help,
                   CommandHandler Function);

// Links the children of each command to its synonyms, for all synonyms below `Cmd`.
void PropagateSynonyms(CmdType* Cmd);

// Frees all nodes and sets Cmds to null, so that a test can start without a tree.
void FreeCommands();

// Returns the child of `Cmd` with exactly this token, or null if there is none.
CmdType* FindChild(const CmdType* Cmd, std::string_view Token);

// Follows the words from the top level down, up to the first word that matches no child. Returns the last
// node reached, which is the root if the first word matches nothing. The words (char* or std::string_view)
// must be in upper case.
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

// Prints the tree below `cmds`, one token on a line, indented by `depth` TABs. Adjacent siblings that share a
// help text are on one line, joined by " | ".
void Print_Tree(CmdType* cmds, int depth);

// The handler of inner nodes: prints the usage of each child of current_command. Returns 1.
int Display_Subcommand_Usage(InputLineType* InputLine);
