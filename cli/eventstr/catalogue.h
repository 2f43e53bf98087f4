// A catalogue of events: rows that say how an event reads, and what reads them. A message is changed, added
// or taken away in its row; the compiler then checks the table.
#pragma once

#include <string_view>

#include "cli/eventstr/chassis.h"
#include "cli/eventstr/fields.h"
#include "cli/eventstr/words.h"

namespace eventstr {

// One "%s" of a text: a field of the payload, by its offset in the event's record, and the way it prints. Or
// a function that prints from the whole payload, for a text that a row can't say.
class Argument {
  public:
    constexpr Argument() = default;  // none
    constexpr Argument(size_t offset, const char* (*word)(uint8_t))
        : offset_(static_cast<uint8_t>(offset)), kind_(Kind::Word), word_(word) {}
    constexpr Argument(size_t offset, void (*byte)(uint8_t, TextWriter&))
        : offset_(static_cast<uint8_t>(offset)), kind_(Kind::Byte), byte_(byte) {}
    constexpr Argument(size_t offset, void (*dword)(uint32_t, TextWriter&))
        : offset_(static_cast<uint8_t>(offset)), kind_(Kind::Dword), dword_(dword) {}
    constexpr Argument(size_t offset, void (*place)(Bytes, size_t, TextWriter&))
        : offset_(static_cast<uint8_t>(offset)), kind_(Kind::Place), place_(place) {}
    constexpr Argument(void (*whole)(Bytes, TextWriter&)) : kind_(Kind::Whole), whole_(whole) {}

    constexpr bool IsSet() const { return kind_ != Kind::None; }
    void Print(Bytes payload, TextWriter& out) const;

  private:
    enum class Kind : uint8_t { None, Word, Byte, Dword, Place, Whole };

    uint8_t offset_ = 0;
    Kind kind_ = Kind::None;
    union {
        const char* (*word_)(uint8_t) = nullptr;
        void (*byte_)(uint8_t, TextWriter&);
        void (*dword_)(uint32_t, TextWriter&);
        void (*place_)(Bytes, size_t, TextWriter&);
        void (*whole_)(Bytes, TextWriter&);
    };
};

// What a byte of the payload, or some of its bits, must be for a row to apply; left out, it holds always.
class Condition {
  public:
    constexpr Condition() = default;
    constexpr Condition(size_t offset, uint8_t value, uint8_t bits = 0xFF)
        : offset_(static_cast<uint8_t>(offset)), value_(value), bits_(bits) {}

    constexpr bool Always() const { return bits_ == 0; }
    bool Holds(Bytes payload) const { return (ReadPaddedField<uint8_t>(payload, offset_) & bits_) == value_; }

