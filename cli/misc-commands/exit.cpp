// EXIT and QUIT.
#include <cstdio>
#include <cstdlib>

#include "cli/command/exit.h"
#include "cli/misc-commands/misc_commands.h"

int do_exit(InputLineType* /*InputLine*/) {
    ReleaseEverything();
    std::printf("\n");
    std::exit(FinalStatus(0));
}
