// The versions of the firmware's components.
#pragma once

#include "cli/command/command.h"
#include "include/rom_variables.h"

struct ComponentVersion {
    const char* name;
    VERSION baseline;  // the version that the server was delivered with
    VERSION current;
};

struct ComponentVersions {
    bool known;  // false: the firmware has no version information; all numbers are 0
    ComponentVersion component[7];
};

// Returns false if the versions can't be read. Prints nothing.
bool ReadVersions(ComponentVersions& versions);

// The command handler. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_versions(InputLineType* InputLine);
