#include "tests/support/test_machine.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

#include "tools/mkmachine/firmware.h"
#include "tools/mkmachine/models.h"

namespace {

// In memory where the system has such a place: a machine's changes are flushed to disk one by one.
std::string NewDirectory() {
    const std::filesystem::path memory = "/dev/shm";
    const bool has_memory = access(memory.c_str(), W_OK) == 0;
    std::string name = (has_memory ? memory : std::filesystem::temp_directory_path()) / "brant.XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("mkdtemp");
    std::filesystem::permissions(name, std::filesystem::perms(0755));
    return name;
}

std::string ReadWhole(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// Standard input and both outputs are files, so that no pipe can fill up and no reader is needed.
void Redirect(int descriptor, const std::string& path, int flags) {
    const int fd = open(path.c_str(), flags, 0666);
    if (fd < 0 || dup2(fd, descriptor) < 0) _exit(126);
    close(fd);
}

}  // namespace

std::string ProgramPath(const char* name) {
    return std::string(BRANT_BIN_DIR) + "/" + name;
}

void ExecProgram(const std::string& program, const std::vector<std::string>& arguments) {
    std::vector<char*> words = {const_cast<char*>(program.c_str())};
    static char emulator[] = BRANT_EMULATOR;  // empty: the machine runs the program by itself
    if (emulator[0] != '\0') words.insert(words.begin(), emulator);
    for (const std::string& word : arguments) words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    execvp(words[0], words.data());
    _exit(127);
}

RunResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                     const std::string& machine, const RunOptions& options) {
    const std::string files = NewDirectory();
    std::ofstream(files + "/in", std::ios::binary) << options.input;

    const pid_t child = fork();
    if (child == 0) {
        Redirect(0, files + "/in", O_RDONLY);
        Redirect(1, files + "/out", O_WRONLY | O_CREAT | O_APPEND);
        Redirect(2, files + "/err", O_WRONLY | O_CREAT | O_APPEND);
        setenv("BRANT_MACHINE", machine.c_str(), 1);
        for (const std::string& variable : options.environment) putenv(const_cast<char*>(variable.c_str()));
        if (!options.as_root && setuid(65534) != 0) _exit(126);
        ExecProgram(program, arguments);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child) throw std::runtime_error("can't run " + program);

    RunResult result = {ReadWhole(files + "/out"), ReadWhole(files + "/err"),
                        WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status)};
    std::filesystem::remove_all(files);
    return result;
}

TestMachine::TestMachine() : MachineBuilder(NewDirectory()) {
    AddRomSignature(*this);
    Variable("ZTHMAC", std::string(64, '\0'));
}

TestMachine::TestMachine(const std::string& model) : TestMachine() {
    MakeMachine(*FindModel(model), Directory());
}

TestMachine::~TestMachine() {
    std::filesystem::remove_all(Directory());
}

RunResult TestMachine::Script(const std::string& commands, const RunOptions& options) const {
    return RunProgram(ProgramPath("brantcli"), {"-s", commands}, Directory(), options);
}

RunResult TestMachine::Type(const std::string& input) const {
    RunOptions options;
    options.input = input;
    return RunProgram(ProgramPath("brantcli"), {}, Directory(), options);
}

std::string TestMachine::Read(const std::string& path) const {
    return ReadWhole(Directory() + "/" + path);
}

std::string TestMachine::TakeTrace(const std::string& beginning) {
    std::istringstream trace(Read("trace"));
    std::string taken;
    for (std::string line; std::getline(trace, line);) {
        if (line.compare(0, beginning.size(), beginning) == 0) taken += line + "\n";
    }
    StartTrace();
    return taken;
}
