// brantexport [--json | --prometheus] [SECTION...]: prints the values of the SHOW commands for other
// programs.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "brantexport/document.h"
#include "brantexport/json.h"
#include "brantexport/prometheus.h"
#include "brantexport/sections.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/pci/kelm.h"
#include "cli/start-up/start_up.h"
#include "src/utils/standard_streams.h"

namespace {

constexpr char kProgram[] = "brantexport";

struct Options {
    bool prometheus = false;
    std::vector<Section> sections;  // the requested ones or all, in the order of Sections()
};

// Returns false if an argument is neither an option nor a section.
bool ReadOptions(int argc, char** argv, Options& options) {
    const std::vector<Section> all = Sections();
    std::vector<bool> requested(all.size());
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const auto has_name = [&](const Section& section) { return argument == section.name; };
        const auto found = std::find_if(all.begin(), all.end(), has_name);
        if (argument == "--json" || argument == "--prometheus") {
            options.prometheus = argument == "--prometheus";
        } else if (found == all.end()) {
            return false;
        } else {
            requested[static_cast<size_t>(found - all.begin())] = true;
        }
    }
    const bool any = std::find(requested.begin(), requested.end(), true) != requested.end();
    for (size_t i = 0; i < all.size(); ++i) {
        if (requested[i] || !any) options.sections.push_back(all[i]);
    }
    return true;
}

void PrintUsage() {
    std::string names;
    for (const Section& section : Sections()) names += std::string(names.empty() ? "" : " ") + section.name;
    std::fprintf(stderr, "usage: brantexport [--json | --prometheus] [SECTION...]\nsections: %s\n",
                 names.c_str());
}

// Opens the devices and fills the state that the sections use.
void StartUp() {
    OpenAvailableDevices();
    FindEmbeddedNics();
    got_kelm = find_kelm();
}

}  // namespace

int main(int argc, char** argv) try {
    if (!KeepStandardDescriptors()) return 1;
    const int output = MessagesToStandardError();
    if (output < 0) return 1;
    IgnoreWriteSignals();
    Options options;
    if (!ReadOptions(argc, argv, options)) {
        PrintUsage();
        return 2;
    }
    if (!CheckUser(kProgram) || !CheckRom(kProgram) || !ReadFirmwareTables(kProgram)) return 1;

    StartUp();
    const std::unique_ptr<Writer> writer =
        options.prometheus ? NewPrometheusWriter(output, options.sections) : NewJsonWriter(output);
    Errors errors;
    WriteDocument(*writer, options.sections, errors);
    CloseDevices();
    return errors.List().empty() ? 0 : 1;
} catch (const std::bad_alloc&) {
    std::fprintf(stderr, "%s: out of memory\n", kProgram);
    return 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", kProgram, error.what());
    return 1;
}
