#include "tests/misc-commands/rom_shell.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "cli/brantcli/command_table.h"
#include "cli/command/state.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/parse/command_tree.h"
#include "cli/parse/dispatcher.h"
#include "platform/request.h"

std::vector<std::string> Items(const std::string& list) {
    std::vector<std::string> items;
    for (size_t start = 0; start < list.size();) {
        const size_t end = std::min(list.find("; ", start), list.size());
        items.push_back(list.substr(start, end - start));
        start = end + 2;
    }
    return items;
}

namespace {

std::string FromHex(const std::string& digits) {
    std::string bytes;
    for (size_t i = 0; i + 1 < digits.size(); i += 2) {
        bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
    }
    return bytes;
}

}  // namespace

void SetFacts(TestMachine& machine, const char* facts) {
    for (const std::string& fact : Items(facts)) {
        const size_t equals = fact.find('=');
        if (fact[0] == '-') {
            machine.Remove("crom/" + fact.substr(1));
        } else if (fact[0] == '!') {
            machine.Fault(fact.substr(1));
        } else {
            machine.Variable(fact.substr(0, equals).c_str(), FromHex(fact.substr(equals + 1)));
        }
    }
}

RomShell::RomShell() {
    script_mode = 1;
    machine.StartTrace();
    setenv("BRANT_MACHINE", machine.Directory().c_str(), 1);
    crom_fd = vxOpenRequest(crom_path, kReadWrite);
    if (Cmds == nullptr) CreateCommands();
}

std::string RomShell::Run(const std::string& line) {
    std::memset(&CurrentCommandLine, 0, sizeof CurrentCommandLine);
    line.copy(CurrentCommandLine.CmdLine, kLineSize - 1);
    testing::internal::CaptureStdout();
    status = Command(&CurrentCommandLine, 1);
    const std::string output = testing::internal::GetCapturedStdout();
    return output.substr(0, output.size() - 1);
}
