#include "brantexport/document.h"

#include <string>
#include <string_view>

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

Json Text(std::string_view bytes) {
    std::string text;
    for (const char letter : bytes) {
        const auto byte = static_cast<unsigned char>(letter);
        if (byte < 0x80) {
            text += letter;
        } else {
            text += static_cast<char>(0xC0 | byte >> 6);
            text += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return text;
}

Json Word(const char* word) {
    if (word == nullptr) return nullptr;
    std::string text = word;
    for (char& letter : text) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    }
    return Text(text);
}
