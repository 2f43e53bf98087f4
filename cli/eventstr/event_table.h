// Prints the text of an event from the event tables. Each event class has one or two tables, which are
// checked at compile time.
#pragma once

#include <iterator>

#include "cli/eventstr/rows.h"

namespace eventstr {

// Prints the row of the event with `code`; prints nothing if no row applies. `payload` may be shorter than
// its record.
void PrintEvent(const EventRow* rows, size_t count, uint16_t code, Bytes payload, TextWriter& out);
void PrintEvent(const ChassisEventRow* rows, size_t count, uint16_t code, Bytes payload, TextWriter& out);

// The constraints on the tables. Each function returns the code of the first row that violates a constraint,
// or kNone.
constexpr int kNone = -1;

// Returns true if `next`, a row with the same code, is never reached because `row` applies first.
constexpr bool Hides(const EventRow& row, const EventRow& /*next*/) {
    return row.conditions[0].AlwaysHolds();
}
constexpr bool Hides(const ChassisEventRow& row, const ChassisEventRow& next) {
    for (size_t form = 0; form < kFormCount; ++form) {
        if (!row.forms[form].IsEmpty() && !next.forms[form].IsEmpty()) return true;
    }
    return false;
}

template <typename Row, size_t N>
constexpr int FirstMisplaced(const Row (&rows)[N]) {
    for (size_t i = 1; i < N; ++i) {
        const Row &row = rows[i - 1], &next = rows[i];
        if (next.code < row.code || (next.code == row.code && Hides(row, next))) return next.code;
    }
    return kNone;
}

// Returns true if one code selects both rows although they belong to different events.
constexpr bool Collide(const EventRow& /*a*/, const EventRow& /*b*/) {
    return false;  // both are in one table, where FirstMisplaced() compares the codes
}
constexpr bool Collide(const ChassisEventRow& a, const EventRow& b) {
    return a.code == b.code || a.HasExtraText(b.code);
}
constexpr bool Collide(const ChassisEventRow& a, const ChassisEventRow& b) {
    return a.HasExtraText(b.code) || (a.code != b.code && a.HasExtraText(b.code_with_extra_text));
}

template <typename RowA, size_t N, typename RowB, size_t M>
constexpr int FirstCollision(const RowA (&a)[N], const RowB (&b)[M]) {
    for (const RowA& one : a) {
        for (const RowB& other : b) {
            if (Collide(one, other)) return other.code;
        }
    }
    return kNone;
}

// False if `kCode` is the code of a row that violates a constraint. The compiler's message then contains the
// code.
template <int kCode>
constexpr bool kNoViolationAtCode = kCode == kNone;

// Prints an event of a class with one table.
template <const auto& kRows>
void PrintEvent(uint16_t code, Bytes payload, TextWriter& out) {
    static_assert(kNoViolationAtCode<FirstMisplaced(kRows)>,
                  "the codes of a table ascend, and no row makes the next one unreachable");
    static_assert(kNoViolationAtCode<FirstCollision(kRows, kRows)>,
                  "the code of an event with an extra text is no other event's");
    PrintEvent(kRows, std::size(kRows), code, payload, out);
}

// Prints an event of a class with two tables.
template <const auto& kChassisRows, const auto& kRows>
void PrintEvent(uint16_t code, Bytes payload, TextWriter& out) {
    static_assert(kNoViolationAtCode<FirstCollision(kChassisRows, kRows)>,
                  "a code is in one of the two tables only");
    PrintEvent<kChassisRows>(code, payload, out);
    PrintEvent<kRows>(code, payload, out);
}

}  // namespace eventstr
