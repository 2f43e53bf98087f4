#include "tests/brantexport/export.h"

#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <map>
#include <sstream>

#include "tests/support/pattern.h"

namespace {

using Values = std::vector<std::pair<std::string, std::string>>;

void AddValues(const std::string& path, const rapidjson::Value& value, Values& values) {
    if (value.IsObject() && path.find("/errors/") == path.npos) {
        for (const auto& member : value.GetObject()) {
            AddValues(path + "/" + member.name.GetString(), member.value, values);
        }
    } else if (value.IsArray()) {
        values.emplace_back(path + ":", std::to_string(value.Size()) + " entries");
        for (rapidjson::SizeType i = 0; i < value.Size(); ++i) {
            AddValues(path + "/" + std::to_string(i), value[i], values);
        }
    } else {
        rapidjson::StringBuffer text;
        rapidjson::Writer<rapidjson::StringBuffer, rapidjson::UTF8<>, rapidjson::ASCII<>> writer(text);
        value.Accept(writer);
        values.emplace_back(path, text.GetString());
    }
}

// Adds the samples, and the number of samples of each metric.
void AddSamples(const std::string& metrics, Values& values) {
    std::map<std::string, int> counts;
    std::istringstream lines(metrics);
    for (std::string line; std::getline(lines, line);) {
        const size_t end = line.rfind(' ');
        if (line[0] == '#' || end == line.npos) continue;
        values.emplace_back(line.substr(0, end), line.substr(end + 1));
        ++counts[line.substr(0, line.find_first_of("{ "))];
    }
    for (const auto& [name, count] : counts)
        values.emplace_back(name + ":", std::to_string(count) + " samples");
}

// Adds the state, each problem and each number of a verdict.
void AddVerdict(const std::string& verdict, Values& values) {
    const size_t bar = verdict.find(" | ");
    for (const Match& part : MatchAll(verdict.substr(0, bar), "[^;\\n ][^;\\n]*")) {
        values.emplace_back("check: " + part[0], "");
    }
    if (bar == verdict.npos) return;
    for (const Match& number : MatchAll(verdict.substr(bar), " (\\w+)=(\\S+)")) {
        values.emplace_back("check " + number[1], number[2]);
    }
}

void AddCalls(const std::string& trace, Values& values) {
    std::map<std::string, int> counts;
    for (const Match& call : MatchAll(trace, "(^|\n)(cdt \\d+|crom read \\w+|\\S+ \\S+)")) ++counts[call[2]];
    for (const auto& [call, count] : counts)
        values.emplace_back("calls " + call + ":", std::to_string(count));
}

Values AllValues(const Exported& exported) {
    Values values = ValuesOf(exported.json);
    AddSamples(exported.metrics, values);
    AddVerdict(exported.verdict, values);
    values.emplace_back("standard error:", exported.errors);
    values.emplace_back("status", std::to_string(exported.status));
    AddCalls(exported.trace, values);
    return values;
}

}  // namespace

Values ValuesOf(const std::string& json) {
    rapidjson::Document document;
    document.Parse<rapidjson::kParseValidateEncodingFlag>(json.data(), json.size());
    EXPECT_FALSE(document.HasParseError()) << "invalid JSON:\n" << json;
    Values values;
    if (!document.HasParseError()) AddValues("", document, values);
    return values;
}

RunResult RunExport(const TestMachine& machine, const std::vector<std::string>& arguments) {
    RunOptions options;
    options.environment = {"TZ=UTC0"};
    RunResult run = RunProgram(ProgramPath("brantexport"), arguments, machine.Directory(), options);
    const std::pair<const char*, const char*> patterns[] = {
        {R"x((\n  "exported_at": ")\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ")x", "$012026-11-25T12:30:00Z\""},
        {R"x((\n  "duration_ms": |duration_seconds )[\d.]+)x", "$017"},
        {R"x((\n  "version": |info\{version=)"\d+\.\d+\.\d+")x", "$01\"1.1.0\""},
    };
    for (const auto& [pattern, constant] : patterns) run.output = ReplaceAll(run.output, pattern, constant);
    return run;
}

Exported Export(TestMachine& machine) {
    machine.StartTrace();
    const RunResult json = RunExport(machine, {"--json"});
    const std::string trace = machine.TakeTrace();
    const RunResult metrics = RunExport(machine, {"--prometheus"});
    EXPECT_EQ(machine.TakeTrace(), trace);
    const RunResult check = RunExport(machine, {"--check"});
    EXPECT_EQ(machine.TakeTrace(), trace);
    Exported exported{json.output, metrics.output, check.output, json.errors, trace, json.status};
    const bool complete = json.output.find("\"errors\": []") != json.output.npos;
    EXPECT_EQ(json.status, complete ? 0 : 1) << json.output;
    EXPECT_EQ(metrics.status, json.status);
    EXPECT_EQ(metrics.errors, json.errors);
    EXPECT_EQ(check.errors, json.errors);
    const char* states[] = {"OK", "WARNING", "CRITICAL", "UNKNOWN"};
    EXPECT_LT(check.status, 4);
    EXPECT_TRUE(
        Contains(check.output, std::string("^BRANT ") + states[check.status % 4] + " - [^|\n]+( \\|.*)?\n$"))
        << check.output;
    const std::string end = "\n# EOF\n";
    EXPECT_EQ(metrics.output.substr(metrics.output.size() - std::min(metrics.output.size(), end.size())),
              end);
    return exported;
}

std::string Difference(const Exported& before, const Exported& now) {
    std::map<std::string, std::string> old;
    for (const auto& [name, value] : AllValues(before)) old[name] = value;
    std::string text;
    for (const auto& [name, value] : AllValues(now)) {
        if (old.count(name) == 0 || old[name] != value)
            text += name + (value.empty() ? "\n" : " " + value + "\n");
        old.erase(name);
    }
    // Metrics and problems that only `before` contains. A missing JSON value needs no line: its list has a
    // different number of entries or is null.
    for (const auto& [name, value] : old) {
        if (name.find("calls ") == 0) {
            text += name + " 0\n";
        } else if (name.back() == ':' && name[0] != '/') {
            text += name + " 0 samples\n";
        }
        if (name.find("check: ") == 0) text += "no " + name + "\n";
    }
    return text;
}

void ExpectFits(const std::vector<std::string>& documents) {
    RunOptions options;
    for (const std::string& document : documents) options.input += ReplaceAll(document, "\n", " ") + "\n";
    const RunResult run = RunProgram(BRANT_TEST_DIR "/brantexport/fits", {}, "", options);
    EXPECT_EQ(run.output + run.errors, std::to_string(documents.size()) + " documents\n");
}
