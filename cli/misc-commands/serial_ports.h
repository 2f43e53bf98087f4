// Reads and sets the embedded serial ports A and B, and the management processor's virtual serial port.
#pragma once

#include "cli/command/command.h"

struct EmbeddedPorts {
    const char* port[2];  // ports A and B: "COM1" to "COM4" or "disabled"; null if the number is invalid
};

// Reads the embedded ports. Returns false if they can't be read. Prints nothing.
bool ReadEmbeddedPorts(EmbeddedPorts& ports);

enum class VirtualPortRead { Done, Failed, UnknownState };

// Reads the virtual serial port of the management processor: "COM1" to "COM4" or "disabled". Prints nothing.
VirtualPortRead ReadVirtualPort(const char*& port);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_embedded_serial_port(InputLineType* InputLine);
int do_set_embedded_serial_port(InputLineType* InputLine);
int do_show_vsp(InputLineType* InputLine);
int do_set_virtual_serial_port(InputLineType* InputLine);
