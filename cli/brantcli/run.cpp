// How commands are run, and how a run ends.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "cli/brantcli/brantcli.h"
#include "cli/command/command.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/parse/command_line.h"
#include "cli/parse/editor.h"
#include "cli/parse/keyboard.h"
#include "cli/smbios_old/smbios.h"
#include "src/utils/standard_streams.h"
#include "src/utils/text.h"

int do_scripted_command(char* command) {
    int result = 1;
    char* const end = command + std::strlen(command);
    for (char* segment = command; segment < end;) {
        char* const separator = std::find(segment, end, ';');
        *separator = '\0';

        InputLineType& line = CurrentCommandLine;
        ClearLine(&line);
        TextWriter(line.CmdLine, sizeof line.CmdLine).Text(segment);
        result = Command(&line, 1);

        segment = separator + 1;
    }
    return result;
}

void RunPrompt() {
    for (;;) Command(&CurrentCommandLine, 0);
}

bool OutputIsWritten() {
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

int FinalStatus(int status) {
    return FinishOutput() || status != 0 ? status : 1;
}

int EndScript(int status) {
    RestoreTerminal();  // first, so that a device that hangs does not keep the terminal in character mode
    FreeHistory();
    CloseDevicesLastFirst();
    DeinitSMBIOS();
    return CommonEnd(status);
}

int CommonEnd(int status) {
    std::printf("\n");
    return FinalStatus(status);
}

void EndProcess(int status, const char* last_output) {
    CloseDevices();
    RestoreTerminal();
    FreeHistory();
    DeinitSMBIOS();
    std::printf("%s", last_output);
    std::exit(FinalStatus(status));
}
