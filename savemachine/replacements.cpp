#include "savemachine/replacements.h"

#include <algorithm>
#include <iterator>

namespace {

bool IsBetween(char first, char letter, char last) {
    return letter >= first && letter <= last;
}

bool IsSpace(char letter) {
    return letter == ' ' || IsBetween('\t', letter, '\r');
}

bool IsHexDigit(char letter) {
    return IsBetween('0', letter, '9') || IsBetween('A', letter, 'F') || IsBetween('a', letter, 'f');
}

// Returns whether a string may be a MAC address, a UUID or a similar number: whether it has enough
// hexadecimal digits and no other letters.
bool IsHexadecimal(const std::string& text) {
    constexpr size_t kFewestDigits = 2 * kMacSize;
    const auto is_other_letter = [](char letter) {
        return IsBetween('G', letter, 'Z') || IsBetween('g', letter, 'z');
    };
    const auto digits = std::count_if(text.begin(), text.end(), IsHexDigit);
    return static_cast<size_t>(digits) >= kFewestDigits &&
           std::none_of(text.begin(), text.end(), is_other_letter);
}

bool IsUnset(const std::string& number) {
    return number.find_first_not_of('\0') == number.npos || number.find_first_not_of('\xFF') == number.npos;
}

}  // namespace

std::string Replacements::InventText(const std::string& value) {
    const unsigned letters = IsHexadecimal(value) ? 6 : 26;
    std::string invented = value;
    for (char& letter : invented) {
        if (IsBetween('0', letter, '9')) {
            letter = static_cast<char>('0' + Random(10));
        } else if (IsBetween('A', letter, 'Z')) {
            letter = static_cast<char>('A' + Random(letters));
        } else if (IsBetween('a', letter, 'z')) {
            letter = static_cast<char>('a' + Random(letters));
        } else if (!IsSpace(letter) && !IsBetween('!', letter, '~')) {
            letter = '?';
        }
    }
    return invented;
}

std::string Replacements::InventMac(const std::string& value) {
    std::string invented = value;
    for (char& byte : invented) byte = Random(256);
    invented[0] = static_cast<char>((invented[0] & ~3) | 2);  // marks it as locally administered and unicast
    return invented;
}

std::string Replacements::InventUuid(const std::string& value) {
    std::string invented = value;
    for (char& byte : invented) byte = Random(256);
    invented[7] = static_cast<char>((invented[7] & 0x0F) | 0x40);  // version 4: random
    invented[8] = static_cast<char>((invented[8] & 0x3F) | 0x80);
    return invented;
}

std::string Replacements::Invent(Kind kind, const std::string& value) {
    switch (kind) {
        case Kind::Mac: return InventMac(value);
        case Kind::Uuid: return InventUuid(value);
        default: return InventText(value);
    }
}

const std::string& Replacements::ReplacementOf(Kind kind, const std::string& value) {
    const auto [entry, is_new] = replacements_.try_emplace({kind, value});
    // All replacements of a short value may be in use.
    constexpr int kAttempts = 100;
    for (int i = 0; is_new && i < kAttempts; ++i) {
        entry->second = Invent(kind, value);
        if (entry->second != value && used_.insert(entry->second).second) break;
    }
    return entry->second;
}

void Replacements::ReplaceTexts(std::string& bytes, Part part) {
    constexpr std::string_view kSeparators("\0,", 2);
    constexpr std::string_view kSpace = " \t\n\v\f\r";
    const size_t end = std::min(bytes.size(), part.offset + part.size);
    for (size_t next = part.offset; next < end;) {
        const size_t value_end = std::min(bytes.find_first_of(kSeparators, next), end);
        std::string value = bytes.substr(next, value_end - next);
        value.erase(value.find_last_not_of(kSpace) + 1);
        const size_t first = value.find_first_not_of(kSpace);
        if (first != value.npos) {
            value.erase(0, first);
            bytes.replace(next + first, value.size(), ReplacementOf(Kind::Text, value));
        }
        next = value_end + 1;
    }
}

void Replacements::ReplaceNumber(std::string& bytes, Part part, Kind kind) {
    if (part.offset > bytes.size() || bytes.size() - part.offset < part.size) return;
    const std::string value = bytes.substr(part.offset, part.size);
    if (!IsUnset(value)) bytes.replace(part.offset, part.size, ReplacementOf(kind, value));
}

void Replacements::ReplaceMac(std::string& bytes, size_t offset) {
    ReplaceNumber(bytes, {offset, kMacSize}, Kind::Mac);
}

void Replacements::ReplaceUuid(std::string& bytes, size_t offset) {
    ReplaceNumber(bytes, {offset, kUuidSize}, Kind::Uuid);
}
