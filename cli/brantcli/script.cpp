#include "cli/brantcli/script.h"

#include <algorithm>
#include <cstring>

#include "cli/command/command.h"
#include "cli/parse/dispatcher.h"
#include "src/utils/text.h"

int do_scripted_command(char* command) {
    int result = 1;
    char* const end = command + std::strlen(command);
    for (char* segment = command; segment < end;) {
        char* const separator = std::find(segment, end, ';');
        *separator = '\0';

        ClearLine(&CurrentCommandLine);
        TextWriter(CurrentCommandLine.CmdLine, sizeof CurrentCommandLine.CmdLine).Text(segment);
        result = Command(&CurrentCommandLine, 1);

        segment = separator + 1;
    }
    return result;
}

void RunPrompt() {
    for (;;) Command(&CurrentCommandLine, 0);
}
