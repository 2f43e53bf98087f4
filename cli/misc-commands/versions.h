// The versions of the firmware's components.
#pragma once

#include "cli/command/command.h"
#include "include/rom_variables.h"

struct ComponentVersion {
    const char* name;
    VERSION baseline;  // that the server came with
    VERSION current;
};
struct ComponentVersions {
    bool told;  // false: all numbers are 0
    ComponentVersion component[7];
};
const char* ReadVersions(ComponentVersions& versions);

// The command handler. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_versions(InputLineType* InputLine);
