#include "tests/support/every_command.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "cli/brantcli/command_table.h"
#include "cli/parse/command_tree.h"
#include "mkmachine/events.h"
#include "mkmachine/models.h"

const std::map<std::string, std::string> kArguments = {
    {"DISABLE ISCSI", "nic1"},
    {"DISABLE PXE", "nic1"},
    {"ENABLE ISCSI", "nic2"},
    {"ENABLE PXE", "nic2"},
    {"SET ASR", "15"},
    {"SET ASSET", "Rack7"},
    {"SET BOOT FIRST", "cdrom"},
    {"SET BOOT ONCE", "pxe"},
    {"SET F1", "delayed"},
    {"SET NAME", "web7"},
    {"SET SERIAL BIOS", "com2 115200"},
    {"SET SERIAL EMBEDDED PORTA", "com3"},
    {"SET SERIAL EMBEDDED PORTB", "com3"},
    {"SET SERIAL VIRTUAL", "com2"},
};

namespace {

void AddCommandsBelow(const CmdType* parent, const std::string& path, std::vector<std::string>& commands) {
    for (const CmdType* node = parent->Sub; node != nullptr; node = node->Next) {
        const std::string command = path + node->Token;
        const auto arguments = kArguments.find(command);
        commands.push_back(arguments == kArguments.end() ? command : command + " " + arguments->second);
        AddCommandsBelow(node, command + " ", commands);
    }
}

}  // namespace

std::vector<std::string> Commands() {
    if (Cmds == nullptr) CreateCommands();
    std::vector<std::string> commands;
    AddCommandsBelow(Cmds, "", commands);
    return commands;
}

std::vector<std::string> ModelNames() {
    std::vector<std::string> names;
    for (const Model& model : Models()) names.emplace_back(model.name);
    return names;
}

bool MayChangePartially(const std::string& command) {
    const char* const kCommands[] = {"SET SERIAL BIOS", "ENABLE PXE", "DISABLE PXE"};
    return std::any_of(std::begin(kCommands), std::end(kCommands),
                       [&](const char* beginning) { return command.rfind(beginning, 0) == 0; });
}

RestorableMachine::RestorableMachine(const std::string& model) : TestMachine(model) {
    Write("cevt/hlog", EventLog(3));
    original_ = State();
}

Files RestorableMachine::State() const {
    Files files;
    for (const char* device : {"casr", "cdt", "cevt", "crom"}) {
        for (const auto& entry : std::filesystem::directory_iterator(Directory() + "/" + device)) {
            const std::string path = device + ("/" + entry.path().filename().string());
            files[path] = Read(path);
        }
    }
    return files;
}

Files RestorableMachine::Restore() {
    Files before = State();
    for (const auto& [path, bytes] : before) {
        if (original_.count(path) == 0) Remove(path);
    }
    for (const auto& [path, bytes] : original_) {
        const auto same = before.find(path);
        if (same == before.end() || same->second != bytes) Write(path, bytes);
    }
    return before;
}

std::vector<std::string> RestorableMachine::TakeRequests() {
    std::vector<std::string> requests;
    std::istringstream trace(TakeTrace());
    for (std::string line; std::getline(trace, line);) {
        const bool is_request =
            line.rfind('c', 0) == 0 && line.rfind("close ", 0) != 0;  // to casr, cdt, cevt or crom
        if (is_request) requests.push_back(line);
    }
    return requests;
}
