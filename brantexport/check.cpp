#include "brantexport/check.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <string>
#include <string_view>

#include "brantexport/entries.h"
#include "brantexport/output.h"
#include "brantexport/time.h"
#include "src/utils/standard_streams.h"
#include "src/utils/utc.h"

namespace {

constexpr Health kWorstFirst[] = {Health::Critical, Health::Warning, Health::Unknown};
constexpr int kMostProblems = 20;  // listed for each Health; monitoring systems read only a few KiB
constexpr int kFullLog = 1000;     // entries; the firmware doesn't report the capacity of its log

bool IsFailedFan(const Entry& fan) {
    return fan["failed"].number != 0;
}

// A threshold of 0 means that the sensor has none.
bool IsTooHot(const Entry& sensor) {
    const int64_t threshold = sensor["threshold_celsius"].number;
    return threshold > 0 && sensor["temperature_celsius"].number >= threshold;
}

bool IsFailedSupply(const Entry& supply) {
    return supply["condition"].text == "failed";
}

bool IsDegradedSupply(const Entry& supply) {
    return supply["condition"].text == "degraded";
}

bool IsNotOk(const Entry& part) {
    const Value status = part["status"];
    return status.kind != Value::Kind::Null && status.text != "ok";
}

bool IsAny(const Entry& /*error*/) {
    return true;
}

// A problem that an entry can have. The alerts in contrib/prometheus and the table in brantexport(8) must
// agree with kRules and with CheckWriter::JudgeEvents(), which judges the event log.
struct Rule {
    std::string_view path;              // of the entries, as in EntryWriter
    bool (*holds)(const Entry& entry);  // returns whether the entry has the problem
    Health health;
    const char* problem;  // the message; the value of a member replaces its name in braces
};
constexpr Rule kRules[] = {
    {"fans", IsFailedFan, Health::Critical, "fan {number} ({location}) has failed"},
    {"temperatures", IsTooHot, Health::Critical,
     "temperature sensor {number} ({location}) has {temperature_celsius} C, its threshold is "
     "{threshold_celsius} C"},
    {"power_supplies", IsFailedSupply, Health::Critical, "power supply {number} has failed"},
    {"power_supplies", IsDegradedSupply, Health::Warning, "power supply {number} is degraded"},
    {"memory", IsNotOk, Health::Warning, "memory module {module} of cartridge {cartridge}: {status}"},
    {"processors", IsNotOk, Health::Warning, "processor {number}: {status}"},
    {"errors", IsAny, Health::Unknown, "{section}: {message}"},
};

std::string TextOf(const Value& value) {
    return value.kind == Value::Kind::Number ? std::to_string(value.number) : std::string(value.text);
}

// Replaces the name of each member in braces by the member's value. Doesn't search the values for braces.
std::string Filled(std::string text, const Entry& entry) {
    for (size_t open = text.find('{'); open != text.npos; open = text.find('{', open)) {
        const size_t close = text.find('}', open);
        const std::string value = TextOf(entry[text.substr(open + 1, close - open - 1).c_str()]);
        text.replace(open, close + 1 - open, value);
        open += value.size();
    }
    return text;
}

// The lists whose lengths are printed as performance data, which is the output after "|".
constexpr std::string_view kCounted[] = {"processors",   "memory",         "nics",  "fans",
                                         "temperatures", "power_supplies", "events"};

class CheckWriter : public EntryWriter {
  public:
    explicit CheckWriter(int output) : output_(output) {}
    void Finish() override;
    int Status(bool /*complete*/) const override { return static_cast<int>(State()); }

  private:
    void Take(std::string_view path, const Entry& entry) override;
    void TakeEvent(const Entry& event);
    void TakeTemperature(const Entry& sensor);
    // Adds the problems of the whole event log.
    void JudgeEvents();
    void AddProblem(Health health, const std::string& problem);
    Health State() const;
    // Returns the problems, the worst first, and how many more there are; or "no problem found".
    std::string Problems() const;
    // Returns the performance data: numbers for the graphs of a monitoring system, each after a space.
    std::string PerformanceData() const;

