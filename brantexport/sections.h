// What is exported, section by section. What a value means is the shell's to say: the sections take its words
// and numbers, and give them names.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

// Members stay in the order in which they are added.
using Json = nlohmann::ordered_json;

// A text of the firmware or the driver. Its bytes may be any; those that aren't ASCII are taken for the
// characters with their numbers.
Json Text(std::string_view bytes);

// A word of the shell's displays, in lower case; null for null.
Json Word(const char* word);

// What could not be read: an entry for each, with its section and a sentence.
class Errors {
  public:
    void Begin(const char* section) { section_ = section; }
    // sentence: as the shell says it; null for none. Result: whether there is one.
    bool Add(const char* sentence);
    const Json& List() const { return list_; }

  private:
    const char* section_ = "";
    Json list_ = Json::array();
};

struct Section {
    const char* name;
    // The section's value. What can't be read is null in it, and an error. What the machine doesn't have is
    // an empty list, what nobody tells null.
    Json (*read)(Errors& errors);
};

// All of them, in the order in which they are written.
const std::vector<Section>& Sections();

// By their files.
Json ReadSystem(Errors& errors);  // inventory.cpp
Json ReadProcessors(Errors& errors);
Json ReadNics(Errors& errors);
Json ReadMemory(Errors& errors);  // health.cpp
Json ReadFans(Errors& errors);
Json ReadTemperatures(Errors& errors);
Json ReadPowerSupplies(Errors& errors);
Json ReadUid(Errors& errors);
Json ReadAsr(Errors& errors);
Json ReadSettings(Errors& errors);  // settings.cpp
Json ReadVersions(Errors& errors);
Json ReadEvents(Errors& errors);  // events.cpp

// The exported values as Prometheus's text format has them: gauges with labels.
// document: what is exported as JSON, sections and errors. A value that is null has no sample, and neither
// have the entries of an event log that couldn't be read to its end. The last line is "# EOF".
std::string PrometheusText(const Json& document);
