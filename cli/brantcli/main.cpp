// The program: checks and start-up, then a script or the prompt.

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
#include "cli/smbios_old/smbios.h"
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

// Returns whether the next argument is an option. The options end at the first argument that isn't one; there
// getopt() must not be called, because some systems' getopt() skips and reorders such arguments.
bool AtOption(int argc, char** argv) {
    return optind < argc && argv[optind][0] == '-' && argv[optind][1] != '\0';
}

// Sets script_mode. Returns false if an option is unknown or lacks its value; getopt() prints a message.
bool ReadOptions(int argc, char** argv) {
    while (AtOption(argc, argv)) {
        const int option = getopt(argc, argv, "sS:");
        if (option == '?') return false;
        if (option == -1) break;  // "--"
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

// Runs the start-up steps. Returns false if the program can't run on this server, after printing a message
// and releasing everything.
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
        do_exit(nullptr);  // status 0, as after EXIT
    }
    got_kelm = find_kelm();
    CreateCommands();
    return true;
}

// Prints the newline that ends the output whenever main() returns. Returns FinalStatus(status).
int CommonEnd(int status) {
    std::printf("\n");
    return FinalStatus(status);
}

// Restores the terminal settings, frees the history, closes the devices in reverse order and frees the SMBIOS
// copy. Returns CommonEnd(status).
int EndScript(int status) {
    RestoreTerminal();  // before the devices, because closing one may hang
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
        return 0;  // even if the output is lost
    }
    if (!StartUp()) return CommonEnd(1);
    if (script_mode == 0) RunPrompt();

    // The option -s has no value: the commands are always the second argument.
    return EndScript(RunScript(argc > 2 ? argv[2] : nullptr));
}
