#include "brantexport/prometheus.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <unordered_map>
#include <utility>
#include <vector>

namespace {

// Members of an entry, which become the labels of its sample.
struct Labels {
    const char* member[3];
};
constexpr Labels kNone = {};
constexpr Labels kByNumber = {{"number"}};
constexpr Labels kByLocation = {{"number", "location"}};
constexpr Labels kBySocket = {{"cartridge", "module"}};

// A metric: a member of a section, or of each entry if the section is a list.
struct Metric {
    const char* name;
    const char* help;
    const char* section;
    Labels labels;
    const char* member = nullptr;  // null: the value is 1, and the labels contain the information
    double factor = 1;             // the number, or 1 for true, is multiplied by it
    const char* word = nullptr;    // the value is 1 if the member is this string, else 0
};

constexpr double kMebibyte = 1024 * 1024;
constexpr double kMinute = 60;
constexpr double kPercent = 0.01;

constexpr Metric Is(const char* word, Metric metric) {
    metric.word = word;
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
};
// clang-format on

std::string Escaped(const std::string& value) {
    std::string text;
    for (const char letter : value) {
        if (letter == '\\' || letter == '"') text += '\\';
        text += letter == '\n' ? std::string("\\n") : std::string(1, letter);
    }
    return text;
}

std::string LabelValue(const Json& value) {
    if (value.is_null()) return "";
    return value.is_string() ? Escaped(value.get<std::string>()) : value.dump();
}

// Formats a line: name{key="value",...} number
std::string Sample(const char* name, const std::string& labels, double value) {
    char number[32];
    std::snprintf(number, sizeof number, " %.15g\n", value);
    return name + (labels.empty() ? "" : "{" + labels + "}") + number;
}

std::string Label(const char* key, const std::string& value) {
    return key + ("=\"" + value + "\"");
}

std::string LabelsOf(const Metric& metric, const Json& entry) {
    std::string labels;
    for (const char* member : metric.labels.member) {
        if (member == nullptr) break;
        labels += (labels.empty() ? "" : ",") + Label(member, LabelValue(entry[member]));
    }
    return labels;
}

double ValueOf(const Metric& metric, const Json& value) {
    if (metric.word != nullptr) return value == metric.word ? 1 : 0;
    return (value.is_boolean() ? int{value.get<bool>()} : value.get<double>()) * metric.factor;
}

// Returns whether the entry has a sample: its member or, without a member, one of its labels isn't null.
bool IsKnown(const Metric& metric, const Json& entry) {
    if (metric.member != nullptr) return !entry[metric.member].is_null();
    const auto& members = metric.labels.member;
    return std::any_of(std::begin(members), std::end(members),
                       [&](const char* member) { return member != nullptr && !entry[member].is_null(); });
}

std::string SamplesOf(const Metric& metric, const Json& section) {
    // Prometheus rejects two samples with the same labels, so only the one with the lower value is printed.
    // If two memory modules have the same socket number, this reports the failed one.
    std::vector<std::pair<std::string, double>> samples;
    std::unordered_map<std::string, size_t> index;  // from the labels to the index in `samples`
    const Json entries = section.is_object() ? Json::array({section}) : section;
    for (const Json& entry : entries) {
        if (!IsKnown(metric, entry)) continue;
        const std::string labels = LabelsOf(metric, entry);
        const double value = metric.member != nullptr ? ValueOf(metric, entry[metric.member]) : 1;
        const auto [known, is_new] = index.emplace(labels, samples.size());
        if (is_new) {
            samples.emplace_back(labels, value);
        } else {
            double& lower = samples[known->second].second;
            lower = std::min(lower, value);
        }
    }
    std::string text;
    for (const auto& [labels, value] : samples) text += Sample(metric.name, labels, value);
    return text;
}

bool HasErrorOf(const Json& document, const char* section) {
    const Json& errors = document["errors"];
    return std::any_of(errors.begin(), errors.end(),
                       [&](const Json& error) { return error["section"] == section; });
}

// Returns the lines of a metric, or an empty string if it has no samples.
std::string Block(const char* name, const char* help, const std::string& samples) {
    if (samples.empty()) return "";
    const std::string help_line = std::string("# HELP ") + name + " " + help + '\n';
    return help_line + "# TYPE " + name + " gauge" + '\n' + samples;
}

// Returns a sample for each of `words`: how many entries of `list` have it as the value of `member`.
std::string Counts(const char* name, const Json& list, const char* member,
                   const std::vector<std::string>& words) {
    std::string samples;
    for (const std::string& word : words) {
        int count = 0;
        for (const Json& entry : list) count += entry[member] == word ? 1 : 0;
        samples += Sample(name, Label(member, word), count);
    }
    return samples;
}

}  // namespace

std::string PrometheusText(const Json& document) {
    std::string text;
    std::vector<std::string> sections;
    for (const auto& [name, section] : document.items()) {
        if (name != "errors") sections.push_back(name);
        for (const Metric& metric : kMetrics) {
            if (name == metric.section) text += Block(metric.name, metric.help, SamplesOf(metric, section));
        }
    }
    // If the log could be read only in part, the next complete reading would look like many new events.
    if (document.contains("events") && !HasErrorOf(document, "events")) {
        text += Block("brant_events", "Entries of the event log.",
                      Counts("brant_events", document["events"], "severity",
                             {"info", "repaired", "caution", "critical", "unknown"}));
    }
    return text +
           Block("brant_read_errors", "What could not be read of a section.",
                 Counts("brant_read_errors", document["errors"], "section", sections)) +
           "# EOF\n";  // a comment that shows that the text is complete
}
