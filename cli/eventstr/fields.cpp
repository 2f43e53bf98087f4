#include "cli/eventstr/fields.h"

#include "cli/eventstr/words.h"

namespace eventstr {
namespace {

constexpr uint8_t kUnknownByte = 0xFF;
constexpr uint32_t kUnknownDword = 0xFFFFFFFF;

constexpr size_t kSerialNumberShown = 16;  // characters printed of an enclosure's serial number

// Prints `text` after `prefix`; prints nothing if `text` is empty.
void TextWithPrefix(const char* prefix, std::string_view text, TextWriter& out) {
    if (text.empty()) return;
    out.Text(prefix);
    out.Text(text);
}

// Doesn't use isalnum(), which depends on the locale: serial numbers are ASCII.
bool IsLetterOrDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
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
    out.Number(bTemp);
    out.Letter('C');
}

void Dword2Str(uint32_t dwValue, TextWriter& out) {
    if (dwValue == kUnknownDword) return out.Text(szUnknown);
    out.Number(dwValue);
}

void Dword2HexStr(uint32_t dwValue, TextWriter& out) {
    if (dwValue == kUnknownDword) return out.Text(szUnknown);
    out.Text("0x");
    out.Hex(dwValue, 8);
}

void PlainByte(uint8_t value, TextWriter& out) {
    out.Number(value);
}

void PlainHexByte(uint8_t value, TextWriter& out) {
    out.Hex(value, 2);
}

void GetBCDString(uint8_t bBCD, TextWriter& out) {
    out.Letter(static_cast<char>('0' + (bBCD & 15)));
    out.Letter(static_cast<char>('0' + (bBCD >> 4)));
}

void PlainWord(uint16_t value, TextWriter& out) {
    out.Number(value);
}

void BoardPrefix(uint8_t bBoard, TextWriter& out) {
    if (bBoard == 0) return;
    out.Text("Board ");
    out.Number(bBoard);
    out.Text(", ");
}

void PlainText(Bytes payload, size_t offset, TextWriter& out) {
    out.Text(ReadText(payload, offset));
}

void ReformattedText(Bytes payload, size_t offset, TextWriter& out) {
    CopyAndReformat(out, ReadText(payload, offset));
}

void SerialNumber(Bytes payload, size_t offset, TextWriter& out) {
    TextWithPrefix(", Serial Number ", ReadText(payload, offset), out);
}

void SpareNumber(Bytes payload, size_t offset, TextWriter& out) {
    TextWithPrefix(", Spare Number ", SecondText(payload, offset), out);
}

void ExtraText(Bytes payload, size_t offset, TextWriter& out) {
    TextWithPrefix(", ", ReadText(payload, offset), out);
}

void SecondExtraText(Bytes payload, size_t offset, TextWriter& out) {
    TextWithPrefix(", ", SecondText(payload, offset), out);
}

void GetSASPort(Bytes payload, size_t offset, TextWriter& out) {
    for (size_t i = 0; i < 2; ++i) {
        const auto letter = ReadPaddedField<uint8_t>(payload, offset + i);
        if (letter == 0) return;
        out.Letter(static_cast<char>(letter));
    }
}

EVT_CHASSIS ChassisOf(Bytes payload) {
    return {ReadPaddedField<uint8_t>(payload, offsetof(EVT_CHASSIS, bType)),
            ReadPaddedField<uint8_t>(payload, offsetof(EVT_CHASSIS, bId)),
            ReadPaddedField<uint8_t>(payload, offsetof(EVT_CHASSIS, bPort))};
}

void GetSysChassis(Bytes payload, size_t offset, TextWriter& out) {
    const std::string_view name = ReadText(payload, offset);
    if (!name.empty()) return out.Text(name);
    Byte2Str(ChassisOf(payload).bId, out);
}

void GetStorChassis(Bytes payload, size_t offset, TextWriter& out) {
    const std::string_view name = ReadText(payload, offset);
    if (name.empty()) return;
    out.Text("Chassis ");
    out.Text(name);
    out.Text(", ");
}

void GetChassisEx(Bytes payload, size_t offset, TextWriter& out) {
    const std::string_view name = ReadText(payload, offset);
    if (!name.empty() && IsLetterOrDigit(name[0])) {
        out.Text("Enclosure Serial Number ");
        return out.Text(name.substr(0, kSerialNumberShown));
    }
    const EVT_CHASSIS chassis = ChassisOf(payload);
    out.Text("Enclosure Address ");
    out.Hex(chassis.bId, 2);
    out.Hex(chassis.bPort, 2);
}

void GetChassis(Bytes payload, size_t offset, TextWriter& out) {
    const EVT_CHASSIS chassis = ChassisOf(payload);
    switch (chassis.bType) {
        case kChassisServer: out.Text("Chassis "); return GetSysChassis(payload, offset, out);
        case kChassisExternalStorage:
        case kChassisInternalStorage:
            GetStorChassis(payload, offset, out);
            out.Text("Slot ");
            return Byte2Str(chassis.bId, out);
        default: return GetChassisEx(payload, offset, out);
    }
}

void GetSlotChassisSun(Bytes payload, size_t offset, TextWriter& out) {
    GetStorChassis(payload, offset, out);
    const std::string_view location = SecondText(payload, offset);
    if (!location.empty()) return out.Text(location);
    out.Text("Slot ");
    Byte2Str(ChassisOf(payload).bId, out);
}

std::string_view SecondText(Bytes payload, size_t offset) {
    return ReadText(payload, offset + ReadText(payload, offset).size() + 1);
}

void CopyAndReformat(TextWriter& out, std::string_view source) {
    bool started = false;
    bool gap = false;  // whether there was white space after the last printed character
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
