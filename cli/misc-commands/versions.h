// Reads the versions of the firmware's components. The handler of SHOW VERSIONS prints them.
#pragma once

#include "cli/command/command.h"
#include "include/rom_variables.h"

struct ComponentVersion {
    const char* name;
    VERSION baseline;  // version at the delivery of the server
    VERSION current;
};

struct ComponentVersions {
    bool known;  // false: the firmware has no version information, and all numbers are 0
    ComponentVersion component[7];
};

// Reads the versions. Returns false if they can't be read. Prints nothing.
bool ReadVersions(ComponentVersions& versions);

// The command handler. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_versions(InputLineType* InputLine);
