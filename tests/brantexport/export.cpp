#include "tests/brantexport/export.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>

namespace {

using Samples = std::map<std::string, std::string>;  // name and labels -> value

Samples SamplesOf(const std::string& metrics) {
    Samples samples;
    std::istringstream lines(metrics);
    for (std::string line; std::getline(lines, line);) {
        const size_t end = line.rfind(' ');
        if (line[0] != '#' && end != line.npos) samples[line.substr(0, end)] = line.substr(end + 1);
    }
    return samples;
}

// Returns how many samples each metric has.
std::map<std::string, int> Counts(const Samples& samples) {
    std::map<std::string, int> counts;
    for (const auto& [series, value] : samples) ++counts[series.substr(0, series.find('{'))];
    return counts;
}

std::string MetricsDifference(const Samples& before, const Samples& now) {
    std::string text;
    for (const auto& [series, value] : now) {
        const auto old = before.find(series);
        if (old == before.end() || old->second != value) text += series + " " + value + "\n";
    }
    std::map<std::string, int> counts = Counts(now);
    for (const auto& [name, count] : Counts(before)) {
        if (counts[name] < count) text += name + ": " + std::to_string(counts[name]) + " samples\n";
    }
    return text;
}

void AddDifference(const std::string& path, const Json& before, const Json& now, std::string& text) {
    if (before == now) return;
    const bool lists = before.is_array() && now.is_array() && !now.empty();
    if (!lists && !(before.is_object() && now.is_object())) {
        text += path + " " + now.dump(-1, ' ', true) + "\n";
        return;
    }
    for (const auto& [key, value] : now.items()) {
        const bool is_new = lists ? std::stoul(key) >= before.size() : !before.contains(key);
        const Json old = is_new ? Json() : lists ? before[std::stoul(key)] : before[key];
        AddDifference(path + "/" + key, old, value, text);
    }
    if (now.size() < before.size()) text += path + ": " + std::to_string(now.size()) + " entries\n";
}

}  // namespace

Exported Export(const TestMachine& machine) {
    const std::string program = ProgramPath("brantexport");
    const RunResult json = RunProgram(program, {"--json"}, machine.Directory());
    const RunResult metrics = RunProgram(program, {"--prometheus"}, machine.Directory());
    Exported exported{Json::parse(json.output, nullptr, false), metrics.output, json.errors, json.status};
    EXPECT_FALSE(exported.document.is_discarded()) << "invalid JSON:\n" << json.output;
    const auto ascii = [](char letter) { return static_cast<unsigned char>(letter) < 0x80; };
    EXPECT_TRUE(std::all_of(json.output.begin(), json.output.end(), ascii)) << "not ASCII:\n" << json.output;
    EXPECT_EQ(json.status, exported.document.value("errors", Json()).empty() ? 0 : 1) << json.output;
    EXPECT_EQ(metrics.status, json.status);
    EXPECT_EQ(metrics.errors, json.errors);
    const std::string end = "\n# EOF\n";
    EXPECT_EQ(metrics.output.substr(metrics.output.size() - std::min(metrics.output.size(), end.size())),
              end);
    return exported;
}

std::string Difference(const Exported& before, const Exported& now) {
    std::string text;
    AddDifference("", before.document, now.document, text);
    text += MetricsDifference(SamplesOf(before.metrics), SamplesOf(now.metrics));
    if (now.errors != before.errors) text += "standard error: " + now.errors + "\n";
    if (now.status != before.status) text += "status " + std::to_string(now.status) + "\n";
    return text;
}

void ExpectFits(const std::vector<Json>& documents) {
    RunOptions options;
    for (const Json& document : documents) options.input += document.dump() + "\n";
    const RunResult run = RunProgram(BRANT_TEST_DIR "/brantexport/fits", {}, "", options);
    EXPECT_EQ(run.output + run.errors, std::to_string(documents.size()) + " documents\n");
}
