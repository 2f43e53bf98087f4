#include "cli/command/exit.h"

#include <cstdio>
#include <cstdlib>

#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/parse/history.h"
#include "cli/parse/terminal.h"
#include "cli/smbios_old/smbios.h"

bool OutputIsWritten() {
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

int FinalStatus(int status) {
    return OutputIsWritten() || status != 0 ? status : 1;
}

void ReleaseEverything() {
    CloseDevices();
    RestoreTerminal();
    FreeHistory();
    DeinitSMBIOS();
}

void EndProcess(int status) {
    ReleaseEverything();
    std::exit(FinalStatus(status));
}
