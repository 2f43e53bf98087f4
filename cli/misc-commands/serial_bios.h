// Reads and sets the serial port of the BIOS console, and its baud rate.
#pragma once

#include "cli/command/command.h"

struct BiosSerialPort {
    const char* port;  // null: the port is disabled
    const char* baud;  // "UNKNOWN" for a code that has no name
};

enum class BiosSerialPortRead { Done, BaudFailed, PortFailed };

// Reads the port and its baud rate. Prints nothing.
BiosSerialPortRead ReadBiosSerialPort(BiosSerialPort& shown);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_bios_serial_port(InputLineType* InputLine);
int do_set_bios_serial_port(InputLineType* InputLine);