    int output_;
    std::string problems_[4];  // indexed by Health; each contains at most kMostProblems
    int problem_counts_[4] = {};
    int counts_[std::size(kCounted)] = {};
    std::string temperatures_;  // performance data
    const int64_t now_ = Milliseconds() / 1000;
    const int64_t yesterday_ = LocalTime(static_cast<time_t>(now_ - kSecondsOfDay));
    const int64_t tomorrow_ = LocalTime(static_cast<time_t>(now_ + kSecondsOfDay));
    int events_ = 0;
    int new_critical_events_ = 0;
    int64_t last_critical_event_ = 0;  // its number
};

void CheckWriter::Take(std::string_view path, const Entry& entry) {
    for (const Rule& rule : kRules) {
        if (path == rule.path && rule.holds(entry)) AddProblem(rule.health, Filled(rule.problem, entry));
    }
    for (size_t i = 0; i < std::size(kCounted); ++i) counts_[i] += path == kCounted[i] ? 1 : 0;
    if (path == "events") TakeEvent(entry);
    if (path == "temperatures") TakeTemperature(entry);
}

void CheckWriter::TakeEvent(const Entry& event) {
    ++events_;
    const Value time = event["last_time"];
    if (time.number < yesterday_ || time.number > tomorrow_ || event["severity"].text != "critical") return;
    ++new_critical_events_;
    last_critical_event_ = event["number"].number;
}

void CheckWriter::TakeTemperature(const Entry& sensor) {
    const Value celsius = sensor["temperature_celsius"];
    if (celsius.kind == Value::Kind::Null) return;
    temperatures_ += Filled(" temperature_{number}={temperature_celsius}", sensor);
    if (sensor["threshold_celsius"].number > 0) temperatures_ += Filled(";;{threshold_celsius}", sensor);
}

void CheckWriter::JudgeEvents() {
    char problem[96];
    if (new_critical_events_ != 0) {
        std::snprintf(problem, sizeof problem, "critical events within a day: %d, the last is event %lld",
                      new_critical_events_, static_cast<long long>(last_critical_event_));
        AddProblem(Health::Warning, problem);
    }
    if (events_ >= kFullLog) {
        std::snprintf(problem, sizeof problem, "entries in the event log: %d", events_);
        AddProblem(Health::Warning, problem);
    }
}

void CheckWriter::AddProblem(Health health, const std::string& problem) {
    const auto index = static_cast<size_t>(health);
    if (++problem_counts_[index] > kMostProblems) return;
    problems_[index] += (problems_[index].empty() ? "" : "; ") + problem;
}

Health CheckWriter::State() const {
    for (const Health health : kWorstFirst) {
        if (problem_counts_[static_cast<size_t>(health)] != 0) return health;
    }
    return Health::Ok;
}

std::string CheckWriter::Problems() const {
    std::string text;
    for (const Health health : kWorstFirst) {
        const auto index = static_cast<size_t>(health);
        if (problem_counts_[index] == 0) continue;
        text += (text.empty() ? "" : "; ") + problems_[index];
        const int more = problem_counts_[index] - kMostProblems;
        if (more > 0) text += "; and " + std::to_string(more) + " more";
    }
    return text.empty() ? "no problem found" : text;
}

std::string CheckWriter::PerformanceData() const {
    std::string data;
    for (size_t i = 0; i < std::size(kCounted); ++i) {
        if (counts_[i] != 0) data.append(" ").append(kCounted[i]).append("=") += std::to_string(counts_[i]);
    }
    return data + temperatures_;
}

void CheckWriter::Finish() {
    JudgeEvents();
    std::string text = Problems();
    const std::string data = PerformanceData();
    if (!data.empty()) text += " |" + data;
    constexpr const char* kNames[] = {"OK", "WARNING", "CRITICAL", "UNKNOWN"};
    WriteOutput(output_, std::string("BRANT ") + kNames[Status(true)] + " - " + text + '\n');
}

}  // namespace

int WriteUnknown(int output, const char* problem) {
    char line[256];
    const int length = std::snprintf(line, sizeof line, "BRANT UNKNOWN - %s\n", problem);
    WriteAll(output, {line, std::min(static_cast<size_t>(length), sizeof line - 1)});
    return static_cast<int>(Health::Unknown);
}

std::unique_ptr<Writer> NewCheckWriter(int output) {
    return std::make_unique<CheckWriter>(output);
}
