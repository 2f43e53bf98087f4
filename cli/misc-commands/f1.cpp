// The POST F1 prompt.
#include <cstdio>
#include <iterator>

#include "cli/command/command.h"
#include "cli/command/refusals.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/misc-commands/rom_setting.h"
#include "cli/misc-commands/settings.h"
#include "src/utils/word_table.h"

namespace {

constexpr char kUnreadable[] = "\nERROR: Failed to read POST F1 status.";
constexpr RomTexts kTexts = {
    kUnreadable,
    "\nFailed to set the POST F1 prompt to %s. ",
    "\nSuccessfully set the POST F1 prompt to %s.",
    0,
};

// A mode's place in the table is its bits_F1.
struct Mode {
    const char* word;  // null: can't be set
    const char* shown;
};
// clang-format off
constexpr Mode kModes[] = {
    {nullptr,    "undefined"},
    {"ENABLED",  "enabled"},
    {"DISABLED", "disabled"},
    {"DELAYED",  "delayed"},
};
// clang-format on
static_assert(std::size(kModes) == 4, "a mode for each value of two bits");

// False, with the reason printed, for a word that is no mode.
bool SetMode(WOLEVREC& configuration, const char* word) {
    const Mode* mode = FindWord(kModes, word);
    if (mode == nullptr) {
        std::printf("\nERROR: Invalid argument(s)\n%s", current_command->Help);
        return false;
    }
    configuration.flags2.s.bits_F1 = (mode - kModes) & 3;
    return true;
}

}  // namespace

const char* ReadF1Prompt(const char*& state) {
    WOLEVREC configuration;
    if (!ReadVariable(kConfiguration, configuration)) return kUnreadable;
    state = kModes[configuration.flags2.s.bits_F1].shown;
    return nullptr;
}

int do_show_f1(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    const char* state = nullptr;
    if (const char* error = ReadF1Prompt(state)) return Fail("%s", error);

    std::printf("\nThe POST F1 prompt is currently %s.", state);
    return 0;
}

int do_set_f1(InputLineType* InputLine) {
    if (InputLine->NumWords == 2) return ShowUsage();
    if (InputLine->NumWords != 3) return InvalidArguments();

    const char* word = InputLine->Words[2];
    const RomOutcome outcome =
        ChangeVariable(kConfiguration, [=](WOLEVREC& configuration) { return SetMode(configuration, word); });
    return Report<kTexts>(outcome, word);
}
