#include "brantexport/prometheus.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "brantexport/entries.h"
#include "brantexport/output.h"
#include "brantexport/text.h"

namespace {

// Members of an entry, which become the labels of its sample.
struct Labels {
    const char* member[3];
};
constexpr Labels kNone = {};
constexpr Labels kByNumber = {{"number"}};
constexpr Labels kByLocation = {{"number", "location"}};
constexpr Labels kBySocket = {{"cartridge", "module"}};

// The words of a member that has a sample for each of them.
struct Words {
    const char* word[6];
};
constexpr Words kSeverities = {{"info", "repaired", "caution", "critical", "unknown"}};

// A metric: a member of a section, or of each entry if the section is a list.
struct Metric {
    const char* name;
    const char* help;
    const char* path;  // of the entries, as in EntryWriter
    Labels labels;
    const char* member = nullptr;  // null: the value is 1, and the labels contain the information
    double factor = 1;             // the number, or 1 for true, is multiplied by it
    const char* word = nullptr;    // the value is 1 if the member is this string, else 0
    // If not null: the metric has a sample for each of these words, with the word in a label that is called
    // like the member. Its value is the number of entries with that word.
    const Words* counted = nullptr;
};

constexpr double kMebibyte = 1024 * 1024;
constexpr double kMinute = 60;
constexpr double kPercent = 0.01;

constexpr Metric Is(const char* word, Metric metric) {
    metric.word = word;
    return metric;
}

constexpr Metric CountOf(const Words& words, Metric metric) {
    metric.counted = &words;
    return metric;
}

// clang-format off
constexpr Metric kMetrics[] = {
    {"brant_system_info", "The server.",
     "system", {{"product_name", "serial_number", "rom_version"}}},
    {"brant_memory_installed_bytes", "Memory that the firmware has found.",
     "system", kNone, "memory_mib", kMebibyte},
    {"brant_management_processor_present", "Whether there is a management processor.",
     "system", kNone, "management_processor"},

    Is("ok", {"brant_processor_ok", "Whether the firmware calls a processor ok.",
     "processors", {{"number", "name"}}, "status"}),

    {"brant_memory_module_size_bytes", "Size of a memory module.",
     "memory", kBySocket, "size_mib", kMebibyte},
    Is("ok", {"brant_memory_module_ok", "Whether the driver calls a memory module ok.",
     "memory", kBySocket, "status"}),

    {"brant_nic_info", "An embedded NIC.",
     "nics", {{"number", "mac_address", "boot"}}},

    {"brant_fan_present", "Whether a fan is there.",
     "fans", kByLocation, "present"},
    {"brant_fan_failed", "Whether a fan has failed.",
     "fans", kByLocation, "failed"},
    {"brant_fan_redundant", "Whether a fan's group is redundant.",
     "fans", kByLocation, "redundant"},
    {"brant_fan_speed_ratio", "Speed of a fan, of its highest.",
     "fans", kByLocation, "speed_percent", kPercent},

    {"brant_temperature_celsius", "Reading of a temperature sensor.",
     "temperatures", kByLocation, "temperature_celsius"},
    {"brant_temperature_threshold_celsius", "Threshold of a temperature sensor.",
     "temperatures", kByLocation, "threshold_celsius"},

    {"brant_power_supply_present", "Whether a power supply is there.",
     "power_supplies", kByNumber, "present"},
    Is("ok", {"brant_power_supply_ok", "Whether a power supply has not failed.",
     "power_supplies", kByNumber, "condition"}),
    {"brant_power_supply_redundant", "Whether a power supply's group is redundant.",
     "power_supplies", kByNumber, "redundant"},

    {"brant_uid_info", "The unit identification light.",
     "uid", {{"state"}}},

    Is("enabled", {"brant_asr_enabled", "Whether the recovery timer runs.",
     "asr", kNone, "state"}),
    {"brant_asr_timeout_seconds", "The recovery timer's timeout.",
     "asr", kNone, "timeout_minutes", kMinute},

    Is("enabled", {"brant_automatic_shutdown_enabled", "Whether the server shuts down in an abnormal environment.",
     "settings", kNone, "automatic_shutdown"}),
    Is("enabled", {"brant_wake_on_lan_enabled", "Whether Wake-On-Lan is enabled.",
     "settings", kNone, "wake_on_lan"}),
    Is("enabled", {"brant_hyper_threading_enabled", "Whether hyper-threading is enabled.",
     "settings", kNone, "hyper_threading"}),

    {"brant_firmware_info", "A component of the firmware.",
     "versions", {{"component", "baseline", "current"}}},

    CountOf(kSeverities, {"brant_events", "Entries of the event log.",
     "events", kNone, "severity"}),
};
// clang-format on

void AppendNumber(double value, std::string& text) {
    char digits[32];
    const auto integer = static_cast<int64_t>(value);
    // The C library takes thousands of instructions to format a double.
    if (static_cast<double>(integer) == value) {
        text.append(digits, std::to_chars(digits, std::end(digits), integer).ptr);
    } else {
        std::snprintf(digits, sizeof digits, "%.15g", value);
        text += digits;
    }
}

void AppendEscaped(std::string_view value, std::string& text) {
    for (const char letter : value) {
        if (letter == '\\' || letter == '"') text += '\\';
        if (letter == '\n') {
            text += "\\n";
        } else {
            text += letter;
        }
    }
}

void AppendValue(const Value& value, std::string& text) {
    std::string buffer;
    switch (value.kind) {
        case Value::Kind::Null: break;
        case Value::Kind::Flag: text += value.number != 0 ? "true" : "false"; break;
        case Value::Kind::Number: AppendNumber(static_cast<double>(value.number), text); break;
        default: AppendEscaped(Utf8(value, buffer), text);
    }
}

// Appends a label: key="value"
void AppendLabel(std::string_view key, const Value& value, std::string& labels) {
    if (!labels.empty()) labels += ',';
    labels.append(key).append("=\"");
    AppendValue(value, labels);
    labels += '"';
}

// Appends a line: name{key="value",...} number
void AppendSample(std::string_view name, std::string_view labels, double value, std::string& text) {
    text += name;
    if (!labels.empty()) text.append("{").append(labels).append("}");
    text += ' ';
    AppendNumber(value, text);
    text += '\n';
}

// Appends the lines of a metric, unless it has no samples.
void AppendMetric(const char* name, const char* help, const std::string& samples, std::string& text) {
    if (samples.empty()) return;
    text.append("# HELP ").append(name).append(" ").append(help) += '\n';
    text.append("# TYPE ").append(name).append(" gauge") += '\n';
    text += samples;
}

std::string LabelsOf(const Metric& metric, const Entry& entry) {
    std::string labels;
    for (const char* member : metric.labels.member) {
        if (member == nullptr) break;
        AppendLabel(member, entry[member], labels);
    }
    return labels;
}

// Returns the value of a sample, or nothing if the entry has no sample: its member or, without a member, all
// of its labels are null.
std::optional<double> SampleOf(const Metric& metric, const Entry& entry) {
    if (metric.member == nullptr) {
        const auto& members = metric.labels.member;
        const bool known = std::any_of(std::begin(members), std::end(members), [&](const char* member) {
            return member != nullptr && entry[member].kind != Value::Kind::Null;
        });
        return known ? std::optional<double>(1) : std::nullopt;
    }
    const Value value = entry[metric.member];
    if (value.kind == Value::Kind::Null) return {};
    if (metric.word != nullptr) return value.text == metric.word ? 1 : 0;
    return static_cast<double>(value.number) * metric.factor;
}

// The samples of a metric.
class Samples {
  public:
    void Add(const Metric& metric, const Entry& entry);
    // Returns the lines of all samples.
    std::string Lines(const Metric& metric) const;

