#include "brantexport/text.h"

#include <rapidjson/encodings.h>
#include <rapidjson/memorystream.h>

#include <algorithm>
#include <cstring>

#include "brantexport/time.h"

namespace {

// Checks eight bytes at a time, because most strings are ASCII.
bool IsAscii(std::string_view text) {
    constexpr uint64_t kHighBits = 0x8080808080808080;
    uint64_t bytes = 0;
    for (; text.size() >= sizeof bytes; text.remove_prefix(sizeof bytes)) {
        std::memcpy(&bytes, text.data(), sizeof bytes);
        if ((bytes & kHighBits) != 0) return false;
    }
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<signed char>(byte) >= 0; });
}

bool IsUtf8(std::string_view text) {
    rapidjson::MemoryStream stream(text.data(), text.size());
    unsigned code = 0;
    while (stream.Tell() < text.size()) {
        if (!rapidjson::UTF8<>::Decode(stream, &code)) return false;
    }
    return true;
}

void AssignFromLatin1(std::string_view text, std::string& converted) {
    converted.clear();
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (byte < 0x80) {
            converted += letter;
        } else {
            converted += static_cast<char>(0xC0 | byte >> 6);
            converted += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
}

}  // namespace

void AssignLowerCase(std::string_view word, std::string& text) {
    text.assign(word);
    for (char& letter : text) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    }
}

std::string_view Utf8(const Value& value, std::string& buffer) {
    switch (value.kind) {
        case Value::Kind::Time: AssignTime(value.number, buffer); return buffer;
        case Value::Kind::Word: AssignLowerCase(value.text, buffer); return buffer;
        default: break;
    }
    if (IsAscii(value.text) || IsUtf8(value.text)) return value.text;
    AssignFromLatin1(value.text, buffer);
    return buffer;
}
