#include "cli/misc-commands/exit.h"

#include <cstdio>
#include <cstdlib>

#include "cli/command/output.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/smbios_old/tables.h"
#include "cli/terminal/history.h"
#include "cli/terminal/terminal.h"

int do_exit(InputLineType* /*InputLine*/) {
    EndProcess(0, "\n");
}

void EndProcess(int status, const char* last_output) {
    CloseDevices();
    RestoreTerminal();
    FreeHistory();
    DeinitSMBIOS();
    std::printf("%s", last_output);
    std::exit(FinalStatus(status));
}
