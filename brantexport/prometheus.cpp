#include "brantexport/prometheus.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "brantexport/entries.h"
#include "brantexport/text.h"
#include "brantexport/time.h"

namespace {

// The members of an entry that become the labels of its sample. The strings are arrays, because the dynamic
// loader would have to relocate a pointer at each start.
struct Labels {
    char member[4][16];
};
constexpr Labels kNone = {};
constexpr Labels kByNumber = {{"number"}};
constexpr Labels kByLocation = {{"number", "location"}};
constexpr Labels kBySocket = {{"cartridge", "module"}};

// The strings of a metric that has a sample for each string, with the string as the value of `label`.
struct Words {
    char label[12];
    char word[7][20];  // ends with an empty string
};
constexpr Words kSeverities = {"severity", {"info", "repaired", "caution", "critical", "unknown"}};
constexpr Words kLightStates = {"state", {"off", "on", "blinking", "in an unknown state"}};
constexpr Words kNicBoots = {"state", {"pxe disabled", "pxe enabled", "iscsi enabled", "unknown setting"}};
constexpr Words kBootOnces = {"state", {"not set", "floppy", "cdrom", "hdd", "konf", "pxe"}};
constexpr Words kF1Prompts = {"state", {"enabled", "disabled", "delayed", "undefined"}};

// How the entries of a list become samples.
enum class Group {
    None,        // one sample for each entry
    Count,       // one for each severity: how many entries have that severity
    Latest,      // one for each severity: the value of the last entry that has that severity
    LatestTime,  // like Latest, for a time, which is converted to seconds since 1970
};

// A metric: a member of a section, or of each entry if the section is a list. Most strings are arrays for the
// same reason as in Labels.
struct Metric {
    char name[40];
    char help[72];
    char path[24];  // of the entries, as in EntryWriter
    Labels labels;
    char member[24] = "";          // empty: the value is 1, and the labels contain the information
    double factor = 1;             // multiplies the number, or 1 for true
    char word[12] = "";            // if not empty: the value is 1 if the member is this string, else 0
    const Words* words = nullptr;  // if not null: one sample per string: 1 for the member's, else 0
    Group group = Group::None;
};

constexpr double kMebibyte = 1024 * 1024;
constexpr double kMinute = 60;
constexpr double kMillisecond = 0.001;
constexpr double kPercent = 0.01;

constexpr Metric Is(std::string_view word, Metric metric) {
    for (size_t i = 0; i < word.size(); ++i) metric.word[i] = word[i];
    return metric;
}

// Doesn't compile if the array of words is full: it must end with an empty string.
constexpr Metric EachOf(const Words& words, Metric metric) {
    if (words.word[std::size(words.word) - 1][0] != '\0') throw std::length_error("Words::word");
    metric.words = &words;
    return metric;
}

constexpr Metric BySeverity(Group group, Metric metric) {
    metric.group = group;
    return EachOf(kSeverities, metric);
}

// clang-format off
constexpr Metric kMetrics[] = {
    {"brant_build_info", "The program that made these metrics.",
     "", {{"version"}}},
    {"brant_scrape_duration_seconds", "How long reading took.",
     "", kNone, "duration_ms", kMillisecond},

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
    EachOf(kNicBoots, {"brant_nic_boot_state", "Whether this is how an embedded NIC boots.",
     "nics", kByNumber, "boot"}),
    {"brant_nic_port_info", "A NIC port of a blade, and the enclosure bay that it is connected to.",
     "port_map.ports", {{"slot", "slot_port", "bay", "bay_port"}}},

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
    Is("failed", {"brant_power_supply_failed", "Whether a power supply has failed and its group isn't redundant.",
     "power_supplies", kByNumber, "condition"}),
    Is("degraded", {"brant_power_supply_degraded", "Whether a power supply has failed but its group is redundant.",
     "power_supplies", kByNumber, "condition"}),
    {"brant_power_supply_redundant", "Whether a power supply's group is redundant.",
     "power_supplies", kByNumber, "redundant"},

    EachOf(kLightStates, {"brant_uid_state", "Whether this is the state of the unit identification light.",
     "uid", kNone, "state"}),

    Is("enabled", {"brant_asr_enabled", "Whether the recovery timer runs.",
     "asr", kNone, "state"}),
    {"brant_asr_timeout_seconds", "The recovery timer's timeout.",
     "asr", kNone, "timeout_minutes", kMinute},

    Is("enabled", {"brant_automatic_shutdown_enabled", "Whether the server shuts down in an abnormal environment.",
     "settings", kNone, "automatic_shutdown"}),
    {"brant_boot_order_position", "Position of a device in the boot order.",
     "settings.boot_order", {{"name"}}, "position"},
    EachOf(kBootOnces, {"brant_boot_once_state", "Whether this is the one-time boot device.",
     "settings", kNone, "boot_once"}),
    EachOf(kF1Prompts, {"brant_post_f1_prompt_state", "Whether this is the setting of the POST F1 prompt.",
     "settings", kNone, "post_f1_prompt"}),
    Is("enabled", {"brant_wake_on_lan_enabled", "Whether Wake-On-Lan is enabled.",
     "settings", kNone, "wake_on_lan"}),
    Is("enabled", {"brant_hyper_threading_enabled", "Whether hyper-threading is enabled.",
     "settings", kNone, "hyper_threading"}),

    {"brant_firmware_info", "A component of the firmware.",
     "versions", {{"component", "baseline", "current"}}},

    BySeverity(Group::Count, {"brant_events", "Entries of the event log.",
     "events", kNone}),
    BySeverity(Group::Latest, {"brant_newest_event_number", "Number of the newest entry of the event log.",
     "events", kNone, "number"}),
    BySeverity(Group::LatestTime, {"brant_newest_event_timestamp_seconds", "Time of the newest entry of the event log.",
     "events", kNone, "last_time"}),
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
        if (*member == '\0') break;
        AppendLabel(member, entry[member], labels);
    }
    return labels;
}

