#include "cli/command/exit.h"

#include <cstdio>
#include <cstdlib>

#include "cli/generic_dtioctl/devices.h"
#include "cli/parse/history.h"
#include "cli/parse/terminal.h"
#include "cli/smbios_old/smbios.h"

int FinalStatus(int status) {
    const bool written = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    return status == 0 && !written ? 1 : status;
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
