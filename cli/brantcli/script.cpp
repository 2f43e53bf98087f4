#include "cli/brantcli/script.h"

#include <cstring>

#include "cli/parse/dispatcher.h"
#include "src/utils/text_writer.h"

int do_scripted_command(char* command) {
    int result = 1;
    char* const end = command + std::strlen(command);
    for (char* segment = command; segment < end;) {
        char* separator = std::strchr(segment, ';');
        if (separator != nullptr) *separator = '\0';

        InputLineType& line = CurrentCommandLine;
        ClearLine(&line);
        TextWriter(line.CmdLine, sizeof line.CmdLine).Text(segment);
        result = Command(&line, 1);

        segment = separator != nullptr ? separator + 1 : end;
    }
    return result;
}
