#include "platform/sim/picl_tree.h"

#include <algorithm>
#include <utility>

#include "platform/sim/text_file.h"

namespace {

constexpr size_t kBlanksPerLevel = 2;

// Takes the next of the words that blanks separate; empty at the end.
std::string_view TakeWord(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(word.size());
    return word;
}

// Takes a property apart. False when it isn't NAME=NUMBER.
bool ReadProperty(std::string_view word, std::string_view& name, uint32_t& value) {
    const size_t equals = word.find('=');
    uint64_t number = 0;
    if (equals == word.npos || equals == 0) return false;
    if (!ReadNumber(word.substr(equals + 1), UINT32_MAX, number)) return false;
    name = word.substr(0, equals);
    value = static_cast<uint32_t>(number);
    return true;
}

bool AreProperties(std::string_view text) {
    for (std::string_view word = TakeWord(text); !word.empty(); word = TakeWord(text)) {
        std::string_view name;
        uint32_t value = 0;
        if (!ReadProperty(word, name, value)) return false;
    }
    return true;
}

// Reads a line into the node that follows nodes in the file. False when it can't be one.
bool ReadNode(std::string_view line, size_t indentation, std::vector<PiclNode>& nodes) {
    const size_t level = indentation / kBlanksPerLevel;
    const bool fits = nodes.empty() ? level == 0 : level > 0 && level <= nodes.back().level + 1;
    if (!fits || indentation % kBlanksPerLevel != 0) return false;

    const std::string_view class_name = TakeWord(line);
    if (!AreProperties(line)) return false;
    nodes.push_back({level, class_name, line});
    return true;
}

}  // namespace

void PiclTree::Read(const char* file, std::string text) {
    nodes_.clear();
    text_ = std::move(text);
    size_t skipped = SIZE_MAX;  // the indentation of a line that was skipped: so is what stands below it
    for (Lines lines(file, text_); lines.Take();) {
        const size_t indentation = lines.Indentation();
        if (indentation > skipped) continue;
        const bool is_node = ReadNode(lines.Line(), indentation, nodes_);
        skipped = is_node ? SIZE_MAX : indentation;
        if (!is_node) lines.Reject();
    }
}

bool FindProperty(const PiclNode& node, std::string_view name, uint32_t& value) {
    std::string_view text = node.properties;
    for (std::string_view word = TakeWord(text); !word.empty(); word = TakeWord(text)) {
        std::string_view found;
        uint32_t number = 0;
        if (!ReadProperty(word, found, number) || found != name) continue;
        value = number;
        return true;
    }
    return false;
}
