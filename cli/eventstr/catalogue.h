// A catalogue of events: a table of rows, which the compiler checks, and the function that prints from it. A
// message is changed, added or taken away in its row.
#pragma once

#include <string_view>

#include "cli/eventstr/rows.h"
#include "src/utils/bytes.h"
#include "src/utils/text.h"

namespace eventstr {

// Prints the row of an event; nothing when no row applies. code: the event's. payload: its record, which may
// be cut short. rows, count: the catalogue.
void PrintEvent(const EventRow* rows, size_t count, uint16_t code, Bytes payload, TextWriter& out);
void PrintEvent(const ChassisEventRow* rows, size_t count, uint16_t code, Bytes payload, TextWriter& out);

template <typename Row, size_t N>
void PrintEvent(const Row (&rows)[N], uint16_t code, Bytes payload, TextWriter& out) {
    PrintEvent(rows, N, code, payload, out);
}

// The rules of a catalogue. WellFormed, below, has the compiler say which one is broken, and in which row.
enum class Rule {
    None,
    MarksOnly,
    OneMarkAnArgument,
    OneRecord,
    CodesAscend,
    InReach,
    CodesApart,
    FormsInOrder,
    ChassisNamed,
    SameArguments,
};

// The first row, counted from 0, that breaks a rule.
struct Refusal {
    Rule rule;
    size_t row;
    uint16_t code;
};

template <Rule kRule, size_t kRow, uint16_t kCode>
constexpr bool Accept() {
    static_assert(kRule != Rule::MarksOnly, "each % begins a mark: %s, or %C in the form for a chassis");
    static_assert(kRule != Rule::OneMarkAnArgument, "a text has one %s for each argument of its row");
    static_assert(kRule != Rule::OneRecord, "the fields of a row are of one record and of its chassis");
    static_assert(kRule != Rule::CodesAscend, "codes ascend");
    static_assert(kRule != Rule::InReach, "a row with an event's code that always applies is its last");
    static_assert(kRule != Rule::CodesApart,
                  "no code stands in both catalogues, nor as another's with an extra text");
    static_assert(kRule != Rule::FormsInOrder, "each form begins with the words for its kind of chassis");
    static_assert(
        kRule != Rule::ChassisNamed,
        "%C stands once in a form for a chassis, never in the server's; an enclosure's may lack it");
    static_assert(kRule != Rule::SameArguments,
                  "the forms of enclosures take all arguments; the other forms may all lack the last ones");
    return kRule == Rule::None;
}

struct Marks {
    size_t arguments = 0;  // "%s"
    size_t chassis = 0;    // "%C"
    size_t others = 0;     // any other "%"
};

constexpr Marks MarksOf(std::string_view text) {
    Marks marks;
    for (size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '%') continue;
        const char letter = at + 1 < text.size() ? text[at + 1] : '\0';
        ++(letter == 's' ? marks.arguments : letter == 'C' ? marks.chassis : marks.others);
    }
    return marks;
}

template <size_t N>
constexpr size_t CountOf(const Argument (&arguments)[N]) {
    size_t count = 0;
    while (count < N && arguments[count].is_set) ++count;
    return count;
}

// Whether two fields can stand in one row.
constexpr bool GoTogether(const RecordType& a, const RecordType& b) {
    constexpr uint32_t kChassis = IdOf<EVT_CHASSIS>();
    if (a.id == b.id || a.id == 0 || b.id == 0) return true;
    return (a.id == kChassis && b.has_chassis) || (b.id == kChassis && a.has_chassis);
}

template <typename FieldsA, typename FieldsB>
constexpr bool GoTogether(const FieldsA& a, const FieldsB& b) {
    for (const auto& one : a) {
        for (const auto& other : b) {
            if (!GoTogether(one.record, other.record)) return false;
        }
    }
    return true;
}

constexpr Rule BrokenBy(const EventRow& row) {
    const Marks marks = MarksOf(row.text);
    if (marks.chassis + marks.others != 0) return Rule::MarksOnly;
    if (CountOf(row.arguments) != marks.arguments) return Rule::OneMarkAnArgument;
    const bool one_record = GoTogether(row.when, row.when) && GoTogether(row.when, row.arguments) &&
                            GoTogether(row.arguments, row.arguments);
    return one_record ? Rule::None : Rule::OneRecord;
}

// How the forms for each kind of chassis begin, and how often they may name it.
struct FormRule {
    std::string_view words;
    size_t least, most;
};

constexpr FormRule kFormRules[kFormCount] = {
    {"", 0, 0},
    {"External Chassis ", 1, 1},
    {"External Storage System ", 1, 1},
    {"Internal Storage System ", 1, 1},
    {"Server Blade Enclosure ", 0, 1},
    {"Power Enclosure ", 0, 1},
};

