// A typed line: tokenizer, dispatcher and every command on a model's machine; completion and help.
#include <cstring>

#include "cli/brantcli/firmware.h"
#include "cli/brantcli/script.h"
#include "cli/brantcli/state.h"
#include "cli/generic_dtioctl/devices.h"
#include "cli/parse/command_table.h"
#include "cli/parse/command_tree.h"
#include "cli/parse/completion.h"
#include "cli/parse/dispatcher.h"
#include "cli/parse/help.h"
#include "cli/parse/keys.h"
#include "cli/pci/kelm.h"
#include "fuzz/target.h"
#include "tests/support/test_machine.h"
#include "tools/mkmachine/events.h"

namespace {

int Stay(InputLineType* /*InputLine*/) {
    return 0;
}

// The whole program up to its first command, but that it can't be left.
class Shell {
  public:
    Shell() : machine_("tr500k2") {
        setenv("BRANT_MACHINE", machine_.Directory().c_str(), 1);
        Require(CheckRom() && ReadFirmwareTables() && OpenDevices());
        CountEmbeddedNics();
        got_kelm = find_kelm();
        script_mode = 1;
        CreateCommands();
        for (const char* word : {"EXIT", "QUIT"}) FindChild(Cmds, word)->Function = Stay;
    }
    // What CLEAR HLOG took is there again for the next SHOW HLOG.
    void FillLog() { machine_.Write("cevt/hlog", log_); }

  private:
    TestMachine machine_;
    const std::string log_ = EventLog(8);
};

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static Shell shell;
    shell.FillLog();
    std::string commands = Input(data, size);
    do_scripted_command(commands.data());

    for (int (*const partly_typed)(char*) : {TabComplete, DoubleTabComplete, FindHelp}) {
        char line[kLineSize] = "";
        std::strncpy(line, Input(data, size).c_str(), sizeof line - 1);
        partly_typed(line);
        Require(std::memchr(line, '\0', sizeof line) != nullptr);
    }
    GetChar(1);
    return 0;
}
