// The key decoder: turns the bytes from the keyboard into keys.
#pragma once

// The return values of GetChar(). Printable characters and the control characters that aren't listed are
// returned unchanged.
// clang-format off
enum Key : int {
    kNoKey       = 0,
    kEndOfInput  = -1,     // no key: the input has ended
    kContinued   = -2,     // no key: the process was stopped and is in the foreground again
    kCtrlC       = 3,
    kBackspace   = 8,
    kTab         = 9,
    kLineFeed    = 10,
    kReturn      = 13,
    kCtrlU       = 21,
    kEscape      = 27,
    kRubout      = 127,    // the byte that most terminals send for Backspace
    kUnknownKey  = 255,    // a byte of 0x80 or above, or an unknown escape sequence
    kDoubleEscape = -5, kDoubleTab = -6,    // the same key twice in a row
    kInsert = -10, kDelete = -11, kHome = -12, kEnd = -13, kPageDown = -14, kPageUp = -15,
    kDown = -20, kUp = -21, kLeft = -22, kRight = -23,
    kF1 = -101, kF2 = -102, kF3 = -103, kF4 = -104, kF5 = -105, kF6 = -106,
    kF7 = -107, kF8 = -108, kF9 = -109, kF10 = -110, kF11 = -111, kF12 = -112,
};
// clang-format on

// Waits for a key and returns it. Doesn't wait for the other bytes of an escape sequence, because terminals
// send them together. If a sequence is unknown, rings the bell at the first byte that makes it so; later
// calls return the bytes after it as keys. If `Clear_MultiKey` is nonzero, only forgets the previous key, so
// that the next TAB or ESC isn't the second of a pair, and returns 0.
int GetChar(int Clear_MultiKey);
