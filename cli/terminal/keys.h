// The keys that the bytes from the keyboard stand for.
#pragma once

// What GetChar returns beside the printable characters and control characters, which stand for themselves.
// clang-format off
enum Key : int {
    kNoKey       = 0,
    kEndOfInput  = -1,     // no key: there will be no more
    kContinued   = -2,     // no key: the process was stopped, and has the terminal again
    kCtrlC       = 3,
    kBackspace   = 8,
    kTab         = 9,
    kLineFeed    = 10,
    kReturn      = 13,
    kCtrlU       = 21,
    kEscape      = 27,
    kRubout      = 127,    // what most terminals send for Backspace
    kUnknownKey  = 255,    // a byte from 0x80 up, or an escape sequence that isn't known
    kDoubleEscape = -5, kDoubleTab = -6,    // the same key twice in a row
    kInsert = -10, kDelete = -11, kHome = -12, kEnd = -13, kPageDown = -14, kPageUp = -15,
    kDown = -20, kUp = -21, kLeft = -22, kRight = -23,
    kF1 = -101, kF2 = -102, kF3 = -103, kF4 = -104, kF5 = -105, kF6 = -106,
    kF7 = -107, kF8 = -108, kF9 = -109, kF10 = -110, kF11 = -111, kF12 = -112,
};
// clang-format on

// The next key. It waits for the first byte only: the rest of an escape sequence has to be there. For a
// sequence that isn't known the bell rings, and those of its bytes that weren't read arrive as keys of their
// own. Clear_MultiKey: nonzero to read nothing, but have the next TAB or ESC count as a first one; then 0.
int GetChar(int Clear_MultiKey);
