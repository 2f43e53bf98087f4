#include "cli/parse/editor.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "cli/command/exit.h"
#include "cli/command/state.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/parse/command_line.h"
#include "cli/parse/completion.h"
#include "cli/parse/help.h"
#include "cli/parse/history.h"
#include "cli/parse/keys.h"
#include "cli/parse/terminal.h"

namespace {

constexpr char Prompt[] = "brantcli> ";
constexpr int kPromptLength = sizeof Prompt - 1;

struct Line {
    char* text;    // the CmdLine that is being read
    int cursor;    // currentpos: a column, 0 to the line's length
    int browsed;   // temp_history_index: the slot that is shown, history_index when none is
    bool entered;  // Enter was pressed

    int Length() const { return static_cast<int>(std::strlen(text)); }
    bool AtEnd() const { return text[cursor] == '\0'; }
};

void PrintBackspaces(int count) {
    for (int i = 0; i < count; ++i) std::putchar('\b');
}

// Movements and whole-line changes, on the screen and in the buffer.

void MoveTo(Line& line, int column) {
    while (line.cursor < column) std::putchar(line.text[line.cursor++]);
    line.cursor = BackupCursor(line.cursor, column, 0);
}

void EraseFromScreen(Line& line) {
    MoveTo(line, line.Length());
    line.cursor = BackupCursor(line.cursor, 0, 1);
}

void DeleteLeftOf(Line& line) {
    std::putchar('\b');
    --line.cursor;
    DeleteChar(line.cursor, line.text);
}

void PrintLine(Line& line) {
    line.cursor = 0;
    MoveTo(line, line.Length());
}

void PrintPromptAndLine(Line& line) {
    std::fputs(Prompt, stdout);
    PrintLine(line);
}

void ShowBrowsed(Line& line) {
    std::memset(line.text, 0, kLineSize);
    std::memcpy(line.text, History[line.browsed], std::strlen(History[line.browsed]));
    PrintLine(line);
}

// What the keys do, each as the table below says.

void Nothing(Line&, int) {}

void InsertTyped(Line& line, int key) {
    const int column = InsertChar(line.cursor, static_cast<char>(key), line.text);
    if (column >= 0) line.cursor = column;
}

void InsertBlank(Line& line, int) {
    if (InsertChar(line.cursor, ' ', line.text) >= 0) std::putchar('\b');
}

void DeleteLeft(Line& line, int) {
    if (line.cursor > 0) DeleteLeftOf(line);
}

void DeleteUnder(Line& line, int) {
    if (line.AtEnd()) return RingBell();
    DeleteChar(line.cursor, line.text);
}

void Left(Line& line, int) {
    if (line.cursor == 0) return RingBell();
    MoveTo(line, line.cursor - 1);
}

void Right(Line& line, int) {
    if (line.AtEnd()) return RingBell();
    MoveTo(line, line.cursor + 1);
}

void ToStart(Line& line, int) {
    if (line.cursor == 0) return RingBell();
    MoveTo(line, 0);
}

void ToEnd(Line& line, int) {
    if (line.AtEnd()) return RingBell();
    MoveTo(line, line.Length());
}

void Clear(Line& line, int) {
    MoveTo(line, line.Length());
    while (line.cursor > 0) DeleteLeftOf(line);
    line.browsed = history_index;
}

void Older(Line& line, int) {
    if (!BrowseOlder(line.browsed)) return RingBell();
    EraseFromScreen(line);
    ShowBrowsed(line);
}

void Newer(Line& line, int) {
    if (!BrowseNewer(line.browsed)) return;
    EraseFromScreen(line);
    ShowBrowsed(line);
}

void Complete(Line& line, int) {
    if (TabComplete(line.text) == 0) return;
    BackupCursor(line.cursor, 0, 1);
    PrintLine(line);
}

void ListAlternatives(Line& line, int) {
    if (DoubleTabComplete(line.text) != 0) PrintPromptAndLine(line);
}

// The help takes the line's place on the screen; prompt and line come again below it.
void ShowHelp(Line& line, int) {
    int column = line.cursor;
    EraseFromScreen(line);
    BackupCursor(kPromptLength, 0, 1);
    if (FindHelp(line.text) != 0) column = line.Length();
    PrintPromptAndLine(line);
    MoveTo(line, std::min(column, line.cursor));
}

// Whatever else the terminal was used for while the program was stopped, the cursor stands where the line is
// to be drawn: somewhere in a row.
void DrawAgain(Line& line, int) {
    const int column = line.cursor;
    std::putchar('\r');
    PrintPromptAndLine(line);
    MoveTo(line, column);
}

void Enter(Line& line, int) {
    line.entered = true;
}

void Leave(Line&, int) {
    do_exit(nullptr);
}

struct Binding {
    int key;
    void (*action)(Line& line, int key);
};

// Printable characters are inserted; whatever isn't here rings the bell.
constexpr Binding kBindings[] = {
    {kBackspace, DeleteLeft},
    {kRubout, DeleteLeft},
    {kDelete, DeleteUnder},
    {kInsert, InsertBlank},
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
    {kF1, ShowHelp},
    {kLineFeed, Enter},
    {kReturn, Enter},
    {kNoKey, Nothing},
    {kContinued, DrawAgain},
    {kEndOfInput, Leave},
};

void Act(Line& line, int key) {
    if (key >= ' ' && key <= '~') return InsertTyped(line, key);
    for (const Binding& binding : kBindings) {
        if (binding.key == key) return binding.action(line, key);
    }
    RingBell();
}

}  // namespace

int InsertChar(int pos, char ch, char* string) {
    if (string[kLineSize - 2] != '\0') return -1;
    char* place = string + pos;
    const size_t tail = std::strlen(place);
    std::memmove(place + 1, place, tail + 1);
    *place = ch;
    std::fputs(place, stdout);
    PrintBackspaces(static_cast<int>(tail));
    std::fflush(stdout);
    return pos + 1;
}

int DeleteChar(int pos, char* string) {
    if (pos < 0 || pos > kLineSize - 2) return -1;
    char* place = string + pos;
    std::memmove(place, place + 1, std::strlen(place));
    std::printf("%s ", place);
    PrintBackspaces(static_cast<int>(std::strlen(place)) + 1);
    std::fflush(stdout);
    return pos;
}

int BackupCursor(int currpos, int newpos, int erase) {
    for (int column = currpos; column > newpos; --column) std::fputs(erase != 0 ? "\b \b" : "\b", stdout);
    return newpos;
}

void GetCmd(InputLineType* InputLine) {
    ClearLine(InputLine);
    Line line = {InputLine->CmdLine, 0, history_index, false};
    PrintPromptAndLine(line);
    if (!OutputIsWritten()) do_exit(nullptr);  // nobody can see what is asked

    while (!line.entered && line.cursor <= kLongestEntered) {
        Act(line, GetChar(0));
        std::fflush(stdout);
    }
    if (!line.entered) {
        RingBell();
        std::printf("\nInvalid Command - command line too long.");
        std::fflush(stdout);
        DropRestOfLine();
        return;
    }
    const bool repeated = RepeatsNewest(line.text);
    Parse(InputLine);
    if (!repeated && InputLine->NumWords > 0) StoreInHistory(line.text);
}
