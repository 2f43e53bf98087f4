#include "cli/eventstr/chassis.h"

#include "cli/eventstr/fields.h"

namespace eventstr {
namespace {

constexpr size_t kSerialNumberShown = 16;  // characters of an enclosure's serial number
constexpr size_t kPortLetters = 2;

// Whatever the locale: enclosures are named in ASCII.
bool IsLetterOrDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

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
    out.Format("Enclosure Address %02X%02X", chassis.bId, chassis.bPort);
}

void GetSlotChassisSun(Bytes payload, size_t offset, TextWriter& out) {
    GetStorChassis(payload, offset, out);
    const std::string_view location = SecondText(payload, offset);
    if (!location.empty()) return out.Text(location);
    out.Text("Slot ");
    Byte2Str(ChassisOf(payload).bId, out);
}

void GetSASPort(Bytes payload, size_t offset, TextWriter& out) {
    out.Text(ReadText(payload, offset).substr(0, kPortLetters));
}

}  // namespace eventstr
