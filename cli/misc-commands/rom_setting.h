// How every command reads or changes a ROM variable. A change is a read into a cleared copy, a change of what
// the command owns in the copy, and a write of the copy's first bytes; a failed read or a refused change ends
// it with nothing written. A command declares, side by side, the variable with both lengths and the sentences
// for each outcome.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string_view>
#include <type_traits>

#include "cli/misc-commands/rom_store.h"
#include "include/rom_variables.h"

// A variable as one family of commands uses it.
template <typename Record>
struct RomVariable {
    static_assert(std::is_trivially_copyable_v<Record> &&
                      sizeof(Record) <= sizeof EV_IOCTL_STRUCT::DataBuffer,
                  "a variable is plain bytes, and one request carries all of them");

    const char* name;
    int read = int{sizeof(Record)};     // bytes asked for
    int written = int{sizeof(Record)};  // bytes that go back, the record's first; at most those read
};

enum class RomOutcome {
    Unreadable,  // nothing was written
    Refused,     // nothing was written, and the reason has been printed
    NotWritten,  // the write failed
    Written,
};

// What a command says of an outcome. The last two are in printf's form; each takes all arguments of the
// report, in their order, or none.
struct RomTexts {
    const char* unreadable;  // empty for a variable that isn't read first
    const char* not_written;
    const char* written;
    int not_written_result = 1;  // of the command; some don't count a failed write as a failure
};

// The mark that an argument of this type takes the place of: its letter, 's' of "%s".
constexpr char MarkFor(const char*) {
    return 's';
}
constexpr char MarkFor(int) {
    return 'd';
}
constexpr char MarkFor(char) {
    return 'c';
}

// Whether a text has the marks of these letters, in their order, and no others.
constexpr bool HasMarks(std::string_view text, std::string_view letters) {
    for (; !letters.empty(); letters.remove_prefix(1)) {
        const size_t mark = text.find('%');
        if (mark == text.npos || text.substr(mark + 1, 1) != letters.substr(0, 1)) return false;
        text.remove_prefix(mark + 2);
    }
    return text.find('%') == text.npos;
}

// Prints one of the texts. They are arguments of the template, so that the compiler can hold their marks
// against the arguments.
template <const RomTexts& kTexts, const char* RomTexts::*kWhich, typename... Arguments>
void PrintText(Arguments... arguments) {
    constexpr const char* kText = kTexts.*kWhich;
    if constexpr (HasMarks(kText, "")) {
        std::fputs(kText, stdout);
    } else {
        constexpr char kLetters[] = {MarkFor(Arguments{})..., '\0'};
        static_assert(HasMarks(kText, kLetters), "the marks are those of the arguments");
        std::printf(kText, arguments...);
    }
}

// Says what came of a setting: the outcome's text, with the arguments. Result: the command's, 0 or 1.
template <const RomTexts& kTexts, typename... Arguments>
int Report(RomOutcome outcome, Arguments... arguments) {
    switch (outcome) {
        case RomOutcome::Unreadable: PrintText<kTexts, &RomTexts::unreadable>(); return 1;
        case RomOutcome::Refused: return 1;
        case RomOutcome::NotWritten:
            PrintText<kTexts, &RomTexts::not_written>(arguments...);
            return kTexts.not_written_result;
        case RomOutcome::Written: PrintText<kTexts, &RomTexts::written>(arguments...); return 0;
    }
    return 1;
}

// Reads a variable into a cleared copy. False when it can't be read: the copy is then all zeros.
template <typename Record>
bool ReadVariable(const RomVariable<Record>& variable, Record& copy) {
    copy = Record{};
    return get_ev(variable.name, reinterpret_cast<unsigned char*>(&copy), variable.read) == 0;
}

// Writes a variable that isn't read first. Result: Written or NotWritten.
template <typename Record>
RomOutcome StoreVariable(const RomVariable<Record>& variable, const Record& record) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(&record);
    return set_ev(variable.name, bytes, variable.written) == 0 ? RomOutcome::Written : RomOutcome::NotWritten;
}

// Reads a variable, has its copy changed and writes it back. change: called with the copy once it has been
// read; false when it refuses, for which it prints the reason.
template <typename Record, typename Change>
RomOutcome ChangeVariable(const RomVariable<Record>& variable, Change change) {
    Record copy;
    if (!ReadVariable(variable, copy)) return RomOutcome::Unreadable;
    if (!change(copy)) return RomOutcome::Refused;
    return StoreVariable(variable, copy);
}

// The system configuration: one variable whose bits several commands share.
// As most commands use it: they write back all but its last byte.
constexpr RomVariable<WOLEVREC> kConfiguration = {kConfigurationVariable, sizeof(WOLEVREC),
                                                  offsetof(WOLEVREC, flags5)};

// As the hyper-threading commands use it.
constexpr RomVariable<WOLEVREC> kWholeConfiguration = {kConfigurationVariable};
