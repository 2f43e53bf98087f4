// The terminal: character mode for the length of the run, single bytes from the keyboard, and the bell.
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
