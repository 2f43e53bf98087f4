#include "tests/support/test_machine.h"

#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

#include "mkmachine/models.h"

namespace {

// Catches the signals that the caller of the tests ignores, as nohup does: a program that is started inherits
// ignored signals, but not caught ones.
[[maybe_unused]] const bool has_signals = [] {
    for (const int number : {SIGHUP, SIGINT, SIGQUIT, SIGTERM}) {
        if (std::signal(number, SIG_DFL) == SIG_IGN) std::signal(number, [](int) {});
    }
    return true;
}();

// Creates a temporary directory, in memory if possible, because each change of a machine is synced to disk.
std::string NewDirectory() {
    const std::filesystem::path memory = "/dev/shm";
    const bool has_memory = access(memory.c_str(), W_OK) == 0;
    std::string name = (has_memory ? memory : std::filesystem::temp_directory_path()) / "brant.";
    name += std::string(6, 'X');  // mkdtemp replaces these characters
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("mkdtemp");
    std::filesystem::permissions(name, std::filesystem::perms(0755));
    return name;
}

std::string ReadWhole(const std::string& path) {
    std::ifstream file;
    // Without a buffer, because allocating 8 KiB for each of thousands of small files takes time.
    file.rdbuf()->pubsetbuf(nullptr, 0);
    file.open(path, std::ios::binary);
    std::string bytes;
    char chunk[4096];
    while (file.read(chunk, sizeof chunk), file.gcount() > 0) {
        bytes.append(chunk, static_cast<size_t>(file.gcount()));
    }
    return bytes;
}

// A file in memory, for a standard stream of a program. Unlike a pipe, it can't fill up and doesn't need a
// reader.
class MemoryFile {
  public:
    explicit MemoryFile(const std::string& bytes = {}) : fd_(memfd_create("", MFD_CLOEXEC)) {
        if (pwrite(fd_, bytes.data(), bytes.size(), 0) < 0) throw std::runtime_error("memfd");
    }
    ~MemoryFile() { close(fd_); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    int Descriptor() const { return fd_; }
    std::string Read() const { return ReadWhole("/proc/self/fd/" + std::to_string(fd_)); }

  private:
    int fd_;
};

// Returns a command line. If the built programs need an emulator, the line begins with it.
std::vector<std::string> Words(const std::string& program, const std::vector<std::string>& arguments) {
    std::vector<std::string> words = {BRANT_EMULATOR, program};
    if (words[0].empty() || program.rfind(BRANT_BIN_DIR, 0) != 0) words.erase(words.begin());
    words.insert(words.end(), arguments.begin(), arguments.end());
    return words;
}

// Adds the environment variables of this process, except those whose names are already in `environment`: if a
// name occurs twice, some programs use the first value, others the last.
void AddOwnVariables(std::vector<std::string>& environment) {
    std::set<std::string> names;
    for (const std::string& variable : environment) names.insert(variable.substr(0, variable.find('=')));
    for (char** variable = environ; *variable != nullptr; ++variable) {
        const std::string own = *variable;
        if (names.count(own.substr(0, own.find('='))) == 0) environment.push_back(own);
    }
}

// Returns pointers to the strings, followed by a null pointer, for exec(). They are valid as long as `texts`
// exists.
std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

}  // namespace

bool Emulated() {
    return sizeof BRANT_EMULATOR > 1;
}

std::string Hexadecimal(const std::string& bytes) {
    std::string text;
    for (const char byte : bytes) {
        for (const int nibble : {byte >> 4 & 15, byte & 15}) text += "0123456789abcdef"[nibble];
    }
    return text;
}

std::string ProgramPath(const char* name) {
    return std::string(BRANT_BIN_DIR) + "/" + name;
}

std::string InShell(const char* name) {
    return BRANT_EMULATOR " '" + ProgramPath(name) + "'";
}

void ExecProgram(const std::string& program, const std::vector<std::string>& arguments) {
    std::vector<std::string> words = Words(program, arguments);
    execvp(words[0].c_str(), Pointers(words).data());
    _exit(127);
}

RunResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                     const std::string& machine, const RunOptions& options) {
    std::vector<std::string> words = Words(program, arguments);
    if (!options.as_root) words.insert(words.begin(), {"setpriv", "--reuid=65534"});
    std::vector<std::string> environment = options.environment;
    environment.push_back("BRANT_MACHINE=" + machine);
    if (!options.detect_leaks) environment.push_back("ASAN_OPTIONS=detect_leaks=0");
    AddOwnVariables(environment);

    const MemoryFile input(options.input), output, errors;
    posix_spawn_file_actions_t streams;
    posix_spawn_file_actions_init(&streams);
    posix_spawn_file_actions_adddup2(&streams, input.Descriptor(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&streams, output.Descriptor(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&streams, errors.Descriptor(), STDERR_FILENO);
    pid_t child = -1;
    const int error = posix_spawnp(&child, words[0].c_str(), &streams, nullptr, Pointers(words).data(),
                                   Pointers(environment).data());
    posix_spawn_file_actions_destroy(&streams);

    int status = 0;
    if (error != 0 || waitpid(child, &status, 0) != child) throw std::runtime_error("can't run " + program);
    return {output.Read(), errors.Read(), WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status)};
}

TestMachine::TestMachine() : MachineBuilder(NewDirectory()) {
    AddRomSignature(*this);
    Variable("ZTHMAC", std::string(64, '\0'));
}

TestMachine::TestMachine(const std::string& model) : MachineBuilder(NewDirectory()) {
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
    options.detect_leaks = true;
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
