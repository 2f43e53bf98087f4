// Fuzzes a typed line: the tokenizer, the dispatcher and every command on a simulated machine, then
// completion and help.
//
// Input: one byte, then the line. The byte modulo 4 selects the machine, the byte divided by 4 the event log.
#include <cstring>
#include <memory>
#include <vector>

#include "cli/brantcli/command_table.h"
#include "cli/brantcli/script.h"
#include "cli/command/state.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/parse/command_tree.h"
#include "cli/parse/completion.h"
#include "cli/parse/help.h"
#include "cli/pci/kelm.h"
#include "cli/start-up/start_up.h"
#include "cli/terminal/keys.h"
#include "fuzz/target.h"
#include "mkmachine/events.h"
#include "mkmachine/models.h"
#include "tests/support/program_state.h"
#include "tests/support/test_machine.h"

namespace {

// The handler that replaces that of EXIT and QUIT, which would end the fuzzer.
int Continue(InputLineType* /*InputLine*/) {
    return 0;
}

// The program's state on one machine. The program is started only once, because start-up takes ten times as
// long as most lines.
class Program {
  public:
    explicit Program(const Model& model) : machine_(model.name) {
        static const std::string before = StateNow();
        ReturnToState(before);
        script_mode = 1;
        setenv("BRANT_MACHINE", machine_.Directory().c_str(), 1);
        Require(CheckRom() && ReadFirmwareTables() && OpenDevices());
        CountEmbeddedNics();
        got_kelm = find_kelm();
        started_ = StateNow();
    }
    ~Program() {
        ReturnToState(started_);
        ResetState();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    // Prepares the program and the machine for a line: restores the state after start-up and fills the log
    // with `events`.
    TestMachine& Prepare(const std::string& events) {
        setenv("BRANT_MACHINE", machine_.Directory().c_str(), 1);
        ReturnToState(started_);
        machine_.Write("cevt/hlog", events);
        return machine_;
    }

  private:
    TestMachine machine_;
    std::string started_;
};

// Returns a log that is longer than one screen: eight of the sample events, starting at number `number` * 8.
std::string SomeEvents(unsigned number) {
    static const SampleEvents events = EveryEvent();
    std::string log;
    for (unsigned i = number * 8; i < number * 8 + 8; ++i) {
        const SampleEvent& event = events[i % events.size()];
        log += EventEntry(EventHeader(i + 1, event.severity, event.event_class, event.code), event.payload);
    }
    return log;
}

// Checks that every word lies in ParseLine. The sanitizers don't detect a pointer to another member of the
// record.
void CheckWords(const InputLineType& line) {
    for (int i = 0; i < line.NumWords; ++i) {
        Require(line.Words[i] >= line.ParseLine && line.Words[i] < line.ParseLine + sizeof line.ParseLine);
    }
}

// Returns a program for each model, and one for firmware that stores the NIC settings only in the legacy
// variable.
std::vector<std::unique_ptr<Program>> StartPrograms() {
    CreateCommands();
    for (const char* word : {"EXIT", "QUIT"}) FindChild(Cmds, word)->Function = Continue;
    std::vector<std::unique_ptr<Program>> programs;
    for (const Model& model : Models()) programs.push_back(std::make_unique<Program>(model));
    programs.push_back(std::make_unique<Program>(Models().front()));
    programs.back()->Prepare("").Remove(std::string("crom/") + kNicBootVariable);
    return programs;
}

}  // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const auto programs = StartPrograms();
    std::string input = Input(data, size);
    const unsigned picked = Number(Take(input, 1));
    programs[picked % programs.size()]->Prepare(SomeEvents(picked / 4));
    std::string commands = input;
    do_scripted_command(commands.data());
    CheckWords(CurrentCommandLine);

    for (int (*const partly_typed)(char*) : {TabComplete, DoubleTabComplete, FindHelp}) {
        char line[kLineSize] = "";
        std::strncpy(line, input.c_str(), sizeof line - 1);
        partly_typed(line);
        Require(std::memchr(line, '\0', sizeof line) != nullptr);
    }
    GetChar(1);
    return 0;
}
