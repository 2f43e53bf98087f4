// The rows of the event tables. A row contains an event's code, the conditions under which the row applies, a
// text, and the fields that the text prints. Fields are given as pointers to members of a record. So the
// compiler rejects a field of another record, a print function for a field of another width, and a text that
// doesn't match its arguments.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>
#include <type_traits>

#include "cli/eventstr/fields.h"
#include "cli/eventstr/words.h"

namespace eventstr {

// The record type and the field type of a pointer to a member.
template <typename Pointer>
struct Member;
template <typename InRecord, typename OfType>
struct Member<OfType InRecord::*> {
    using Record = InRecord;
    using Type = OfType;
};
template <auto kField>
using RecordOf = typename Member<decltype(kField)>::Record;
template <auto kField>
using TypeOf = typename Member<decltype(kField)>::Type;

// Returns the offset of a field in its record.
template <auto kField>
size_t OffsetOf() {
    static constexpr RecordOf<kField> kRecord{};
    return static_cast<size_t>(reinterpret_cast<const char*>(&(kRecord.*kField)) -
                               reinterpret_cast<const char*>(&kRecord));
}

// Prints a field of `payload` with `kPrint`, one of the functions of fields.h or words.h.
template <auto kField, auto kPrint>
void PrintField(Bytes payload, TextWriter& out) {
    using Type = TypeOf<kField>;
    using Function = std::remove_pointer_t<decltype(kPrint)>;
    const size_t offset = OffsetOf<kField>();
    if constexpr (std::is_same_v<Function, const char*(Type)>) {
        out.Text(kPrint(ReadPaddedField<Type>(payload, offset)));
    } else if constexpr (std::is_same_v<Function, void(Type, TextWriter&)>) {
        kPrint(ReadPaddedField<Type>(payload, offset), out);
    } else {
        static_assert(std::is_array_v<Type> && std::is_same_v<Function, void(Bytes, size_t, TextWriter&)>,
                      "a number is printed by a function of its own width, an array by its offset");
        kPrint(payload, offset, out);
    }
}

using PrintFunction = void (*)(Bytes payload, TextWriter& out);
using Arguments = std::array<PrintFunction, 6>;

// A function that prints the replacement of a "%s", from a payload that contains a `Record`.
template <typename Record>
struct Argument {
    PrintFunction print;
};

// A field and the function that prints it: Field<&EVT_MACH_OVERHEAT::bTemp, GetTemp>.
template <auto kField, auto kPrint>
constexpr Argument<RecordOf<kField>> Field = {PrintField<kField, kPrint>};

template <auto kField>
uint8_t ReadByte(Bytes payload) {
    static_assert(sizeof(TypeOf<kField>) == 1);
    return ReadPaddedField<uint8_t>(payload, OffsetOf<kField>());
}

// Holds if the bits of a payload byte that are set in `mask` equal `value`. Always holds if `mask` is 0.
struct Condition {
    uint8_t (*read)(Bytes payload) = nullptr;
    uint8_t value = 0;
    uint8_t mask = 0;

    constexpr bool AlwaysHolds() const { return mask == 0; }
    bool Holds(Bytes payload) const { return AlwaysHolds() || (read(payload) & mask) == value; }
};

// A condition on a field of `Record`.
template <typename Record>
struct ConditionOn : Condition {};

template <auto kField>
constexpr ConditionOn<RecordOf<kField>> Is(uint8_t value, uint8_t mask = 0xFF) {
    return {{ReadByte<kField>, value, mask}};
}

using Conditions = std::array<Condition, 2>;

// All conditions of a row; each must hold: When(Is<&EVT_HOST_BUS_UNCORRECTABLE::bError>(1)).
template <typename... Records>
struct When {
    constexpr explicit When(const ConditionOn<Records>&... each) : conditions{each...} {}
    Conditions conditions;
};

// Conditions and arguments that several tables use. They are fields of EVT_CHASSIS, with which many records
// begin.
constexpr auto kServerItself = Is<&EVT_CHASSIS::bId>(0);  // not an external chassis
constexpr auto kChassisNumber = Field<&EVT_CHASSIS::bId, Byte2Str>;
constexpr auto kEnclosureType = Field<&EVT_CHASSIS::bType, GetEnclosureType>;

// A text that is stored in its row. Pointers to texts would be relocated at every start of the program; for
// all texts together that takes 2 % of the instructions of a short command. A text that is too long doesn't
// compile.
struct RowText {
    char letters[132] = "";
    constexpr RowText(const char* text = "") {
        for (size_t i = 0; text[i] != '\0'; ++i) letters[i] = text[i];
    }
    constexpr operator std::string_view() const { return letters; }
    constexpr bool IsEmpty() const { return letters[0] == '\0'; }
};

// A row of an event table. If several rows have the event's code, the first whose conditions hold is printed.
struct EventRow {
    uint16_t code;
    Conditions conditions;
    RowText text;  // the arguments replace each "%s" in turn
    Arguments arguments;
};

// The forms of an event's text: one for each kind of chassis.
enum ChassisForm : size_t {
    kOnServer,  // the server itself
    kOnExternalChassis,
    kOnExternalStorage,
    kOnInternalStorage,
    kOnBladeEnclosure,
    kOnPowerEnclosure,
    kFormCount,
};

// The texts of an event, indexed by ChassisForm. An empty text means that the row doesn't apply to that kind
// of chassis.
using ChassisForms = std::array<RowText, kFormCount>;

// A row of a chassis table: an event with one text for each kind of chassis.
struct ChassisEventRow {
    uint16_t code;
    uint16_t code_with_extra_text;  // code of the event that has a second string; 0 if none
    PrintFunction chassis;          // prints the replacement of "%C"
    PrintFunction extra_text;
    ChassisForms forms;
    Arguments arguments;

