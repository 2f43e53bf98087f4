// The main program: checks the server, starts the modules, then runs a script or the prompt.

#include <unistd.h>

#include <cstdio>

#include "cli/brantcli/command_table.h"
#include "cli/brantcli/script.h"
#include "cli/command/output.h"
#include "cli/command/state.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/misc-commands/exit.h"
#include "cli/parse/editor.h"
#include "cli/pci/kelm.h"
#include "cli/smbios_old/tables.h"
#include "cli/start-up/start_up.h"
#include "cli/terminal/history.h"
#include "cli/terminal/terminal.h"
#include "src/utils/standard_streams.h"

namespace {

constexpr char kDashes[] = "--------------------------------------------------------------------------";
static_assert(sizeof kDashes - 1 == 74, "width of the banner");

// Standard input is unbuffered, because the line editor reads descriptor 0 directly.
void PrepareStreams() {
    IgnoreWriteSignals();
    std::setvbuf(stdin, nullptr, _IONBF, 0);
    MakeOutputBlocking();
}

void show_usage() {
    std::printf("\nUSAGE: brantcli [-s  \"<command1>;<command2>;...<commandN>\"]\n");
}

// Returns whether the next argument is an option. The first argument that isn't one ends the options.
// getopt() must not be called there, because on some systems it skips and reorders such arguments.
bool AtOption(int argc, char** argv) {
    return optind < argc && argv[optind][0] == '-' && argv[optind][1] != '\0';
}

// Sets script_mode. Returns false if an option is unknown or lacks its value; getopt() prints a message.
bool ReadOptions(int argc, char** argv) {
    while (AtOption(argc, argv)) {
        const int option = getopt(argc, argv, "sS:");
        if (option == '?') return false;
        if (option == -1) break;  // the argument "--", which ends the options
        script_mode = 1;
    }
    return true;
}

void PrintBanner() {
    std::printf("VX management CLI for Solaris (v1.1)");
    std::printf("\n%s", kDashes);
    std::printf("\nNOTE: Some brantcli commands may not be supported on all Corvex servers.");
    std::printf("\n%s\n", kDashes);
}

int RunScript(char* commands) {
    if (commands == nullptr) {
        std::printf("ERROR: At least one command must be specified in script mode.");
        return 1;
    }
    return do_scripted_command(commands);
}

// Runs the start-up steps. If the program can't run on this server, prints a message, frees everything and
// returns false.
bool StartUp() {
    if (!CheckRom() || !ReadFirmwareTables()) return false;
    if (script_mode == 0) PrintBanner();
    if (!OpenDevices()) {
        DeinitSMBIOS();
        return false;
    }
    CountEmbeddedNics();

    get_terminfo();
    if (!AllocateHistory()) {
        std::printf("Failed to allocate memory for command history.");
        do_exit(nullptr);  // ends with status 0, like the command EXIT
    }
    got_kelm = find_kelm();
    CreateCommands();
    return true;
}

// Prints the newline that ends the output on every path out of main(). Returns FinalStatus(status).
int CommonEnd(int status) {
    std::printf("\n");
    return FinalStatus(status);
}

// Restores the terminal settings, frees the history, closes the devices in reverse order and frees the SMBIOS
// copy. Returns CommonEnd(status).
int EndScript(int status) {
    RestoreTerminal();  // before closing the devices, which may hang
    FreeHistory();
    CloseDevicesLastFirst();
    DeinitSMBIOS();
    return CommonEnd(status);
}

}  // namespace

int main(int argc, char** argv) {
    if (!KeepStandardDescriptors()) return 1;
    PrepareStreams();
    if (!CheckUser()) return CommonEnd(1);
    if (!ReadOptions(argc, argv)) {
        show_usage();
        return 0;  // the status is 0 even if the output can't be written
    }
    if (!StartUp()) return CommonEnd(1);
    if (script_mode == 0) RunPrompt();

    // The commands are always the second argument, because -s is an option without a value.
    return EndScript(RunScript(argc > 2 ? argv[2] : nullptr));
}
