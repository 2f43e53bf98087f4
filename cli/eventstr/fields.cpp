#include "cli/eventstr/fields.h"

#include "cli/eventstr/words.h"

namespace eventstr {
namespace {

constexpr uint8_t kUnknownByte = 0xFF;
constexpr uint32_t kUnknownDword = 0xFFFFFFFF;

// A text behind its introduction; nothing at all when the text is empty.
void Introduced(const char* introduction, std::string_view text, TextWriter& out) {
    if (text.empty()) return;
    out.Text(introduction);
    out.Text(text);
}

bool IsSpace(char letter) {
    return letter == ' ' || (letter >= '\t' && letter <= '\r');
}

}  // namespace

void Byte2Str(uint8_t bValue, TextWriter& out) {
    if (bValue == kUnknownByte) return out.Text(szUnknown);
    PlainByte(bValue, out);
}

void Char2Str(uint8_t bValue, TextWriter& out) {
    if (bValue == kUnknownByte) return out.Text(szUnknown);
    if (bValue != 0) out.Letter(static_cast<char>(bValue));
}

void GetTemp(uint8_t bTemp, TextWriter& out) {
    if (bTemp == kUnknownByte) return out.Text(szUnknown);
    out.Format("%uC", bTemp);
}

void Dword2Str(uint32_t dwValue, TextWriter& out) {
    if (dwValue == kUnknownDword) return out.Text(szUnknown);
    out.Format("%u", dwValue);
}

void Dword2HexStr(uint32_t dwValue, TextWriter& out) {
    if (dwValue == kUnknownDword) return out.Text(szUnknown);
    out.Format("0x%08X", dwValue);
}

void PlainByte(uint8_t value, TextWriter& out) {
    out.Format("%u", value);
}

void PlainHexByte(uint8_t value, TextWriter& out) {
    out.Format("%02X", value);
}

void GetBCDString(uint8_t bBCD, TextWriter& out) {
    out.Letter(static_cast<char>('0' + (bBCD & 15)));
    out.Letter(static_cast<char>('0' + (bBCD >> 4)));
}

void PlainWord(Bytes payload, size_t offset, TextWriter& out) {
    out.Format("%d", ReadPaddedField<uint16_t>(payload, offset));
}

void PlainText(Bytes payload, size_t offset, TextWriter& out) {
    out.Text(ReadText(payload, offset));
}

void ReformattedText(Bytes payload, size_t offset, TextWriter& out) {
    CopyAndReformat(out, ReadText(payload, offset));
}

void BoardPrefix(Bytes payload, size_t offset, TextWriter& out) {
    const auto board = ReadPaddedField<uint8_t>(payload, offset);
    if (board != 0) out.Format("Board %d, ", board);
}

void SerialNumber(Bytes payload, size_t offset, TextWriter& out) {
    Introduced(", Serial Number ", ReadText(payload, offset), out);
}

void SpareNumber(Bytes payload, size_t offset, TextWriter& out) {
    Introduced(", Spare Number ", SecondText(payload, offset), out);
}

void ExtraText(Bytes payload, size_t offset, TextWriter& out) {
    Introduced(", ", ReadText(payload, offset), out);
}

void SecondExtraText(Bytes payload, size_t offset, TextWriter& out) {
    Introduced(", ", SecondText(payload, offset), out);
}

std::string_view SecondText(Bytes payload, size_t offset) {
    return ReadText(payload, offset + ReadText(payload, offset).size() + 1);
}

void CopyAndReformat(TextWriter& out, std::string_view source) {
    bool started = false;
    bool gap = false;  // white space since the last letter
    for (const char letter : source) {
        if (IsSpace(letter)) {
            gap = started;
            continue;
        }
        if (gap) out.Letter(' ');
        out.Letter(letter);
        started = true;
        gap = false;
    }
}

}  // namespace eventstr
