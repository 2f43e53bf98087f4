#include "brantexport/document.h"

#include <string>

Json Errors::Add(const char* message) {
    list_.push_back({{"section", section_}, {"message", message}});
    return nullptr;
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
