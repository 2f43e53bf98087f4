#include "brantexport/sections.h"

namespace {

// A message of the shell as one plain sentence: its lines joined, without the mark of an error.
std::string Plain(std::string_view message) {
    constexpr std::string_view kMark = "ERROR: ";
    std::string sentence;
    for (const char letter : message.substr(message.find_first_not_of('\n'))) {
        sentence += letter == '\n' ? ' ' : letter;
    }
    if (sentence.compare(0, kMark.size(), kMark) == 0) sentence.erase(0, kMark.size());
    return sentence;
}

}  // namespace

bool Errors::Add(const char* sentence) {
    if (sentence == nullptr) return false;
    list_.push_back({{"section", section_}, {"message", Plain(sentence)}});
    return true;
}

const std::vector<Section>& Sections() {
    static const std::vector<Section> sections = {
        {"system", ReadSystem},
        {"processors", ReadProcessors},
        {"memory", ReadMemory},
        {"nics", ReadNics},
        {"fans", ReadFans},
        {"temperatures", ReadTemperatures},
        {"power_supplies", ReadPowerSupplies},
        {"uid", ReadUid},
        {"asr", ReadAsr},
        {"settings", ReadSettings},
        {"versions", ReadVersions},
        {"events", ReadEvents},
    };
    return sections;
}