  private:
    std::vector<std::pair<std::string, double>> samples_;  // labels and value
    std::unordered_map<std::string, size_t> index_;        // from the labels to the index in `samples_`
    int counts_[std::size(Words{}.word)] = {};
};

void Samples::Add(const Metric& metric, const Entry& entry) {
    if (metric.counted != nullptr) {
        const std::string_view word = entry[metric.member].text;
        for (size_t i = 0; i < std::size(counts_) && metric.counted->word[i] != nullptr; ++i) {
            if (word == metric.counted->word[i]) ++counts_[i];
        }
        return;
    }
    const std::optional<double> value = SampleOf(metric, entry);
    if (!value) return;
    // Prometheus rejects two samples with the same labels, so only the one with the lower value is printed.
    // If two memory modules have the same socket number, this reports the failed one.
    const auto [known, is_new] = index_.emplace(LabelsOf(metric, entry), samples_.size());
    if (is_new) {
        samples_.emplace_back(known->first, *value);
    } else {
        double& lower = samples_[known->second].second;
        lower = std::min(lower, *value);
    }
}

std::string Samples::Lines(const Metric& metric) const {
    std::string lines;
    for (const auto& [labels, value] : samples_) AppendSample(metric.name, labels, value, lines);
    if (metric.counted == nullptr) return lines;
    for (size_t i = 0; i < std::size(counts_) && metric.counted->word[i] != nullptr; ++i) {
        std::string label;
        AppendLabel(metric.member, Word(metric.counted->word[i]), label);
        AppendSample(metric.name, label, counts_[i], lines);
    }
    return lines;
}

class PrometheusWriter : public EntryWriter {
  public:
    PrometheusWriter(int output, const std::vector<Section>& sections) : output_(output) {
        for (const Section& section : sections) errors_.emplace_back(section.name, 0);
    }
    void Finish() override;

  private:
    void Take(std::string_view path, const Entry& entry) override;
    // Returns whether a section was exported completely.
    bool IsComplete(std::string_view section) const;

    int output_;
    Samples samples_[std::size(kMetrics)];
    std::vector<std::pair<std::string_view, int>> errors_;  // of each section
};

void PrometheusWriter::Take(std::string_view path, const Entry& entry) {
    for (size_t i = 0; i < std::size(kMetrics); ++i) {
        if (path == kMetrics[i].path) samples_[i].Add(kMetrics[i], entry);
    }
    if (path != "errors") return;
    const std::string_view failed = entry["section"].text;
    for (auto& [section, count] : errors_) count += section == failed ? 1 : 0;
}

bool PrometheusWriter::IsComplete(std::string_view section) const {
    return std::find(errors_.begin(), errors_.end(), std::pair(section, 0)) != errors_.end();
}

void PrometheusWriter::Finish() {
    std::string text;
    for (size_t i = 0; i < std::size(kMetrics); ++i) {
        const Metric& metric = kMetrics[i];
        // If the log could be read only in part, the next complete reading would look like many new events.
        if (metric.counted != nullptr && !IsComplete(metric.path)) continue;
        AppendMetric(metric.name, metric.help, samples_[i].Lines(metric), text);
    }
    std::string samples;
    for (const auto& [section, count] : errors_) {
        std::string label;
        AppendLabel("section", Text(section), label);
        AppendSample("brant_read_errors", label, count, samples);
    }
    AppendMetric("brant_read_errors", "What could not be read of a section.", samples, text);
    text += "# EOF\n";  // a comment that shows that the text is complete
    WriteOutput(output_, text);
}

}  // namespace

std::unique_ptr<Writer> NewPrometheusWriter(int output, const std::vector<Section>& sections) {
    return std::make_unique<PrometheusWriter>(output, sections);
}
