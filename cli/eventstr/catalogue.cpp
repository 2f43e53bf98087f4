#include "cli/eventstr/catalogue.h"

#include <algorithm>

namespace eventstr {
namespace {

// A text, with each "%s" as the next argument prints it and each "%C" as `chassis` does.
void PrintText(std::string_view text, const Argument* arguments, const Argument& chassis, Bytes payload,
               TextWriter& out) {
    for (size_t mark = text.find('%'); mark != text.npos; mark = text.find('%')) {
        out.Text(text.substr(0, mark));
        const Argument& argument = text[mark + 1] == 'C' ? chassis : *arguments++;
        argument.print(payload, out);
        text.remove_prefix(mark + 2);
    }
    out.Text(text);
}

// The text for a chassis; empty when there is none.
std::string_view FormFor(EVT_CHASSIS chassis, const ChassisEventRow& row) {
    switch (chassis.bType) {
        case kChassisServer: return row.forms[chassis.bId == 0 ? kOnServer : kOnExternalChassis];
        case kChassisExternalStorage: return row.forms[kOnExternalStorage];
        case kChassisInternalStorage: return row.forms[kOnInternalStorage];
        case kChassisBladeEnclosure: return row.forms[kOnBladeEnclosure];
        case kChassisPowerEnclosure: return row.forms[kOnPowerEnclosure];
        default: return {};
    }
}

}  // namespace

void PrintEvent(const EventRow* rows, size_t count, uint16_t code, Bytes payload, TextWriter& out) {
    const EventRow* const row = std::find_if(rows, rows + count, [&](const EventRow& candidate) {
        return candidate.code == code && candidate.when[0].Holds(payload) && candidate.when[1].Holds(payload);
    });
    if (row != rows + count) PrintText(row->text, row->arguments, {}, payload, out);
}

void PrintEvent(const ChassisEventRow* rows, size_t count, uint16_t code, Bytes payload, TextWriter& out) {
    for (const ChassisEventRow* row = rows; row != rows + count; ++row) {
        const bool extra = row->code_with_extra_text != 0 && row->code_with_extra_text == code;
        if (row->code != code && !extra) continue;
        const std::string_view text = FormFor(ChassisOf(payload), *row);
        if (text.empty()) continue;

        PrintText(text, row->arguments, row->name.chassis, payload, out);
        if (extra) row->name.extra_text.print(payload, out);
        return;
    }
}

}  // namespace eventstr