// Returns whether one of the members that become labels is not null.
bool HasLabel(const Metric& metric, const Entry& entry) {
    const auto& members = metric.labels.member;
    return std::any_of(std::begin(members), std::end(members), [&](const char* member) {
        return *member != '\0' && entry[member].kind != Value::Kind::Null;
    });
}

// Returns the index of the value's string, or that of the empty string at the end.
size_t IndexOf(const Words& words, const Value& value) {
    const auto found = std::find_if(std::begin(words.word), std::end(words.word),
                                    [&](const char* word) { return *word == '\0' || value.text == word; });
    return static_cast<size_t>(found - std::begin(words.word));
}

// The samples of a metric.
class Samples {
  public:
    void Add(const Metric& metric, const Entry& entry);
    // Returns the lines of all samples.
    std::string Lines(const Metric& metric) const;

  private:
    void AddToGroup(const Metric& metric, const Entry& entry);
    void AddValue(const Metric& metric, const Entry& entry, double value);

    // Labels and value. If the metric has a sample for each of several strings, the value is the index of the
    // member's string.
    std::vector<std::pair<std::string, double>> values_;
    std::unordered_map<std::string, size_t> index_;          // from the labels to the index in `values_`
    std::optional<double> groups_[std::size(Words{}.word)];  // of each severity, if the metric has groups
};

void Samples::Add(const Metric& metric, const Entry& entry) {
    if (metric.group != Group::None) return AddToGroup(metric, entry);
    if (metric.member[0] == '\0') {
        if (HasLabel(metric, entry)) AddValue(metric, entry, 1);
        return;
    }
    const Value value = entry[metric.member];
    if (value.kind == Value::Kind::Null) return;
    if (metric.words != nullptr) {
        AddValue(metric, entry, static_cast<double>(IndexOf(*metric.words, value)));
    } else if (metric.word[0] != '\0') {
        AddValue(metric, entry, value.text == metric.word ? 1 : 0);
    } else {
        AddValue(metric, entry, static_cast<double>(value.number) * metric.factor);
    }
}

void Samples::AddToGroup(const Metric& metric, const Entry& entry) {
    std::optional<double>& sample = groups_[IndexOf(*metric.words, entry[metric.words->label])];
    if (metric.group == Group::Count) {
        sample = sample.value_or(0) + 1;
        return;
    }
    const Value value = entry[metric.member];
    sample.reset();  // without a valid time, the entry has no sample: the time of an older one would be wrong
    if (value.kind != Value::Kind::Null) sample = static_cast<double>(value.number);
}

void Samples::AddValue(const Metric& metric, const Entry& entry, double value) {
    // Prometheus rejects two samples with the same labels, so only the one with the lower value is printed.
    // If two memory modules have the same socket number, this reports the failed one.
    const auto [known, is_new] = index_.emplace(LabelsOf(metric, entry), values_.size());
    if (is_new) values_.emplace_back(known->first, value);
    double& lower = values_[known->second].second;
    lower = std::min(lower, value);
}

std::string Samples::Lines(const Metric& metric) const {
    std::string lines;
    if (metric.words == nullptr) {
        for (const auto& [labels, value] : values_) AppendSample(metric.name, labels, value, lines);
        return lines;
    }
    for (size_t i = 0; metric.words->word[i][0] != '\0'; ++i) {
        const auto append = [&](std::string labels, double value) {
            AppendLabel(metric.words->label, Text(metric.words->word[i]), labels);
            AppendSample(metric.name, labels, value, lines);
        };
        for (const auto& [labels, index] : values_) append(labels, index == static_cast<double>(i) ? 1 : 0);
        if (metric.group == Group::Count) {
            append("", groups_[i].value_or(0));
        } else if (groups_[i] && metric.group == Group::LatestTime) {
            append("", static_cast<double>(SecondsOf(static_cast<int64_t>(*groups_[i]))));
        } else if (groups_[i]) {
            append("", *groups_[i]);
        }
    }
    return lines;
}

class PrometheusWriter : public EntryWriter {
  public:
    PrometheusWriter(std::string& text, const std::vector<Section>& sections) : text_(text) {
        for (const Section& section : sections) errors_.emplace_back(section.name, 0);
    }
    void Finish() override;

  private:
    void Take(std::string_view path, const Entry& entry) override;
    // Returns whether a section was exported completely.
    bool IsComplete(std::string_view section) const;

    std::string& text_;
    Samples samples_[std::size(kMetrics)];
    std::string path_;                                      // of the last entry
    std::vector<size_t> rows_;                              // indices of the rows of kMetrics with this path
    std::vector<std::pair<std::string_view, int>> errors_;  // each section and the number of its errors
};

void PrometheusWriter::Take(std::string_view path, const Entry& entry) {
    if (path != path_) {
        path_ = path;
        rows_.clear();
        for (size_t i = 0; i < std::size(kMetrics); ++i) {
            if (path == kMetrics[i].path) rows_.push_back(i);
        }
    }
    for (const size_t row : rows_) samples_[row].Add(kMetrics[row], entry);
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
        // If only part of the log could be read, its count would be too low, and the next complete count
        // would look like many new events.
        if (metric.group != Group::None && !IsComplete(metric.path)) continue;
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
    text_ = std::move(text);
}

}  // namespace

std::unique_ptr<Writer> NewPrometheusWriter(std::string& text, const std::vector<Section>& sections) {
    return std::make_unique<PrometheusWriter>(text, sections);
}
