// mkmachine [--model MODEL] [--events N] DIR: creates a simulated machine in a new or empty directory.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>

#include "mkmachine/models.h"
#include "src/utils/descriptor.h"
#include "src/utils/exceptions.h"
#include "src/utils/program_arguments.h"
#include "src/utils/standard_streams.h"

namespace {

constexpr char kProgram[] = "mkmachine";

struct Options {
    const Model* model = &Models().front();
    std::optional<size_t> events;  // entries of the event log; default: one for each sample event
    std::string directory;
    std::string reply;  // reply to --help or --version
};

// Parses a decimal number. Returns nothing if `word` isn't a number or has more than nine digits, because the
// number of an entry has 32 bits.
std::optional<size_t> ReadCount(const std::string& word) {
    constexpr size_t kMostDigits = 9;
    if (word.empty() || word.size() > kMostDigits) return {};
    if (word.find_first_not_of("0123456789") != word.npos) return {};
    return std::stoul(word);
}

std::string Usage() {
    std::string names;
    for (const Model& model : Models()) names += (names.empty() ? "" : "|") + std::string(model.name);
    std::string usage = "usage: mkmachine [--model %s] [--events N] DIR\n";
    return usage.replace(usage.find("%s"), 2, names);
}

std::string Help() {
    return Usage() +
           "Creates a simulated machine in DIR, a new or empty directory.\n\n"
           "  --model MODEL  the model of the simulated server\n"
           "  --events N     the number of entries in its event log\n"
           "  --help         print this text\n"
           "  --version      print the version\n\n"
           "See mkmachine(1).\n";
}

// Parses the command line, up to the first --help or --version. Returns false if it is invalid.
bool ReadOptions(int argc, char** argv, Options& options) {
    ProgramArguments arguments(argc, argv);
    std::string value;
    while (arguments.Next()) {
        if (arguments.AsksForReply(kProgram, Help(), options.reply)) return true;
        if (arguments.HasValue("--model", value)) {
            options.model = FindModel(value);
            if (options.model == nullptr) return false;
        } else if (arguments.HasValue("--events", value)) {
            options.events = ReadCount(value);
            if (!options.events) return false;
        } else if (arguments.IsOperand() && options.directory.empty()) {
            options.directory = arguments.Text();
        } else {
            return false;
        }
    }
    return !options.directory.empty();
}

// Creates the directory `path`, if it doesn't exist, and makes it the working directory. The files are
// written relative to the working directory, so that a user who renames a parent directory can't redirect the
// writes. Throws if another user could write to the directory.
void EnterDirectory(const std::string& path) {
    const std::filesystem::path parent = std::filesystem::path(path).parent_path();
    if (!parent.empty()) std::filesystem::create_directories(parent);
    const bool made = mkdir(path.c_str(), 0700) == 0 || errno == EEXIST;
    const Descriptor directory(made ? open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)
                                    : -1);
    struct stat status;
    if (!directory || fstat(directory.Get(), &status) != 0) {
        throw std::system_error(errno, std::generic_category(), path);
    }
    if (status.st_uid != geteuid() || (status.st_mode & 022) != 0) {
        throw std::runtime_error(path + ": other users can write to this directory");
    }
    if (fchdir(directory.Get()) != 0) throw std::system_error(errno, std::generic_category(), path);
}

}  // namespace

int main(int argc, char** argv) try {
    if (!KeepStandardDescriptors()) return 1;
    IgnoreWriteSignals();
    Options options;
    if (!ReadOptions(argc, argv, options)) {
        std::fputs(Usage().c_str(), stderr);
        return 2;
    }
    if (!options.reply.empty()) return PrintReply(STDOUT_FILENO, kProgram, options.reply);
    umask(077);  // only the owner can open the directories and, with them, lock the devices
    EnterDirectory(options.directory);
    if (!std::filesystem::is_empty(".")) {
        std::fprintf(stderr, "mkmachine: %s exists and isn't empty\n", options.directory.c_str());
        return 1;
    }
    MakeMachine(*options.model, ".", options.events);
    return 0;
} catch (...) {
    return ReportException(kProgram);
}
