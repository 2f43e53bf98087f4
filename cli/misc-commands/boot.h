// Reads and sets the standard boot order (the IPL list) and the one-time boot device.
#pragma once

#include "cli/command/command.h"
#include "include/rom_variables.h"

struct BootOrder {
    int count;  // number of installed boot devices
    const char* device[sizeof ZTHIPLSTRUCT::ucPriority];
};

enum class BootOrderRead { Done, CountFailed, ListFailed };

// Reads the names of the boot devices, in boot order. Prints nothing.
BootOrderRead ReadBootOrder(BootOrder& order);

// Reads the name of the one-time boot device, or "Not set". Returns false if it can't be read. Prints
// nothing.
bool ReadBootOnce(const char*& device);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_boot(InputLineType* InputLine);
int do_set_boot_once(InputLineType* InputLine);
int do_set_boot_first(InputLineType* InputLine);
int do_show_ipl(InputLineType* InputLine);
