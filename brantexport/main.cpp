// brantexport: prints the values of the SHOW commands for other programs, in the format that an option
// selects.

#include <unistd.h>

#include <cstdio>
#include <memory>

#include "brantexport/check.h"
#include "brantexport/document.h"
#include "brantexport/http.h"
#include "brantexport/json.h"
#include "brantexport/lines.h"
#include "brantexport/options.h"
#include "brantexport/output.h"
#include "brantexport/privileges.h"
#include "brantexport/prometheus.h"
#include "cli/command/state.h"
#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/pci/kelm.h"
#include "cli/start-up/start_up.h"
#include "src/utils/exceptions.h"
#include "src/utils/program_arguments.h"
#include "src/utils/standard_streams.h"

namespace {

constexpr char kProgram[] = "brantexport";

// The user who serves the metrics over HTTP, and the longest time for this in seconds, after which the system
// ends the process. It only matters if the driver doesn't reply.
constexpr char kHttpUser[] = "nobody";
constexpr unsigned kLongestHttpRun = 60;

// The start-up steps that can end the program. They print the message on standard error; a monitoring system
// reads only `problem`.
struct Requirement {
    bool (*is_met)(const char* program);
    const char* problem;
};
constexpr Requirement kRequirements[] = {
    {CheckUser, "only root can read the values"},
    {CheckRom, "this is not VX hardware"},
    {ReadFirmwareTables, "this is not a Corvex server"},
};

// Returns the problem of the first requirement that isn't met, or null.
const char* FindProblem() {
    for (const auto& [is_met, problem] : kRequirements) {
        if (!is_met(kProgram)) return problem;
    }
    return nullptr;
}

// Returns the exit status of a run that fails: `status`, unless the run is a check.
int Fail(const Options& options, int output, const char* problem, int status = 1) {
    return options.format == Format::Check ? WriteUnknown(output, problem) : status;
}

// Opens the devices, reads the sections into the writer, and closes the devices.
void Export(const std::vector<Section>& sections, Writer& writer, Errors& errors) {
    OpenAvailableDevices();
    FindEmbeddedNics();
    got_kelm = find_kelm();
    WriteDocument(writer, sections, errors);
    CloseDevices();
}

// Answers one HTTP request. Reads the hardware first and then gives up root, so that no byte of the client is
// read as root.
int Serve(const Options& options, int output) {
    if (!SeparateMessages(output)) return 1;
    alarm(kLongestHttpRun);
    std::string metrics;
    const char* const problem = FindProblem();
    if (problem == nullptr) {
        Errors errors;
        Export(options.sections, *NewPrometheusWriter(metrics, options.sections), errors);
    }
    CloseOtherDescriptors(output);
    if (const char* const reason = DropRoot(kHttpUser)) {
        ReportRootRemains(kProgram, kHttpUser, reason);
        return 1;
    }
    return ServeHttpRequest(STDIN_FILENO, output, metrics, problem != nullptr ? problem : "") ? 0 : 1;
}

// Returns the writer of a format. It writes into `output`, except for the metrics, which it stores in
// `metrics`.
std::unique_ptr<Writer> NewWriter(const Options& options, int output, std::string& metrics) {
    switch (options.format) {
        case Format::Prometheus: return NewPrometheusWriter(metrics, options.sections);
        case Format::Lines: return NewLinesWriter(output, options.filter);
        case Format::Check: return NewCheckWriter(output);
        case Format::Http:
        case Format::Json: break;
    }
    return NewJsonWriter(output);
}

int Run(const Options& options, int output) {
    if (!options.reply.empty()) return PrintReply(output, kProgram, options.reply);
    if (!options.problem.empty()) {
        std::fputs(options.problem.c_str(), stderr);
        return Fail(options, output, "the arguments are invalid", 2);
    }
    if (options.format == Format::Http) return Serve(options, output);
    if (const char* const problem = FindProblem()) return Fail(options, output, problem);

    std::string metrics;
    const std::unique_ptr<Writer> writer = NewWriter(options, output, metrics);
    Errors errors;
    Export(options.sections, *writer, errors);
    WriteOutput(output, metrics);
    return writer->Status(errors.List().empty());
}

}  // namespace

int main(int argc, char** argv) {
    if (!KeepStandardDescriptors()) return 1;
    const int output = MessagesToStandardError();
    if (output < 0) return 1;
    IgnoreWriteSignals();
    Options options;
    try {
        ReadOptions(argc, argv, options);
        return Run(options, output);
    } catch (...) {
        ReportException(kProgram);
        return Fail(options, output, ExceptionMessage());
    }
}
