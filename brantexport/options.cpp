#include "brantexport/options.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "brantexport/time.h"
#include "src/utils/program_arguments.h"
#include "src/utils/text.h"

namespace {

constexpr const char* kSeverities[] = {"info", "repaired", "caution", "critical", "unknown"};

constexpr char kNoTime[] =
    "brantexport: --since expects a time such as 2006-03-15 or 2006-03-15T14:07, not \"%s\"\n";
constexpr char kNoSeverity[] =
    "brantexport: --severity expects info, repaired, caution, critical or unknown, not \"%s\"\n";

constexpr struct {
    const char* option;
    Format format;
} kFormats[] = {
    {"--json", Format::Json},   {"--prometheus", Format::Prometheus},
    {"--check", Format::Check}, {"--lines", Format::Lines},
    {"--http", Format::Http},
};

// Returns `message` with `text` instead of "%s".
std::string Filled(std::string message, const std::string& text) {
    return message.replace(message.find("%s"), 2, text);
}

std::string Usage() {
    std::string names;
    for (const Section& section : Sections()) names += (names.empty() ? "" : " ") + std::string(section.name);
    return Filled(
        "usage: brantexport [--json | --prometheus | --check | --http] [SECTION...]\n"
        "       brantexport --lines [--since TIME] [--severity WORD]...\n"
        "sections: %s\n",
        names);
}

std::string Help() {
    return "Prints the values of the SHOW commands for other programs.\n\n" + Usage() +
           "\n"
           "  --json           JSON; this is the default\n"
           "  --prometheus     metrics for Prometheus\n"
           "  --check          whether the server is well, for monitoring systems\n"
           "  --http           answer one HTTP request for the metrics\n"
           "  --lines          the event log, a line for each event\n"
           "  --since TIME     only events since a time such as 2006-03-15 or 2006-03-15T14:07\n"
           "  --severity info|repaired|caution|critical|unknown\n"
           "                   only events of this severity; repeat it for several\n"
           "  --help           print this text\n"
           "  --version        print the version\n\n"
           "See brantexport(8).\n";
}

void SetProblem(Options& options, const std::string& problem) {
    if (options.problem.empty()) options.problem = problem;
}

// Each of these functions parses the current argument if it is of the kind that the name of the function
// contains. Otherwise it returns false.

bool ReadFormat(const ProgramArguments& arguments, Options& options) {
    for (const auto& [option, format] : kFormats) {
        if (!arguments.Is(option)) continue;
        options.format = format;
        return true;
    }
    return false;
}

bool ReadFilter(ProgramArguments& arguments, Options& options) {
    std::string value;
    if (arguments.HasValue("--since", value)) {
        const std::optional<int64_t> time = ParseTime(value);
        options.filter.since = time.value_or(0);
        if (!time) SetProblem(options, Filled(kNoTime, value));
        return true;
    }
    if (!arguments.HasValue("--severity", value)) return false;
    const auto is_value = [&](const char* word) { return strcmpi(word, value) == 0; };
    const auto word = std::find_if(std::begin(kSeverities), std::end(kSeverities), is_value);
    if (word == std::end(kSeverities)) {
        SetProblem(options, Filled(kNoSeverity, value));
    } else {
        options.filter.severities.emplace_back(*word);
    }
    return true;
}

bool ReadSection(const ProgramArguments& arguments, std::vector<std::string>& names) {
    const std::vector<Section> all = Sections();
    const auto is_name = [&](const Section& section) { return arguments.Is(section.name); };
    if (std::none_of(all.begin(), all.end(), is_name)) return false;
    names.push_back(arguments.Text());
    return true;
}

}  // namespace

void ReadOptions(int argc, char** argv, Options& options) {
    for (ProgramArguments arguments(argc, argv); arguments.Next();) ReadFormat(arguments, options);
    std::vector<std::string> names;  // of sections
    bool is_filtered = false;
    ProgramArguments arguments(argc, argv);
    while (arguments.Next()) {
        const std::string help = arguments.Is("--help") ? Help() : "";
        if (arguments.AsksForReply("brantexport", help, options.reply)) return;
        if (ReadFormat(arguments, options) || ReadSection(arguments, names)) continue;
        if (!ReadFilter(arguments, options)) SetProblem(options, Usage());
        is_filtered = true;
    }
    const bool are_lines = options.format == Format::Lines;
    if (are_lines ? !names.empty() : is_filtered) SetProblem(options, Usage());
    if (are_lines) names = {"events"};
    for (const Section& section : Sections()) {
        const bool is_named = std::find(names.begin(), names.end(), section.name) != names.end();
        if (is_named || names.empty()) options.sections.push_back(section);
    }
}
