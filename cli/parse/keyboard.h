// Standard input as a keyboard: character mode for the length of the run, single bytes, the keys that they
// stand for, and the bell.
#pragma once

// Switches descriptor 0 to character mode: no echo, no line editing and no signals by keys. From then
// on the terminal is given back before a signal ends or stops the process. If descriptor 0 isn't a terminal,
// or the process runs in the background, the settings stay as they are.
void get_terminfo();

// Gives the terminal back as get_terminfo found it. Does nothing when there was none, or the second time.
void RestoreTerminal();

// One byte of descriptor 0, as a signed char. wait: nonzero to wait for it; 0 to take a byte only when it is
// there already or comes within 10 microseconds. -1 when there is none (0xFF reads the same).
char ReadChar(int wait);

// Why the last ReadChar returned no byte: the input has ended, or can't be read any more; or the process was
// stopped and has its terminal again, which may show other things by now.
bool InputHasEnded();
bool WasContinued();

// Reads the rest of a line that isn't wanted, up to and including the next Enter. From a terminal it takes
// only what has been typed already; from anything else it waits for the rest.
void DropRestOfLine();

// Writes the bell at once.
void RingBell();

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
