// Processor hyper-threading. Whether the processors can do it isn't asked.
#include <cstdio>

#include "cli/command/refusals.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/misc-commands/rom_setting.h"
#include "cli/misc-commands/settings.h"
#include "cli/misc-commands/switch_words.h"

namespace {

constexpr char kUnreadable[] = "\nERROR: Failed to read hyper-threading status.";
constexpr RomTexts kTexts = {
    kUnreadable,
    "\nERROR: Failed to %s processor hyper-threading.",
    "\nSuccessfully %sd processor hyper-threading.",
};

}  // namespace

const char* ReadHyperThreading(bool& enabled) {
    WOLEVREC configuration;
    if (!ReadVariable(kWholeConfiguration, configuration)) return kUnreadable;
    enabled = configuration.flags2.s.bit_HyperThreading == 0;
    return nullptr;
}

int do_show_ht(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    bool enabled = false;
    if (const char* error = ReadHyperThreading(enabled)) return Fail("%s", error);

    std::printf("\nProcessor hyper-threading is currently %s.", EnabledOrDisabled(enabled));
    return 0;
}

int do_enable_disable_ht(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    const SwitchWay& way = WayOf(*InputLine);
    const RomOutcome outcome = ChangeVariable(kWholeConfiguration, [&](WOLEVREC& configuration) {
        configuration.flags2.s.bit_HyperThreading = way.on ? 0 : 1;
        return true;
    });
    return Report<kTexts>(outcome, way.verb);
}
