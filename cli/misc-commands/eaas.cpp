// The environment-abnormality automatic shutdown (EAAS).
#include <cstdio>

#include "cli/command/refusals.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/misc-commands/rom_setting.h"
#include "cli/misc-commands/settings.h"
#include "cli/misc-commands/switch_words.h"

namespace {

constexpr RomVariable<CSMEVSTRUCT> kShutdown = {kShutdownVariable};
constexpr char kUnreadable[] = "\nERROR: Failed to read EAAS status.";
constexpr RomTexts kTexts = {
    kUnreadable,
    "\nERROR: Failed to %s EAAS.",
    "\nSuccessfully %sd EAAS.",
};

int SwitchShutdown(InputLineType* line, const SwitchWay& way) {
    if (line->NumWords != 2) return InvalidArguments();

    const RomOutcome outcome = ChangeVariable(kShutdown, [&](CSMEVSTRUCT& shutdown) {
        shutdown.ucEAAshutdown = way.on ? 1 : 0;  // the whole byte is the command's
        return true;
    });
    return Report<kTexts>(outcome, way.verb);
}

}  // namespace

const char* ReadShutdown(bool& enabled) {
    CSMEVSTRUCT shutdown;
    if (!ReadVariable(kShutdown, shutdown)) return kUnreadable;
    enabled = (shutdown.ucEAAshutdown & 1) != 0;
    return nullptr;
}

int do_show_eaas(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    bool enabled = false;
    if (const char* error = ReadShutdown(enabled)) return Fail("%s", error);

    std::printf("\nEAAS is currently %s.", EnabledOrDisabled(enabled));
    return 0;
}

int do_enable_eaas(InputLineType* InputLine) {
    return SwitchShutdown(InputLine, kEnable);
}

int do_disable_eaas(InputLineType* InputLine) {
    return SwitchShutdown(InputLine, kDisable);
}
