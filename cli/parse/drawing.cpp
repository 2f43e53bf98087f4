#include "cli/parse/drawing.h"

#include <algorithm>
#include <cstdio>

#include "cli/terminal/terminal.h"

namespace {

constexpr char Prompt[] = "brantcli> ";
constexpr int kPromptLength = sizeof Prompt - 1;

void MoveTo(Shown& shown, int column) {
    while (shown.column < column) std::putchar(shown.text[shown.column++]);
    shown.column = BackupCursor(shown.column, column, 0);
}

void Erase(Shown& shown) {
    shown.column = BackupCursor(shown.column, 0, 1);
}

void EraseAll(Shown& shown) {
    MoveTo(shown, static_cast<int>(std::strlen(shown.text)));
    Erase(shown);
}

// Prints the line's text from the screen's cursor to the end, then `spaces` spaces, which erase the end of
// the old text.
void PrintRest(Shown& shown, const Line& line, int spaces) {
    std::memcpy(shown.text, line.text, kLineSize);
    MoveTo(shown, line.Length());
    for (int i = 0; i < spaces; ++i) std::putchar(' ');
    shown.column = BackupCursor(line.Length() + spaces, line.currentpos, 0);
}

}  // namespace

void Draw(Shown& shown, const Line& line, Change change) {
    const int removed = static_cast<int>(std::strlen(shown.text)) - line.Length();
    switch (change) {
        case Change::None: return;
        case Change::Rejected: return RingBell();
        case Change::Cursor: return MoveTo(shown, line.currentpos);
        case Change::Tail:
            MoveTo(shown, std::min(shown.column, line.currentpos));
            return PrintRest(shown, line, std::max(removed, 0));
        case Change::Replaced: EraseAll(shown); break;
        case Change::Completed: Erase(shown); break;
        case Change::ScreenLost: std::putchar('\r'); [[fallthrough]];
        case Change::PromptGone:
            std::fputs(Prompt, stdout);
            shown.column = 0;
            break;
    }
    PrintRest(shown, line, 0);
}

void EraseRow(Shown& shown) {
    EraseAll(shown);
    BackupCursor(kPromptLength, 0, 1);
}

int BackupCursor(int currpos, int newpos, int erase) {
    for (int column = currpos; column > newpos; --column) {
        std::putchar('\b');
        if (erase != 0) std::fputs(" \b", stdout);
    }
    return newpos;
}