  private:
    uint8_t offset_ = 0;
    uint8_t value_ = 0;
    uint8_t bits_ = 0;  // those that are looked at
};

// What the catalogues share of the chassis, which every record that has one begins with.
constexpr Condition kServerItself = {offsetof(EVT_CHASSIS, bId), 0};  // no external chassis
constexpr Argument kChassisNumber = {offsetof(EVT_CHASSIS, bId), Byte2Str};
constexpr Argument kEnclosureType = {offsetof(EVT_CHASSIS, bType), GetEnclosureType};

constexpr size_t kMaxArguments = 6;

// One text of an event. Of several rows with an event's code, the first whose conditions all hold applies.
struct EventRow {
    uint16_t code;
    Condition when[2];
    const char* text;                   // each "%s" takes the next argument
    Argument arguments[kMaxArguments];  // those that are not set stand last
};

// The six forms of an event that reads differently by its chassis, as they are printed; null: no such form.
// What names the chassis is not an argument of the row: the first "%s" in the parentheses of an external
// chassis is its name or number, the first two in those of a storage system are its prefix and slot, and the
// last of an enclosure, when the row's arguments leave one over, is its serial number or address.
struct ChassisTexts {
    const char* server;
    const char* external_chassis;
    const char* external_storage;
    const char* internal_storage;
    const char* blade_enclosure;
    const char* power_enclosure;
};

constexpr size_t kMaxChassisEventArguments = 3;

struct ChassisEventRow {
    uint16_t code;
    uint16_t code_with_extra_text;  // the same event with a second text behind the chassis name; 0: none
    ChassisTexts texts;
    Argument arguments[kMaxChassisEventArguments];  // for the "%s" left over; a form may leave out the last
    uint8_t chassis_name;                           // the offset of the name in the event's record
};

constexpr std::string_view kMark = "%s";

// How many arguments a text takes.
constexpr size_t Marks(std::string_view text) {
    size_t marks = 0;
    for (size_t at = text.find(kMark); at != text.npos; at = text.find(kMark, at + kMark.size())) ++marks;
    return marks;
}

// How many arguments stand in front of what names the chassis.
constexpr size_t MarksAhead(std::string_view text) {
    return Marks(text.substr(0, text.find('(')));
}

// How many arguments are set; more than there can be when they don't stand first.
template <size_t N>
constexpr size_t Count(const Argument (&arguments)[N]) {
    size_t count = 0;
    while (count < N && arguments[count].IsSet()) ++count;
    for (size_t i = count; i < N; ++i) {
        if (arguments[i].IsSet()) return N + 1;
    }
    return count;
}

// Codes ascend, each "%s" has its argument and each argument its "%s", and no row is out of reach behind one
// that always applies.
template <size_t N>
constexpr bool WellFormed(const EventRow (&rows)[N]) {
    for (size_t i = 0; i < N; ++i) {
        const EventRow& row = rows[i];
        if (Marks(row.text) != Count(row.arguments)) return false;
        if (i == 0) continue;
        const EventRow& before = rows[i - 1];
        if (row.code < before.code) return false;
        if (row.code == before.code && before.when[0].Always()) return false;
    }
    return true;
}

// Whether a form, when there is one, names its chassis in these words and takes `least` to `most` arguments.
constexpr bool FormFits(const char* text, std::string_view chassis, size_t least, size_t most) {
    if (text == nullptr) return true;
    const std::string_view form = text;
    return Marks(form) >= least && Marks(form) <= most && form.find(chassis) != form.npos;
}

// How many times a code stands in the rows, with the extra text or without.
template <size_t N>
constexpr size_t TimesGiven(const ChassisEventRow (&rows)[N], uint16_t code) {
    size_t times = 0;
    for (const ChassisEventRow& row : rows) times += (row.code == code) + (row.code_with_extra_text == code);
    return times;
}

// Codes ascend, one with the extra text is no other event's, and each form names its chassis and takes no
// more and no fewer arguments than there are.
template <size_t N>
constexpr bool WellFormed(const ChassisEventRow (&rows)[N]) {
    for (size_t i = 0; i < N; ++i) {
        const ChassisTexts& texts = rows[i].texts;
        const size_t all = Count(rows[i].arguments);
        const size_t shared = texts.server != nullptr ? Marks(texts.server) : all;
        const uint16_t extra = rows[i].code_with_extra_text;
        if (i > 0 && rows[i].code < rows[i - 1].code) return false;
        if (extra != 0 && TimesGiven(rows, extra) != 1) return false;
        if (shared > all || !FormFits(texts.external_chassis, "(Chassis %s", shared + 1, shared + 1) ||
            !FormFits(texts.external_storage, "(%sSlot %s", shared + 2, shared + 2) ||
            !FormFits(texts.internal_storage, "(%sSlot %s", shared + 2, shared + 2) ||
            !FormFits(texts.blade_enclosure, "Server Blade Enclosure ", all, all + 1) ||
            !FormFits(texts.power_enclosure, "Power Enclosure ", all, all + 1)) {
            return false;
        }
    }
    return true;
}

// Whether no event stands in both catalogues of a class, which are printed one after the other.
template <size_t N, size_t M>
constexpr bool Disjoint(const ChassisEventRow (&chassis_rows)[N], const EventRow (&rows)[M]) {
    for (const EventRow& row : rows) {
        if (TimesGiven(chassis_rows, row.code) != 0) return false;
    }
    return true;
}

// Prints a text by itself, each "%s" of it as the next argument says.
void PrintText(std::string_view text, const Argument* arguments, Bytes payload, TextWriter& out);

// Prints the row of an event; nothing when no row applies. code: the event's. payload: its record, which may
// be cut short. rows, count: the catalogue.
void PrintEvent(const EventRow* rows, size_t count, uint16_t code, Bytes payload, TextWriter& out);
void PrintEvent(const ChassisEventRow* rows, size_t count, uint16_t code, Bytes payload, TextWriter& out);

template <typename Row, size_t N>
void PrintEvent(const Row (&rows)[N], uint16_t code, Bytes payload, TextWriter& out) {
    PrintEvent(rows, N, code, payload, out);
}

}  // namespace eventstr
