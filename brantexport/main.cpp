// brantexport [--json | --prometheus | --http] [SECTION...]: prints the values of the SHOW commands for other
// programs.

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "brantexport/document.h"
#include "brantexport/http.h"
#include "brantexport/json.h"
#include "brantexport/output.h"
#include "brantexport/privileges.h"
#include "brantexport/prometheus.h"
#include "brantexport/sections.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/pci/kelm.h"
#include "cli/start-up/start_up.h"
#include "src/utils/standard_streams.h"

namespace {

constexpr char kProgram[] = "brantexport";

// The user who serves the metrics over HTTP, and the longest time for this in seconds, after which the system
// ends the process. It only matters if the driver doesn't reply.
constexpr char kHttpUser[] = "nobody";
constexpr unsigned kLongestHttpRun = 60;

struct Options {
    bool prometheus = false;
    bool http = false;
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
        if (argument == "--json" || argument == "--prometheus" || argument == "--http") {
            options.prometheus = argument == "--prometheus";
            options.http = argument == "--http";
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
    std::fprintf(stderr, "usage: brantexport [--json | --prometheus | --http] [SECTION...]\nsections: %s\n",
                 names.c_str());
}

// Opens the devices and fills the state that the sections use.
void StartUp() {
    OpenAvailableDevices();
    FindEmbeddedNics();
    got_kelm = find_kelm();
}

// Reads the sections as metrics and closes the devices. Returns null, or the reason if the hardware can't be
// read at all; `metrics` is then empty.
const char* ReadMetrics(const std::vector<Section>& sections, std::string& metrics) {
    if (!CheckUser(kProgram)) return "brantexport was not started as root.";
    if (!CheckRom(kProgram) || !ReadFirmwareTables(kProgram)) {
        return "This is not a Corvex server, or its firmware can't be read.";
    }
    StartUp();
    Errors errors;
    WriteDocument(*NewPrometheusWriter(metrics, sections), sections, errors);
    CloseDevices();
    return nullptr;
}

// Answers one HTTP request. Reads the hardware first and then gives up root, so that no byte of the client is
// read as root.
int Serve(int output, const std::vector<Section>& sections) {
    if (!SeparateMessages(output)) return 1;
    alarm(kLongestHttpRun);
    std::string metrics;
    const char* const failure = ReadMetrics(sections, metrics);
    CloseOtherDescriptors(output);
    if (const char* const reason = DropRoot(kHttpUser)) {
        ReportRootRemains(kProgram, kHttpUser, reason);
        return 1;
    }
    return ServeHttpRequest(STDIN_FILENO, output, metrics, failure != nullptr ? failure : "") ? 0 : 1;
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
    if (options.http) return Serve(output, options.sections);
    if (!CheckUser(kProgram) || !CheckRom(kProgram) || !ReadFirmwareTables(kProgram)) return 1;

    StartUp();
    std::string metrics;
    const std::unique_ptr<Writer> writer =
        options.prometheus ? NewPrometheusWriter(metrics, options.sections) : NewJsonWriter(output);
    Errors errors;
    WriteDocument(*writer, options.sections, errors);
    CloseDevices();
    WriteOutput(output, metrics);
    return errors.List().empty() ? 0 : 1;
} catch (const std::bad_alloc&) {
    std::fprintf(stderr, "%s: out of memory\n", kProgram);
    return 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s: %s\n", kProgram, error.what());
    return 1;
}
