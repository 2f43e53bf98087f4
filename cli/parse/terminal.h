// Standard input as a keyboard: character mode for the length of the run, bytes one by one, the bell.
#pragma once

// Switches descriptor 0 to character mode: no echo, no line editing and no signals by keys. Whatever ends or
// stops the process from then on gives the terminal back first. What is no terminal, or another's while the
// process runs in the background, is left alone.
void get_terminfo();

// Gives the terminal back as get_terminfo found it. Does nothing when there was none, or the second time.
void RestoreTerminal();

// One byte of descriptor 0, as a signed char. wait: nonzero to wait for it; 0 to take a byte only when it is
// there already or comes within 10 microseconds. -1 when there is none (0xFF reads the same).
char ReadChar(int wait);

// Why the last ReadChar gave none: the input has ended, or a read will never work again; or the process was
// stopped meanwhile and has its terminal again, so that the screen may show other things.
bool InputHasEnded();
bool WasContinued();

// Takes what belongs to a line that isn't wanted: what there is up to and including the next Enter. On a
// terminal only what has been typed ahead, from anything else also what is yet to come.
void DropRestOfLine();

// Writes the bell at once.
void RingBell();
