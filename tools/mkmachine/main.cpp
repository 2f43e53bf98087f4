// mkmachine [--model MODEL] DIR: makes a simulated machine in a new or empty directory.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>

#include "tools/mkmachine/models.h"

namespace {

constexpr char kUsage[] = "usage: mkmachine [--model tr500k2|tr300|bx20] DIR\n";

struct Order {
    const Model* model = FindModel("tr500k2");
    std::string directory;
};

// False when the words don't make an order.
bool ReadOrder(int argc, char** argv, Order& order) {
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--model" && i + 1 < argc) {
            order.model = FindModel(argv[++i]);
            if (order.model == nullptr) return false;
        } else if (word.empty() || word[0] == '-' || !order.directory.empty()) {
            return false;
        } else {
            order.directory = word;
        }
    }
    return !order.directory.empty();
}

}  // namespace

int main(int argc, char** argv) try {
    Order order;
    if (!ReadOrder(argc, argv, order)) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    if (std::filesystem::exists(order.directory) && !std::filesystem::is_empty(order.directory)) {
        std::fprintf(stderr, "mkmachine: %s exists and isn't empty\n", order.directory.c_str());
        return 1;
    }
    MakeMachine(*order.model, order.directory);
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "mkmachine: %s\n", error.what());
    return 1;
}
