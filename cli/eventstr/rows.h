// What a row of a catalogue of events says: the texts, what stands for each mark of them, and when the row
// applies. A field is named as a member of its record, so the compiler knows how wide it is and whose it is.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "cli/eventstr/fields.h"

namespace eventstr {

// A record as a constant, to tell whether two fields are of the same one: a number, because each pointer in a
// row would be set by the loader whenever the program starts.
struct RecordType {
    uint32_t id = 0;           // of its name; 0: of no record
    bool has_chassis = false;  // it begins with an EVT_CHASSIS
};

template <typename Record, typename = void>
inline constexpr bool kHasChassis = false;
template <typename Record>
inline constexpr bool kHasChassis<Record, std::void_t<decltype(Record::Chassis)>> = true;

template <typename Record>
constexpr uint32_t IdOf() {
    uint32_t id = 2166136261;                                          // FNV-1a
    for (const char letter : std::string_view(__PRETTY_FUNCTION__)) {  // with the record's name in it
        id = (id ^ static_cast<uint8_t>(letter)) * 16777619;
    }
    return id;
}

// What a pointer to a member tells: the record, and the field's type.
template <typename Pointer>
struct Member;
template <typename InRecord, typename OfType>
struct Member<OfType InRecord::*> {
    using Record = InRecord;
    using Type = OfType;
};

template <auto kField, typename Record = typename Member<decltype(kField)>::Record>
constexpr RecordType kRecordOf = {IdOf<Record>(), kHasChassis<Record>};

// How many bytes of its record stand in front of a field.
template <auto kField>
size_t OffsetOf() {
    static constexpr typename Member<decltype(kField)>::Record kRecord{};
    return static_cast<size_t>(reinterpret_cast<const char*>(&(kRecord.*kField)) -
                               reinterpret_cast<const char*>(&kRecord));
}

template <auto kField, auto kPrint>
void PrintField(Bytes payload, TextWriter& out) {
    using Type = typename Member<decltype(kField)>::Type;
    using Function = std::remove_pointer_t<decltype(kPrint)>;
    const size_t offset = OffsetOf<kField>();
    if constexpr (std::is_same_v<Function, const char*(Type)>) {
        out.Text(kPrint(ReadPaddedField<Type>(payload, offset)));
    } else if constexpr (std::is_same_v<Function, void(Type, TextWriter&)>) {
        kPrint(ReadPaddedField<Type>(payload, offset), out);
    } else if constexpr (std::is_same_v<Function, void(const Type&, TextWriter&)>) {
        Type letters;
        for (size_t i = 0; i < sizeof letters; ++i)
            letters[i] = static_cast<char>(ReadPaddedField<uint8_t>(payload, offset + i));
        kPrint(letters, out);
    } else {
        static_assert(
            std::is_same_v<Type, char[1]> && std::is_same_v<Function, void(Bytes, size_t, TextWriter&)>,
            "a field is printed by a function of its own width");
        kPrint(payload, offset, out);
    }
}

// What stands for a mark of a text; none in a row whose text has fewer marks.
struct Argument {
    bool is_set = false;
    RecordType record;  // whose field it is
    void (*print)(Bytes payload, TextWriter& out) = nullptr;
};

// A field, and the function of fields.h that prints it: Field<&EVT_MACH_OVERHEAT::bTemp, GetTemp>.
template <auto kField, auto kPrint>
constexpr Argument Field = {true, kRecordOf<kField>, PrintField<kField, kPrint>};

// A function that writes from the whole payload what a row can't say.
constexpr Argument Whole(void (*print)(Bytes payload, TextWriter& out)) {
    return {true, {}, print};
}

template <auto kField>
uint8_t ReadByte(Bytes payload) {
    static_assert(sizeof(typename Member<decltype(kField)>::Type) == 1);
    return ReadPaddedField<uint8_t>(payload, OffsetOf<kField>());
}

// What a byte of the payload, or some of its bits, must be for a row to apply; left out, the condition always
// holds.
struct Condition {
    RecordType record;
    uint8_t (*read)(Bytes payload) = nullptr;
    uint8_t value = 0;
    uint8_t bits = 0;  // those that are looked at

    constexpr bool Always() const { return bits == 0; }
    bool Holds(Bytes payload) const { return Always() || (read(payload) & bits) == value; }
};

template <auto kField>
constexpr Condition Is(uint8_t value, uint8_t bits = 0xFF) {
    return {kRecordOf<kField>, ReadByte<kField>, value, bits};
}

// What the catalogues share of the chassis, which every record that has one begins with.
constexpr Condition kServerItself = Is<&EVT_CHASSIS::bId>(0);  // no external chassis
constexpr Argument kChassisNumber = Field<&EVT_CHASSIS::bId, Byte2Str>;
constexpr Argument kEnclosureType = Field<&EVT_CHASSIS::bType, GetEnclosureType>;

constexpr size_t kMaxArguments = 6;

// A text of a row, and in it: a pointer to it would have to be set by the loader whenever the program starts.
struct RowText {
    char letters[132] = "";
    constexpr RowText(const char* text = "") {  // a text that is too long doesn't compile
        for (size_t i = 0; text[i] != '\0'; ++i) letters[i] = text[i];
    }
    constexpr operator std::string_view() const { return letters; }
};

// One text of an event. Of several rows with an event's code, the first whose conditions all hold applies.
struct EventRow {
    uint16_t code;
    Condition when[2];
    RowText text;  // each "%s" takes the next argument
    Argument arguments[kMaxArguments];
};

// The kinds of chassis that a text can be about.
enum ChassisForm : size_t {
    kOnServer,  // the server itself
    kOnExternalChassis,
    kOnExternalStorage,
    kOnInternalStorage,
    kOnBladeEnclosure,
    kOnPowerEnclosure,
    kFormCount,
};

// An event's texts, one for each kind in that order; empty where it has none.
using ChassisForms = std::array<RowText, kFormCount>;

// The chassis name of a record, and what it gives to the texts.
struct ChassisName {
    Argument chassis;     // for "%C": "Chassis RACK7", "Chassis SHELF, Slot 3", "Enclosure Address 0012"
    Argument extra_text;  // the text behind the name
};

template <auto kField>
constexpr ChassisName Named = {Field<kField, GetChassis>, Field<kField, SecondExtraText>};

// An event that reads differently by its chassis.
struct ChassisEventRow {
    uint16_t code;
    uint16_t code_with_extra_text;  // the same event with a second text behind the chassis name; 0: none
    ChassisName name;
    ChassisForms forms;
    Argument arguments[kMaxArguments];  // for each "%s" of a form; a form may leave out the last ones
};

}  // namespace eventstr
