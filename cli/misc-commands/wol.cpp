// Wake-On-Lan.
#include <cstdio>

#include "cli/command/refusals.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/misc-commands/rom_setting.h"
#include "cli/misc-commands/settings.h"
#include "cli/misc-commands/switch_words.h"

namespace {

constexpr char kUnreadable[] = "\nERROR: Failed to read Wake-On-Lan status.";
constexpr RomTexts kTexts = {
    kUnreadable,
    "\nERROR: Failed to %s Wake-On-Lan support.",
    "\nSuccessfully %sd Wake-On-Lan support.",
    0,
};

}  // namespace

const char* ReadWakeOnLan(bool& enabled) {
    WOLEVREC configuration;
    if (!ReadVariable(kConfiguration, configuration)) return kUnreadable;
    enabled = configuration.flags.s.bits_WOL == kWakeOnLanEnabled;
    return nullptr;
}

int do_show_wol(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    bool enabled = false;
    if (const char* error = ReadWakeOnLan(enabled)) return Fail("%s", error);

    std::printf("\nWake-On-Lan is currently %s.", EnabledOrDisabled(enabled));
    return 0;
}

int do_enable_disable_wol(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    const SwitchWay& way = WayOf(*InputLine);
    const RomOutcome outcome = ChangeVariable(kConfiguration, [&](WOLEVREC& configuration) {
        configuration.flags.s.bits_WOL = way.on ? kWakeOnLanEnabled : kWakeOnLanDisabled;
        return true;
    });
    return Report<kTexts>(outcome, way.verb);
}
