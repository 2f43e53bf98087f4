#include "cli/eventstr/event_table.h"

#include <algorithm>

namespace eventstr {
namespace {

// Prints `text` with each "%s" replaced by the next of `arguments`, and each "%C" by `chassis`.
void PrintText(std::string_view text, const Arguments& arguments, PrintFunction chassis, Bytes payload,
               TextWriter& out) {
    const PrintFunction* next = arguments.data();
    for (size_t mark = text.find('%'); mark != text.npos; mark = text.find('%')) {
        out.Text(text.substr(0, mark));
        const PrintFunction print = text[mark + 1] == 'C' ? chassis : *next++;
        print(payload, out);
        text.remove_prefix(mark + 2);
    }
    out.Text(text);
}

// Returns the text of `row` for this kind of chassis, or an empty string if the row has none.
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
        return candidate.code == code && candidate.conditions[0].Holds(payload) &&
               candidate.conditions[1].Holds(payload);
    });
    if (row != rows + count) PrintText(row->text, row->arguments, nullptr, payload, out);
}

void PrintEvent(const ChassisEventRow* rows, size_t count, uint16_t code, Bytes payload, TextWriter& out) {
    for (const ChassisEventRow* row = rows; row != rows + count; ++row) {
        const bool extra = row->HasExtraText(code);
        if (row->code != code && !extra) continue;
        const std::string_view text = FormFor(ChassisOf(payload), *row);
        if (text.empty()) continue;

        PrintText(text, row->arguments, row->chassis, payload, out);
        if (extra) row->extra_text(payload, out);
        return;
    }
}

}  // namespace eventstr
