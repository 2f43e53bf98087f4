// The terminal: switches to character mode, reads single bytes, rings the bell.
#pragma once

// Switches descriptor 0 to character mode: no echo, no line editing, and keys send no signals. Installs
// signal handlers that restore the settings before a signal ends or stops the process, and that switch to
// character mode again when the process continues. If descriptor 0 isn't a terminal, changes no settings. A
// background process changes them only when it gets to the foreground.
void get_terminfo();

// Restores the settings that were saved before the switch to character mode. Does nothing if there are none.
void RestoreTerminal();

enum class ReadResult {
    Byte,
    None,       // no byte arrived within the wait
    Ended,      // the input has ended, or can't be read
    Continued,  // the process was stopped and is in the foreground again, so the screen may have changed
};

// Reads a byte from descriptor 0. `wait`: nonzero to wait for a byte, 0 to wait at most 10 microseconds.
ReadResult ReadByte(int wait, char& byte);

// Reads a byte like ReadByte(). Returns the byte as a signed char, or -1 if there is none. A byte 0xFF is
// also returned as -1.
char ReadChar(int wait);

// Waits until descriptor 0 can be read, or until a signal handler has run.
void WaitForInput();

// Discards the input up to and including the next Enter. On a terminal, discards only what has already been
// typed; otherwise waits for the rest.
void DropRestOfLine();

// Writes the bell character and flushes the output.
void RingBell();
