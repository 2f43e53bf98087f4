// mkmachine [--model MODEL] [--events N] DIR: creates a simulated machine in a new or empty directory.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>

#include "mkmachine/models.h"
#include "src/files/descriptor.h"
#include "src/utils/standard_streams.h"

namespace {

struct Options {
    const Model* model = &Models().front();
    std::optional<size_t> events;  // entries of the event log; default: one for each sample event
    std::string directory;
};

// Parses a decimal number. Returns nothing if `word` isn't a number or has more than nine digits, because the
// number of an entry has 32 bits.
std::optional<size_t> ReadCount(const std::string& word) {
    constexpr size_t kMostDigits = 9;
    if (word.empty() || word.size() > kMostDigits) return {};
    if (word.find_first_not_of("0123456789") != word.npos) return {};
    return std::stoul(word);
}

// Parses the command line. Returns false if it is invalid.
bool ReadOptions(int argc, char** argv, Options& options) {
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--model" && i + 1 < argc) {
            options.model = FindModel(argv[++i]);
            if (options.model == nullptr) return false;
        } else if (word == "--events" && i + 1 < argc) {
            options.events = ReadCount(argv[++i]);
            if (!options.events) return false;
        } else if (word.empty() || word[0] == '-' || !options.directory.empty()) {
            return false;
        } else {
            options.directory = word;
        }
    }
    return !options.directory.empty();
}

void PrintUsage() {
    std::string names;
    for (const Model& model : Models()) names += (names.empty() ? "" : "|") + std::string(model.name);
    std::fprintf(stderr, "usage: mkmachine [--model %s] [--events N] DIR\n", names.c_str());
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
        PrintUsage();
        return 2;
    }
    umask(077);  // only the owner can open the directories and, with them, lock the devices
    EnterDirectory(options.directory);
    if (!std::filesystem::is_empty(".")) {
        std::fprintf(stderr, "mkmachine: %s exists and isn't empty\n", options.directory.c_str());
        return 1;
    }
    MakeMachine(*options.model, ".", options.events);
    return 0;
} catch (const std::bad_alloc&) {
    std::fprintf(stderr, "mkmachine: out of memory\n");
    return 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "mkmachine: %s\n", error.what());
    return 1;
}
