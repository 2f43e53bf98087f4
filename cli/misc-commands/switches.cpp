// The switches among the bits of the system configuration: the POST F1 prompt, processor hyper-threading and
// Wake-On-Lan.
#include "cli/misc-commands/switches.h"

#include <cstdio>
#include <cstring>
#include <iterator>

#include "cli/command/command.h"
#include "cli/misc-commands/rom_store.h"
#include "src/utils/text.h"

namespace {

constexpr RomVariable<CSMEVSTRUCT> kShutdown = {kShutdownVariable};

constexpr char kShutdownUnreadable[] = "\nERROR: Failed to read EAAS status.";
constexpr char kF1Unreadable[] = "\nERROR: Failed to read POST F1 status.";
constexpr char kHyperThreadingUnreadable[] = "\nERROR: Failed to read hyper-threading status.";
constexpr char kWakeOnLanUnreadable[] = "\nERROR: Failed to read Wake-On-Lan status.";

struct F1Mode {
    F1Prompt code;
    const char* word;  // null: can't be set
    const char* shown;
};
// clang-format off
constexpr F1Mode kF1Modes[] = {
    {kF1Undefined, nullptr,    "undefined"},
    {kF1Enabled,   "ENABLED",  "enabled"},
    {kF1Disabled,  "DISABLED", "disabled"},
    {kF1Delayed,   "DELAYED",  "delayed"},
};
// clang-format on
static_assert(std::size(kF1Modes) == 4 && kF1Modes[kF1Delayed].code == kF1Delayed,
              "each value of two bits has its mode, at that place");

// One handler serves ENABLE and DISABLE. Whether the line is ENABLE.
bool Enables(const InputLineType& line) {
    return std::strcmp(line.Words[0], "ENABLE") == 0;
}

int SwitchShutdown(InputLineType* line, bool enable) {
    if (line->NumWords != 2) return InvalidArguments();

    CSMEVSTRUCT shutdown;
    if (!ReadVariable(kShutdown, shutdown)) return Fail(kShutdownUnreadable);

    shutdown.ucEAAshutdown = enable ? 1 : 0;  // the whole byte is the command's
    if (!WriteVariable(kShutdown, shutdown)) {
        return Fail(enable ? "\nERROR: Failed to enable EAAS." : "\nERROR: Failed to disable EAAS.");
    }
    std::printf(enable ? "\nSuccessfully enabled EAAS." : "\nSuccessfully disabled EAAS.");
    return 0;
}

}  // namespace

const char* ReadShutdown(bool& enabled) {
    CSMEVSTRUCT shutdown;
    if (!ReadVariable(kShutdown, shutdown)) return kShutdownUnreadable;
    enabled = (shutdown.ucEAAshutdown & 1) != 0;
    return nullptr;
}

const char* ReadF1Prompt(const char*& state) {
    WOLEVREC ztsbkt;
    if (!ReadVariable(kConfiguration, ztsbkt)) return kF1Unreadable;
    state = kF1Modes[ztsbkt.flags2.s.bits_F1].shown;
    return nullptr;
}

const char* ReadHyperThreading(bool& enabled) {
    WOLEVREC ztsbkt;
    if (!ReadVariable(kWholeConfiguration, ztsbkt)) return kHyperThreadingUnreadable;
    enabled = ztsbkt.flags2.s.bit_HyperThreading == 0;
    return nullptr;
}

const char* ReadWakeOnLan(bool& enabled) {
    WOLEVREC ztsbkt;
    if (!ReadVariable(kConfiguration, ztsbkt)) return kWakeOnLanUnreadable;
    enabled = ztsbkt.flags.s.bits_WOL == kWakeOnLanEnabled;
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
    return SwitchShutdown(InputLine, true);
}

int do_disable_eaas(InputLineType* InputLine) {
    return SwitchShutdown(InputLine, false);
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

    WOLEVREC ztsbkt;
    if (!ReadVariable(kConfiguration, ztsbkt)) return Fail(kF1Unreadable);
    const char* word = InputLine->Words[2];
    const F1Mode* mode = FindWord(kF1Modes, word);
    if (mode == nullptr) return Fail("\nERROR: Invalid argument(s)\n%s", current_command->Help);

    ztsbkt.flags2.s.bits_F1 = mode->code & 3;
    if (!WriteVariable(kConfiguration, ztsbkt)) {
        std::printf("\nFailed to set the POST F1 prompt to %s. ", word);
        return 0;
    }
    std::printf("\nSuccessfully set the POST F1 prompt to %s.", word);
    return 0;
}

int do_show_ht(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    bool enabled = false;
    if (const char* error = ReadHyperThreading(enabled)) return Fail("%s", error);

    std::printf("\nProcessor hyper-threading is currently %s.", EnabledOrDisabled(enabled));
    return 0;
}

// Whether the processors can do it isn't asked.
int do_enable_disable_ht(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    WOLEVREC ztsbkt;
    if (!ReadVariable(kWholeConfiguration, ztsbkt)) return Fail(kHyperThreadingUnreadable);

    const bool enable = Enables(*InputLine);
    ztsbkt.flags2.s.bit_HyperThreading = enable ? 0 : 1;
    if (!WriteVariable(kWholeConfiguration, ztsbkt)) {
        return Fail(enable ? "\nERROR: Failed to enable processor hyper-threading."
                           : "\nERROR: Failed to disable processor hyper-threading.");
    }
    std::printf(enable ? "\nSuccessfully enabled processor hyper-threading."
                       : "\nSuccessfully disabled processor hyper-threading.");
    return 0;
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

    WOLEVREC ztsbkt;
    if (!ReadVariable(kConfiguration, ztsbkt)) return Fail(kWakeOnLanUnreadable);

    const bool enable = Enables(*InputLine);
    ztsbkt.flags.s.bits_WOL = enable ? kWakeOnLanEnabled : kWakeOnLanDisabled;
    if (!WriteVariable(kConfiguration, ztsbkt)) {
        std::printf(enable ? "\nERROR: Failed to enable Wake-On-Lan support."
                           : "\nERROR: Failed to disable Wake-On-Lan support.");
        return 0;
    }
    std::printf(enable ? "\nSuccessfully enabled Wake-On-Lan support."
                       : "\nSuccessfully disabled Wake-On-Lan support.");
    return 0;
}
