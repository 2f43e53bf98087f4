// The program: start-up checks, then the commands of the command line or of the keyboard.

#include <unistd.h>

#include <csignal>
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
static_assert(sizeof kDashes - 1 == 74, "the banner's width");

// A write to a closed pipe must fail and be noticed, not end the process; and stdio must not read ahead,
// because the line editor reads descriptor 0 itself.
void PrepareStreams() {
    std::signal(SIGPIPE, SIG_IGN);
    std::setvbuf(stdin, nullptr, _IONBF, 0);
    MakeOutputBlocking();
}

void show_usage() {
    std::printf("\nUSAGE: brantcli [-s  \"<command1>;<command2>;...<commandN>\"]\n");
}

// The first word that is no option ends the options. Some systems' getopt would go on behind it, and move the
// words: so it isn't called there.
bool AtOption(int argc, char** argv) {
    return optind < argc && argv[optind][0] == '-' && argv[optind][1] != '\0';
}

// False for an option that isn't known, or one that lacks its value.
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

// False, with a message and nothing left open, when the program can't run here.
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
        do_exit(nullptr);  // ends the process with status 0, as EXIT does
    }
    got_kelm = find_kelm();
    CreateCommands();
    return true;
}

// Prints the newline that ends every run of main. Returns FinalStatus(status).
int CommonEnd(int status) {
    std::printf("\n");
    return FinalStatus(status);
}

// Ends a script: restores the terminal settings, frees the history, closes the devices, the one opened last
// first, and frees the SMBIOS copy. Returns CommonEnd(status).
int EndScript(int status) {
    RestoreTerminal();  // first, so that a device that hangs does not keep the terminal in character mode
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
        return 0;  // even where nobody can read it
    }
    if (!StartUp()) return CommonEnd(1);
    if (script_mode == 0) RunPrompt();

    // -s is an option without a value: the commands are the second argument, whatever the first.
    return EndScript(RunScript(argc > 2 ? argv[2] : nullptr));
}
