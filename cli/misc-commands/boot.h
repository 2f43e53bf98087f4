// The standard boot order (the IPL list) and the one-time boot device.
#pragma once

#include "cli/command/command.h"
#include "include/rom_variables.h"

struct BootOrder {
    int count;  // of the devices installed
    const char* device[sizeof ZTHIPLSTRUCT::ucPriority];
};
const char* ReadBootOrder(BootOrder& order);
const char* ReadBootOnce(const char*& device);  // "Not set" for none

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_boot(InputLineType* InputLine);
int do_set_boot_once(InputLineType* InputLine);
int do_set_boot_first(InputLineType* InputLine);
int do_show_ipl(InputLineType* InputLine);
