// mkmachine [--model MODEL] [--events N] DIR: makes a simulated machine in a new or empty directory.

#include <sys/stat.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <new>
#include <optional>
#include <string>

#include "mkmachine/models.h"
#include "src/utils/standard_streams.h"

namespace {

struct Options {
    const Model* model = &Models().front();
    std::optional<size_t> events;  // entries of the event log; else one of each sample
    std::string directory;
};

// A count in decimal; none when the word is anything else, or a log of so many could never be numbered.
std::optional<size_t> ReadCount(const std::string& word) {
    constexpr size_t kMostDigits = 9;
    if (word.empty() || word.size() > kMostDigits) return {};
    if (word.find_first_not_of("0123456789") != word.npos) return {};
    return std::stoul(word);
}

// False when the words aren't options that go together.
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

}  // namespace

int main(int argc, char** argv) try {
    if (!KeepStandardDescriptors()) return 1;
    Options options;
    if (!ReadOptions(argc, argv, options)) {
        PrintUsage();
        return 2;
    }
    if (std::filesystem::exists(options.directory) && !std::filesystem::is_empty(options.directory)) {
        std::fprintf(stderr, "mkmachine: %s exists and isn't empty\n", options.directory.c_str());
        return 1;
    }
    umask(077);  // only the owner can open the directories, and with them lock the devices
    MakeMachine(*options.model, options.directory, options.events);
    return 0;
} catch (const std::bad_alloc&) {
    std::fprintf(stderr, "mkmachine: out of memory\n");
    return 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "mkmachine: %s\n", error.what());
    return 1;
}
