#include "platform/sim/picl_tree.h"

#include <utility>

#include "platform/sim/machine_directory.h"
#include "src/utils/text.h"

namespace {

constexpr size_t kSpacesPerLevel = 2;

// Parses a property, NAME=NUMBER. Returns false if the word isn't one.
bool ReadProperty(std::string_view word, PiclProperty& property) {
    const size_t equals = word.find('=');
    uint64_t number = 0;
    if (equals == word.npos || equals == 0) return false;
    if (!ReadNumber(word.substr(equals + 1), UINT32_MAX, number)) return false;
    property = {word.substr(0, equals), static_cast<uint32_t>(number)};
    return true;
}

}  // namespace

void PiclTree::Read(const char* file, std::string text) {
    nodes_.clear();
    properties_.clear();
    text_ = std::move(text);
    size_t skipped = SIZE_MAX;  // indentation of a rejected line; the nodes below it are skipped
    for (Lines lines(file, text_); lines.Next();) {
        const size_t indentation = lines.Indentation();
        if (indentation > skipped) continue;
        const bool is_node = ReadNode(lines.Line(), indentation);
        skipped = is_node ? SIZE_MAX : indentation;
        if (!is_node) lines.Reject();
    }
}

// Parses a line and appends it as a node. Returns false if the indentation or a property is invalid.
bool PiclTree::ReadNode(std::string_view line, size_t indentation) {
    const size_t level = indentation / kSpacesPerLevel;
    const bool fits = nodes_.empty() ? level == 0 : level > 0 && level <= nodes_.back().level + 1;
    if (!fits || indentation % kSpacesPerLevel != 0) return false;

    const std::string_view class_name = TakeWord(line, ' ');
    const size_t properties = properties_.size();
    if (!ReadProperties(line)) {
        properties_.resize(properties);
        return false;
    }
    nodes_.push_back({level, class_name, properties, properties_.size()});
    return true;
}

bool PiclTree::ReadProperties(std::string_view text) {
    for (auto word = TakeWord(text, ' '); !word.empty(); word = TakeWord(text, ' ')) {
        PiclProperty property;
        if (!ReadProperty(word, property)) return false;
        properties_.push_back(property);
    }
    return true;
}

bool PiclTree::FindProperty(const PiclNode& node, std::string_view name, uint32_t& value) const {
    for (size_t i = node.properties; i < node.properties_end; ++i) {
        if (properties_[i].name != name) continue;
        value = properties_[i].value;
        return true;
    }
    return false;
}
