// The embedded serial ports A and B, and the management processor's virtual serial port.
#pragma once

#include "cli/command/command.h"

struct EmbeddedPorts {
    const char* port[2];  // A and B: a number, or disabled; null: unknown
};
const char* ReadEmbeddedPorts(EmbeddedPorts& ports);

// Only with the management processor.
const char* ReadVirtualPort(const char*& port);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_embedded_serial_port(InputLineType* InputLine);
int do_set_embedded_serial_port(InputLineType* InputLine);
int do_show_vsp(InputLineType* InputLine);
int do_set_virtual_serial_port(InputLineType* InputLine);