constexpr Rule BrokenBy(std::string_view form, const Marks& marks, const FormRule& rule) {
    if (marks.others != 0) return Rule::MarksOnly;
    if (form.substr(0, rule.words.size()) != rule.words) return Rule::FormsInOrder;
    return marks.chassis < rule.least || marks.chassis > rule.most ? Rule::ChassisNamed : Rule::None;
}

constexpr Rule BrokenBy(const ChassisEventRow& row) {
    const size_t all = CountOf(row.arguments);
    size_t taken = 0;  // by the form that was looked at last; an enclosure's, which come last, take all
    bool first = true;
    for (size_t i = 0; i < kFormCount; ++i) {
        const std::string_view form = row.forms[i];
        if (form.empty()) continue;
        const Marks marks = MarksOf(form);
        const Rule broken = BrokenBy(form, marks, kFormRules[i]);
        if (broken != Rule::None) return broken;

        const size_t before = taken;
        taken = marks.arguments;
        if (i >= kOnBladeEnclosure ? taken != all : !first && taken != before) return Rule::SameArguments;
        first = false;
    }
    if (taken != all) return Rule::OneMarkAnArgument;
    const Argument name[] = {row.name.chassis};
    const bool one_record = GoTogether(row.arguments, row.arguments) && GoTogether(row.arguments, name);
    return one_record ? Rule::None : Rule::OneRecord;
}

constexpr bool EndsItsEvent(const EventRow& row) {
    return row.when[0].Always();
}
constexpr bool EndsItsEvent(const ChassisEventRow& /*row*/) {
    return false;  // the next row may have the forms that this one lacks
}

template <typename Row, size_t N>
constexpr Refusal FirstRefusal(const Row (&rows)[N]) {
    for (size_t i = 0; i < N; ++i) {
        Rule broken = BrokenBy(rows[i]);
        if (broken == Rule::None && i > 0) {
            if (rows[i].code < rows[i - 1].code) broken = Rule::CodesAscend;
            if (rows[i].code == rows[i - 1].code && EndsItsEvent(rows[i - 1])) broken = Rule::InReach;
        }
        if (broken != Rule::None) return {broken, i, rows[i].code};
    }
    return {};
}

// How many times a code stands in the rows, with the extra text or without.
template <size_t N>
constexpr size_t TimesGiven(uint16_t code, const ChassisEventRow (&rows)[N]) {
    size_t times = 0;
    for (const ChassisEventRow& row : rows) times += (row.code == code) + (row.code_with_extra_text == code);
    return times;
}

// Of the two catalogues of a class, which are printed one after the other.
template <size_t N, size_t M>
constexpr Refusal FirstRefusal(const ChassisEventRow (&chassis_rows)[N], const EventRow (&rows)[M]) {
    for (size_t i = 0; i < N; ++i) {
        const uint16_t extra = chassis_rows[i].code_with_extra_text;
        if (extra != 0 && TimesGiven(extra, chassis_rows) != 1) return {Rule::CodesApart, i, extra};
    }
    for (size_t i = 0; i < M; ++i) {
        if (TimesGiven(rows[i].code, chassis_rows) != 0) return {Rule::CodesApart, i, rows[i].code};
    }
    return {};
}

// Holds, or else doesn't compile. kCatalogues: the table of a class, or both.
template <const auto&... kCatalogues>
constexpr bool WellFormed() {
    constexpr Refusal kRefusal = FirstRefusal(kCatalogues...);
    return Accept<kRefusal.rule, kRefusal.row, kRefusal.code>();
}

// The translators, one for each class of events; the two digits of a name are the class in hexadecimal. Each
// writes the event's text, or nothing when it doesn't know the code or what the payload says. wEventCode: the
// code within the class. pEventData: the payload, which may be shorter than its record. out: the text so far,
// empty.
void TranslateClass02(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // machine environment
void TranslateClass03(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // main memory
void TranslateClass04(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // cache memory
void TranslateClass05(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // CPU
void TranslateClass06(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // host bus
void TranslateClass07(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // EISA bus
void TranslateClass08(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // PCI bus
void TranslateClass09(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // expansion slots
void TranslateClass0A(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // POST messages
void TranslateClass0B(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // power subsystem
void TranslateClass0D(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // server recovery
void TranslateClass0E(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // operating system
void TranslateClass11(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // network adapters
void TranslateClass12(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // SCSI
void TranslateClass13(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // drive arrays
void TranslateClass14(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // unrecoverable errors
void TranslateClass20(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // system revision
void TranslateClass21(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // maintenance notes
void TranslateClass22(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // blade enclosures

}  // namespace eventstr
