#include "cli/eventstr/catalogue.h"

#include <algorithm>

namespace eventstr {
namespace {

// The text for a chassis; null when there is none.
const char* FormFor(EVT_CHASSIS chassis, const ChassisTexts& texts) {
    switch (chassis.bType) {
        case kChassisServer: return chassis.bId == 0 ? texts.server : texts.external_chassis;
        case kChassisExternalStorage: return texts.external_storage;
        case kChassisInternalStorage: return texts.internal_storage;
        case kChassisBladeEnclosure: return texts.blade_enclosure;
        case kChassisPowerEnclosure: return texts.power_enclosure;
        default: return nullptr;
    }
}

// What names the chassis, ahead of the event's other fields in the parentheses. Result: how many arguments.
size_t ChassisArguments(EVT_CHASSIS chassis, uint8_t name, Argument (&arguments)[2]) {
    if (chassis.bType == kChassisServer && chassis.bId != 0) {
        arguments[0] = {name, GetSysChassis};
        return 1;
    }
    if (chassis.bType == kChassisExternalStorage || chassis.bType == kChassisInternalStorage) {
        arguments[0] = {name, GetStorChassis};
        arguments[1] = kChassisNumber;  // a storage system's is its slot
        return 2;
    }
    return 0;
}

void PrintForm(const char* text, const ChassisEventRow& row, Bytes payload, TextWriter& out) {
    Argument chassis[2];
    const size_t chassis_count = ChassisArguments(ChassisOf(payload), row.chassis_name, chassis);
    const Argument* own = row.arguments;
    const Argument* const own_end = own + Count(row.arguments);
    const Argument* const ahead = own + MarksAhead(text);

    Argument all[kMaxChassisEventArguments + 3];  // two more for a chassis, one for an enclosure
    Argument* next = std::copy(own, ahead, all);
    next = std::copy(chassis, chassis + chassis_count, next);
    next = std::copy(ahead, own_end, next);
    *next = {row.chassis_name, GetChassisEx};
    PrintText(text, all, payload, out);
}

}  // namespace

void Argument::Print(Bytes payload, TextWriter& out) const {
    switch (kind_) {
        case Kind::None: return;
        case Kind::Word: return out.Text(word_(ReadPaddedField<uint8_t>(payload, offset_)));
        case Kind::Byte: return byte_(ReadPaddedField<uint8_t>(payload, offset_), out);
        case Kind::Dword: return dword_(ReadPaddedField<uint32_t>(payload, offset_), out);
        case Kind::Place: return place_(payload, offset_, out);
        case Kind::Whole: return whole_(payload, out);
    }
}

void PrintText(std::string_view text, const Argument* arguments, Bytes payload, TextWriter& out) {
    for (size_t mark = text.find(kMark); mark != text.npos; mark = text.find(kMark)) {
        out.Text(text.substr(0, mark));
        (arguments++)->Print(payload, out);
        text.remove_prefix(mark + kMark.size());
    }
    out.Text(text);
}

void PrintEvent(const EventRow* rows, size_t count, uint16_t code, Bytes payload, TextWriter& out) {
    const EventRow* const row = std::find_if(rows, rows + count, [&](const EventRow& candidate) {
        return candidate.code == code && candidate.when[0].Holds(payload) && candidate.when[1].Holds(payload);
    });
    if (row != rows + count) PrintText(row->text, row->arguments, payload, out);
}

void PrintEvent(const ChassisEventRow* rows, size_t count, uint16_t code, Bytes payload, TextWriter& out) {
    for (const ChassisEventRow* row = rows; row != rows + count; ++row) {
        const bool extra = row->code_with_extra_text != 0 && row->code_with_extra_text == code;
        if (row->code != code && !extra) continue;
        const char* const text = FormFor(ChassisOf(payload), row->texts);
        if (text == nullptr) continue;

        PrintForm(text, *row, payload, out);
        if (extra) SecondExtraText(payload, row->chassis_name, out);
        return;
    }
}

}  // namespace eventstr
