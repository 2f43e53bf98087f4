#include "cli/parse/editor.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "cli/command/command.h"
#include "cli/command/output.h"
#include "cli/command/state.h"
#include "cli/misc-commands/exit.h"
#include "cli/parse/completion.h"
#include "cli/parse/drawing.h"
#include "cli/parse/help.h"
#include "cli/parse/tokenizer.h"
#include "cli/terminal/history.h"
#include "cli/terminal/keys.h"
#include "cli/terminal/terminal.h"

namespace {

// The functions of the keys. The table kBindings assigns them to keys.

Change Nothing(Line&, int) {
    return Change::None;
}

Change InsertTyped(Line& line, int key) {
    const int column = InsertChar(line.currentpos, static_cast<char>(key), line.text);
    if (column < 0) return Change::None;
    line.currentpos = column;
    return Change::Tail;
}

Change InsertSpace(Line& line, int) {
    return InsertChar(line.currentpos, ' ', line.text) < 0 ? Change::None : Change::Tail;
}

Change DeleteLeft(Line& line, int) {
    if (line.currentpos == 0) return Change::None;
    line.currentpos = DeleteChar(line.currentpos - 1, line.text);
    return Change::Tail;
}

Change DeleteUnder(Line& line, int) {
    if (line.AtEnd()) return Change::Rejected;
    DeleteChar(line.currentpos, line.text);
    return Change::Tail;
}

Change Left(Line& line, int) {
    if (line.currentpos == 0) return Change::Rejected;
    --line.currentpos;
    return Change::Cursor;
}

Change Right(Line& line, int) {
    if (line.AtEnd()) return Change::Rejected;
    ++line.currentpos;
    return Change::Cursor;
}

Change ToStart(Line& line, int) {
    if (line.currentpos == 0) return Change::Rejected;
    line.currentpos = 0;
    return Change::Cursor;
}

Change ToEnd(Line& line, int) {
    if (line.AtEnd()) return Change::Rejected;
    line.currentpos = line.Length();
    return Change::Cursor;
}

Change Recall(Line& line, int slot) {
    std::memset(line.text, 0, kLineSize);
    std::memcpy(line.text, History[slot], std::strlen(History[slot]));
    line.currentpos = line.Length();
    return Change::Replaced;
}

// Clears the line by recalling the slot at history_index, which is always empty.
Change Clear(Line& line, int) {
    line.temp_history_index = history_index;
    return Recall(line, history_index);
}

Change Older(Line& line, int) {
    if (!BrowseOlder(line.temp_history_index)) return Change::Rejected;
    return Recall(line, line.temp_history_index);
}

Change Newer(Line& line, int) {
    if (!BrowseNewer(line.temp_history_index)) return Change::None;
    return Recall(line, line.temp_history_index);
}

Change Complete(Line& line, int) {
    if (TabComplete(line.text) == 0) return Change::None;
    line.currentpos = line.Length();
    return Change::Completed;
}

Change ListAlternatives(Line& line, int) {
    if (DoubleTabComplete(line.text) == 0) return Change::None;
    line.currentpos = line.Length();
    return Change::PromptGone;
}

Change ShowHelp(Line& line, int) {
    const bool listed = FindHelp(line.text) != 0;
    line.currentpos = listed ? line.Length() : std::min(line.currentpos, line.Length());
    return Change::PromptGone;
}

Change ReturnFromStop(Line&, int) {
    return Change::ScreenLost;
}

Change Enter(Line& line, int) {
    line.entered = true;
    return Change::None;
}

Change Leave(Line&, int) {
    do_exit(nullptr);
    return Change::None;
}

struct Binding {
    int key;
    Change (*action)(Line& line, int key);
    bool erases_row = false;  // true: the prompt and the line are erased before the action
};

constexpr Binding kTyped = {kNoKey, InsertTyped};
constexpr Binding kOther = {kNoKey, [](Line&, int) { return Change::Rejected; }};
constexpr Binding kBindings[] = {
    {kBackspace, DeleteLeft},
    {kRubout, DeleteLeft},
    {kDelete, DeleteUnder},
    {kInsert, InsertSpace},
    {kLeft, Left},
    {kRight, Right},
    {kHome, ToStart},
    {kEnd, ToEnd},
    {kCtrlC, Clear},
    {kCtrlU, Clear},
    {kDoubleEscape, Clear},
    {kUp, Older},
    {kF3, Older},
    {kDown, Newer},
    {kTab, Complete},
    {kDoubleTab, ListAlternatives},
    {kF1, ShowHelp, true},
    {kLineFeed, Enter},
    {kReturn, Enter},
    {kNoKey, Nothing},
    {kContinued, ReturnFromStop},
    {kEndOfInput, Leave},
};

const Binding& BindingOf(int key) {
    if (key >= ' ' && key <= '~') return kTyped;
    for (const Binding& binding : kBindings) {
        if (binding.key == key) return binding;
    }
    return kOther;
}

void Act(Line& line, Shown& shown, int key) {
    const Binding& binding = BindingOf(key);
    if (binding.erases_row) EraseRow(shown);
    const Change change = binding.action(line, key);
    Draw(shown, line, change);
    std::fflush(stdout);
}

void RejectTooLong() {
    RingBell();
    std::printf("\nInvalid Command - command line too long.");
    std::fflush(stdout);
    DropRestOfLine();
}

}  // namespace

int InsertChar(int pos, char ch, char* string) {
    if (string[kLineSize - 2] != '\0') return -1;
    char* tail = string + pos;
    std::memmove(tail + 1, tail, std::strlen(tail) + 1);
    *tail = ch;
    return pos + 1;
}

int DeleteChar(int pos, char* string) {
    if (pos < 0 || pos > kLineSize - 2) return -1;
    char* tail = string + pos;
    std::memmove(tail, tail + 1, std::strlen(tail));
    return pos;
}

void GetCmd(InputLineType* InputLine) {
    ClearLine(InputLine);
    Line line = {InputLine->CmdLine, 0, history_index, false};
    Shown shown = {};
    Draw(shown, line, Change::PromptGone);
    if (!OutputIsWritten()) do_exit(nullptr);  // the user can't see the prompt

    while (!line.entered && line.currentpos <= kLongestEntered) Act(line, shown, GetChar(0));
    if (!line.entered) return RejectTooLong();

    const bool repeated = RepeatsNewest(line.text);
    Parse(InputLine);
    if (!repeated && InputLine->NumWords > 0) StoreInHistory(line.text);
}
