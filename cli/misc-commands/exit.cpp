// EXIT and QUIT.
#include "cli/command/command.h"
#include "cli/misc-commands/misc_commands.h"

int do_exit(InputLineType* /*InputLine*/) {
    EndProcess(0, "\n");
}