    constexpr bool HasExtraText(uint16_t event_code) const {
        return code_with_extra_text != 0 && code_with_extra_text == event_code;
    }
};

// True if a row may contain fields of both records: if they are the same, or if one is EVT_CHASSIS and the
// other contains one.
template <typename Record, typename = void>
inline constexpr bool kHasChassis = false;
template <typename Record>
inline constexpr bool kHasChassis<Record, std::void_t<decltype(Record::Chassis)>> = true;
template <typename A, typename B>
constexpr bool kGoTogether = std::is_same_v<A, B> || (std::is_same_v<A, EVT_CHASSIS> && kHasChassis<B>) ||
                             (std::is_same_v<B, EVT_CHASSIS> && kHasChassis<A>);
template <typename Record, typename... Others>
constexpr bool kGoesWithAll = (kGoTogether<Record, Others> && ...);
template <typename... Records>
constexpr bool kOneRecord = (kGoesWithAll<Records, Records...> && ...);

// Stops the compilation of a constant row if `holds` is false. The compiler's message shows the row and
// `constraint`.
constexpr void Require(const char* constraint, bool holds) {
    if (!holds) throw std::logic_error(constraint);
}

struct Placeholders {
    size_t arguments = 0;  // number of "%s"
    size_t chassis = 0;    // number of "%C"
    size_t invalid = 0;    // number of other "%"
};

constexpr Placeholders CountPlaceholders(std::string_view text) {
    Placeholders count;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') continue;
        const char letter = i + 1 < text.size() ? text[i + 1] : '\0';
        ++(letter == 's' ? count.arguments : letter == 'C' ? count.chassis : count.invalid);
    }
    return count;
}

// Builds a row of an event table: Row(1, When(kServerItself), "Slot Power On (Slot %s)", kSlot).
template <typename... Tested, typename... Printed>
constexpr EventRow Row(uint16_t code, const When<Tested...>& when, const char* text,
                       const Argument<Printed>&... arguments) {
    static_assert(kOneRecord<Tested..., Printed...>, "the fields of a row are of one record and its chassis");
    const Placeholders found = CountPlaceholders(text);
    Require("a text has one %s for each argument of its row", found.arguments == sizeof...(arguments));
    Require("a text contains no % but %s", found.chassis + found.invalid == 0);
    return {code, when.conditions, text, {arguments.print...}};
}

// Builds a row without conditions.
template <typename... Printed>
constexpr EventRow Row(uint16_t code, const char* text, const Argument<Printed>&... arguments) {
    return Row(code, When(), text, arguments...);
}

// Builds a row of a chassis table. The chassis replaces "%C" in a text: "Chassis RACK7", "Chassis SHELF,
// Slot 3" or "Enclosure Address 0012".
template <typename Record, typename... Printed>
constexpr ChassisEventRow ChassisRow(uint16_t code, uint16_t code_with_extra_text, const ChassisForms& forms,
                                     const Argument<Printed>&... arguments) {
    static_assert(kOneRecord<Record, Printed...>, "the fields of a row are of one record and its chassis");
    constexpr std::string_view kPrefixes[kFormCount] = {
        "",
        "External Chassis ",
        "External Storage System ",
        "Internal Storage System ",
        "Server Blade Enclosure ",
        "Power Enclosure ",
    };
    for (size_t form = 0; form < kFormCount; ++form) {
        const std::string_view text = forms[form];
        if (text.empty()) continue;
        const Placeholders found = CountPlaceholders(text);
        Require("a text has one %s for each argument of its row", found.arguments == sizeof...(arguments));
        Require("a text contains no % but %s and %C", found.invalid == 0);
        Require("%C is in the texts for an external chassis and for storage, not in the server's",
                form >= kOnBladeEnclosure || found.chassis == (form == kOnServer ? 0 : 1));
        Require("a text begins with the words for its kind of chassis",
                text.substr(0, kPrefixes[form].size()) == kPrefixes[form]);
    }
    return {code,
            code_with_extra_text,
            PrintField<&Record::cChassisName, GetChassis>,
            PrintField<&Record::cChassisName, SecondExtraText>,
            forms,
            {arguments.print...}};
}

}  // namespace eventstr
