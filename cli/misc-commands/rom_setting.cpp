#include "cli/misc-commands/rom_setting.h"

#include <cstdarg>
#include <cstdio>

namespace {

const char* TextOf(RomOutcome outcome, const RomTexts& texts) {
    switch (outcome) {
        case RomOutcome::Unreadable: return texts.unreadable;
        case RomOutcome::NotWritten: return texts.not_written;
        case RomOutcome::Written: return texts.written;
        default: return "";
    }
}

}  // namespace

int Report(RomOutcome outcome, const RomTexts* texts, ...) {
    va_list arguments;
    va_start(arguments, texts);
    std::vprintf(TextOf(outcome, *texts), arguments);
    va_end(arguments);
    if (outcome == RomOutcome::Written) return 0;
    return outcome == RomOutcome::NotWritten ? texts->not_written_result : 1;
}
