// EXIT and QUIT.
#include <cstdio>

#include "cli/command/command.h"
#include "cli/misc-commands/misc_commands.h"

int do_exit(InputLineType* /*InputLine*/) {
    std::printf("\n");
    EndProcess(0);
}
