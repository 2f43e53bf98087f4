// brantexport: prints the values of the SHOW commands for other programs, in the format that an option
// selects.

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

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

// The process serves the metrics over HTTP as this user. After the longest time, in seconds, SIGALRM ends the
// process; this only happens if the driver doesn't reply.
constexpr char kHttpUser[] = "nobody";
constexpr unsigned kLongestHttpRun = 60;

// A condition without which nothing can be read. If it isn't met, `is_met` prints a message on standard
// error, and a monitoring system or an HTTP client gets `problem`.
struct Requirement {
    bool (*is_met)(const char* program);
    const char* problem;
};
constexpr char kNoServer[] = "This is not a Corvex server, or its firmware can't be read.";
constexpr Requirement kRequirements[] = {
    {CheckUser, "brantexport was not started as root."},
    {CheckRom, kNoServer},
    {ReadFirmwareTables, kNoServer},
};

// Checks the requirements, opens the devices and sets the global variables that the sections use. Returns
// null, or the problem of the first requirement that isn't met.
const char* StartUp() {
    for (const auto& [is_met, problem] : kRequirements) {
        if (!is_met(kProgram)) return problem;
    }
    OpenAvailableDevices();
    FindEmbeddedNics();
    got_kelm = find_kelm();
    return nullptr;
}

// Reads the sections and closes the devices. Returns whether everything could be read.
bool Export(Writer& writer, const std::vector<Section>& sections) {
    Errors errors;
    WriteDocument(writer, sections, errors);
    CloseDevices();
    return errors.List().empty();
}

// Makes the system end the process after a time, even if the process was started with SIGALRM ignored or
// blocked: both survive exec().
void EndAfter(unsigned seconds) {
    struct sigaction action {};
    action.sa_handler = SIG_DFL;
    sigaction(SIGALRM, &action, nullptr);
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGALRM);
    sigprocmask(SIG_UNBLOCK, &signals, nullptr);
    alarm(seconds);
}

// Answers one HTTP request. Reads the hardware as root, then gives up root, and only then reads bytes from
// the client. Returns the exit status.
int Serve(int output, const std::vector<Section>& sections) {
    if (!SeparateMessages(output)) return 1;
    EndAfter(kLongestHttpRun);
    std::string metrics;
    const char* const problem = StartUp();
    if (problem == nullptr) Export(*NewPrometheusWriter(metrics, sections), sections);
    CloseOtherDescriptors(output);
    if (const char* const reason = DropRoot(kHttpUser)) {
        ReportRootRemains(kProgram, kHttpUser, reason);
        return 1;
    }
    return ServeHttpRequest(STDIN_FILENO, output, metrics, problem != nullptr ? problem : "") ? 0 : 1;
}

// Returns the exit status of a run that fails: `status`, or that of --check, for which it also writes the
// verdict.
int Fail(const Options& options, int output, const char* problem, int status = 1) {
    return options.format == Format::Check ? WriteUnknown(output, problem) : status;
}

// Returns the writer for the selected format. The writer for metrics stores them in `metrics`; the others
// write to the descriptor `output`.
std::unique_ptr<Writer> NewWriter(const Options& options, int output, std::string& metrics) {
    switch (options.format) {
        case Format::Prometheus:
        case Format::Http: return NewPrometheusWriter(metrics, options.sections);
        case Format::Lines: return NewLinesWriter(output, options.filter);
        case Format::Check: return NewCheckWriter(output);
        case Format::Json: break;
    }
    return NewJsonWriter(output);
}

int Run(const Options& options, int output) {
    if (!options.reply.empty()) return PrintReply(output, kProgram, options.reply);
    if (!options.problem.empty()) {
        WriteAll(STDERR_FILENO, options.problem);
        return Fail(options, output, "The arguments are invalid.", 2);
    }
    if (options.format == Format::Http) return Serve(output, options.sections);
    if (const char* const problem = StartUp()) return Fail(options, output, problem);

    std::string metrics;
    const std::unique_ptr<Writer> writer = NewWriter(options, output, metrics);
    const bool complete = Export(*writer, options.sections);
    WriteOutput(output, metrics);
    return writer->Status(complete);
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
