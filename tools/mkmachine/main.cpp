// mkmachine [--model MODEL] [--events N] DIR: makes a simulated machine in a new or empty directory.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <optional>
#include <string>

#include "tools/mkmachine/models.h"

namespace {

struct Order {
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

// False when the words don't make an order.
bool ReadOrder(int argc, char** argv, Order& order) {
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--model" && i + 1 < argc) {
            order.model = FindModel(argv[++i]);
            if (order.model == nullptr) return false;
        } else if (word == "--events" && i + 1 < argc) {
            order.events = ReadCount(argv[++i]);
            if (!order.events) return false;
        } else if (word.empty() || word[0] == '-' || !order.directory.empty()) {
            return false;
        } else {
            order.directory = word;
        }
    }
    return !order.directory.empty();
}

void PrintUsage() {
    std::string names;
    for (const Model& model : Models()) names += (names.empty() ? "" : "|") + std::string(model.name);
    std::fprintf(stderr, "usage: mkmachine [--model %s] [--events N] DIR\n", names.c_str());
}

}  // namespace

int main(int argc, char** argv) try {
    Order order;
    if (!ReadOrder(argc, argv, order)) {
        PrintUsage();
        return 2;
    }
    if (std::filesystem::exists(order.directory) && !std::filesystem::is_empty(order.directory)) {
        std::fprintf(stderr, "mkmachine: %s exists and isn't empty\n", order.directory.c_str());
        return 1;
    }
    MakeMachine(*order.model, order.directory, order.events);
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "mkmachine: %s\n", error.what());
    return 1;
}
