// The EAAS setting has its own ROM variable; the other switches are bits of the system configuration.
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
constexpr char kWakeOnLanUnreadable[] = "\nERROR: Failed to read Wake-On-Lan status.";
constexpr char kHyperThreadingUnreadable[] = "\nERROR: Failed to read hyper-threading status.";
constexpr char kF1Unreadable[] = "\nERROR: Failed to read POST F1 status.";

struct F1Mode {
    F1Prompt code;
    const char* word;  // the argument that selects this state; null: no argument does
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
              "the table is indexed by the code, which has two bits");

// Returns whether the command is ENABLE, for a handler that serves both ENABLE and DISABLE.
bool IsEnable(const InputLineType& line) {
    return std::strcmp(line.Words[0], "ENABLE") == 0;
}

int SwitchShutdown(const InputLineType& line, bool enable) {
    if (line.NumWords != 2) return InvalidArguments();

    CSMEVSTRUCT shutdown;
    if (!ReadVariable(kShutdown, shutdown)) return Fail(kShutdownUnreadable);

    shutdown.ucEAAshutdown = enable ? 1 : 0;  // also clears the other bits of this byte
    if (!WriteVariable(kShutdown, shutdown)) {
        return Fail(enable ? "\nERROR: Failed to enable EAAS." : "\nERROR: Failed to disable EAAS.");
    }
    std::printf(enable ? "\nSuccessfully enabled EAAS." : "\nSuccessfully disabled EAAS.");
    return 0;
}

int SwitchWakeOnLan(const InputLineType& line, bool enable) {
    if (line.NumWords != 2) return InvalidArguments();

    WOLEVREC ztsbkt;
    if (!ReadVariable(kConfiguration, ztsbkt)) return Fail(kWakeOnLanUnreadable);

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

// Doesn't check whether the processors support hyper-threading.
int SwitchHyperThreading(const InputLineType& line, bool enable) {
    if (line.NumWords != 2) return InvalidArguments();

    WOLEVREC ztsbkt;
    if (!ReadVariable(kWholeConfiguration, ztsbkt)) return Fail(kHyperThreadingUnreadable);

    ztsbkt.flags2.s.bit_HyperThreading = enable ? 0 : 1;
    if (!WriteVariable(kWholeConfiguration, ztsbkt)) {
        return Fail(enable ? "\nERROR: Failed to enable processor hyper-threading."
                           : "\nERROR: Failed to disable processor hyper-threading.");
    }
    std::printf(enable ? "\nSuccessfully enabled processor hyper-threading."
                       : "\nSuccessfully disabled processor hyper-threading.");
    return 0;
}

}  // namespace

bool ReadShutdown(bool& enabled) {
    CSMEVSTRUCT shutdown;
    if (!ReadVariable(kShutdown, shutdown)) return false;
    enabled = (shutdown.ucEAAshutdown & 1) != 0;
    return true;
}

bool ReadWakeOnLan(bool& enabled) {
    WOLEVREC ztsbkt;
    if (!ReadVariable(kConfiguration, ztsbkt)) return false;
    enabled = ztsbkt.flags.s.bits_WOL == kWakeOnLanEnabled;
    return true;
}

bool ReadHyperThreading(bool& enabled) {
    WOLEVREC ztsbkt;
    if (!ReadVariable(kWholeConfiguration, ztsbkt)) return false;
    enabled = ztsbkt.flags2.s.bit_HyperThreading == 0;
    return true;
}

bool ReadF1Prompt(const char*& state) {
    WOLEVREC ztsbkt;
    if (!ReadVariable(kConfiguration, ztsbkt)) return false;
    state = kF1Modes[ztsbkt.flags2.s.bits_F1].shown;
    return true;
}

int do_show_eaas(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    bool enabled = false;
    if (!ReadShutdown(enabled)) return Fail(kShutdownUnreadable);

    std::printf("\nEAAS is currently %s.", EnabledOrDisabled(enabled));
    return 0;
}

int do_enable_eaas(InputLineType* InputLine) {
    return SwitchShutdown(*InputLine, true);
}

int do_disable_eaas(InputLineType* InputLine) {
    return SwitchShutdown(*InputLine, false);
}

int do_show_wol(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    bool enabled = false;
    if (!ReadWakeOnLan(enabled)) return Fail(kWakeOnLanUnreadable);

    std::printf("\nWake-On-Lan is currently %s.", EnabledOrDisabled(enabled));
    return 0;
}

int do_enable_disable_wol(InputLineType* InputLine) {
    return SwitchWakeOnLan(*InputLine, IsEnable(*InputLine));
}

int do_show_ht(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    bool enabled = false;
    if (!ReadHyperThreading(enabled)) return Fail(kHyperThreadingUnreadable);

    std::printf("\nProcessor hyper-threading is currently %s.", EnabledOrDisabled(enabled));
    return 0;
}

int do_enable_disable_ht(InputLineType* InputLine) {
    return SwitchHyperThreading(*InputLine, IsEnable(*InputLine));
}

int do_show_f1(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    const char* state = nullptr;
    if (!ReadF1Prompt(state)) return Fail(kF1Unreadable);

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
