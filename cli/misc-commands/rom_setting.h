// How every command reads or changes a ROM variable. A change is a read into a cleared copy, a change of what
// the command owns in the copy, and a write of the copy's first bytes; a failed read or a refused change ends
// it with nothing written. A command declares, side by side, the variable with both lengths and the sentences
// for each outcome.
#pragma once

#include <type_traits>

#include "cli/misc-commands/rom_variables.h"
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

// What a command says of an outcome, in printf's form. The last two take the same arguments, in one order;
// either may leave out the last ones.
struct RomTexts {
    const char* unreadable;  // null for a variable that isn't read first
    const char* not_written;
    const char* written;
    int not_written_result = 1;  // of the command; some don't count a failed write as a failure
};

// Prints the outcome's text with the arguments after texts. Result: the command's, 0 or 1.
int Report(RomOutcome outcome, const RomTexts* texts, ...);

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
