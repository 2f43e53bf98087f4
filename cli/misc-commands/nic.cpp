// How each embedded NIC boots: not at all, by PXE (one NIC at most) or from an iSCSI disk.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "cli/command/refusals.h"
#include "cli/command/state.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/misc-commands/rom_setting.h"
#include "cli/misc-commands/settings.h"
#include "cli/misc-commands/switch_words.h"
#include "src/utils/word_table.h"

namespace {

constexpr int kShortRead = kNicBootStates;  // bytes, thus NICs: all that the iSCSI commands know of, too
constexpr RomVariable<NicBootSettings> kBootSettings = {kNicBootVariable, kShortRead, kShortRead};
constexpr RomVariable<NicPxeFlags> kPxeFlags = {kNicPxeVariable, sizeof(NicPxeFlags), 1};  // older firmware's

constexpr char kSettingsUnreadable[] = "\nERROR: Failed to read NIC status.";
constexpr RomTexts kPxeTexts = {
    "\nERROR: Failed to read PXE status.",
    "\nERROR: Failed to %s %s PXE support.",
    "\nSuccessfully %sd %s PXE support.",
};
constexpr RomTexts kIscsiTexts = {
    kSettingsUnreadable,
    "\nERROR: Failed to %s %s iSCSI support.",
    "\nSuccessfully %sd %s iSCSI support.",
};

constexpr CodeText kStates[] = {
    {kNicBootNone, "PXE disabled"},
    {kNicBootPxe, "PXE enabled"},
    {kNicBootIscsi, "iSCSI enabled"},
};

// A NIC's place among the settings, from 0, by its word NIC1 to NIC5; -1 for any other word.
int PlaceOf(const char* word) {
    if (std::strncmp(word, "NIC", 3) != 0 || word[3] < '1' || word[3] > '5' || word[4] != '\0') return -1;
    return word[3] - '1';
}

// A NIC's place by the word that a command got; -1, with the reason printed, for a word that isn't one and
// for a NIC that the server doesn't have.
int CheckedPlace(const char* word, const SwitchWay& way, const char* feature) {
    const int place = PlaceOf(word);
    if (place < 0) {
        std::printf("\nERROR: Failed to %s %s. Please specify either %s, NIC2...NIC5", way.verb, feature,
                    way.on ? "NIC1" : "NIC");
        return -1;
    }
    if (embedded_nics_installed < 1) {
        std::printf("\nERROR: brantcli didn't detect any embedded NICs.");
        return -1;
    }
    if (place >= embedded_nics_installed) {
        std::printf("\nERROR: This sytem only has %d embedded NICs.", embedded_nics_installed);
        return -1;
    }
    return place;
}

void SayPxeMoved(int place) {
    std::printf("\nPXE boot was already enabled for NIC%d. It has now been disabled.", place + 1);
}

// The settings as the PXE commands use them: a byte for each NIC of the server, as far as there are bytes.
RomVariable<NicBootSettings> SettingsOfAllNics(const SwitchWay& way) {
    constexpr int kMost = sizeof NicBootSettings::nic;
    const int nics = std::min(embedded_nics_installed, kMost);
    return {kNicBootVariable, way.on ? kMost : nics, nics};
}

// One NIC at most boots by PXE: any other that did is switched off, with a note.
void EnablePxe(NicBootSettings& settings, int place, int nics) {
    for (int i = 0; i < nics; ++i) {
        if (settings.nic[i] != kNicBootPxe || i == place) continue;
        SayPxeMoved(i);
        settings.nic[i] = kNicBootNone;
    }
    settings.nic[place] = kNicBootPxe;
}

// Likewise, but only the first NIC that had it can be named, and isn't when it is this one.
void EnablePxe(NicPxeFlags& flags, int place) {
    constexpr int kFlags = 5;
    int first = 0;
    while (first < kFlags && (flags.nics.s.bits_PXE >> first & 1) == 0) ++first;
    if (first < kFlags && first != place) SayPxeMoved(first);
    flags.nics.s.bits_PXE = (1u << place) & 31;
}

void DisablePxe(NicPxeFlags& flags, int place) {
    flags.nics.s.bits_PXE = flags.nics.s.bits_PXE & ~(1u << place) & 31;
}

int SwitchPxe(InputLineType* line, const SwitchWay& way) {
    if (line->NumWords == 2) return ShowUsage();
    if (line->NumWords != 3) return InvalidArguments();
    const char* word = line->Words[2];
    const int place = CheckedPlace(word, way, "PXE");
    if (place < 0) return 1;

    const RomVariable<NicBootSettings> variable = SettingsOfAllNics(way);
    RomOutcome outcome = ChangeVariable(variable, [&](NicBootSettings& settings) {
        if (way.on) {
            EnablePxe(settings, place, variable.written);
        } else {
            settings.nic[place] = kNicBootNone;
        }
        return true;
    });
    if (outcome == RomOutcome::Unreadable) {
        outcome = ChangeVariable(kPxeFlags, [&](NicPxeFlags& flags) {
            way.on ? EnablePxe(flags, place) : DisablePxe(flags, place);
            return true;
        });
    }
    return Report<kPxeTexts>(outcome, way.verb, word);
}

int SwitchIscsi(InputLineType* line, const SwitchWay& way) {
    if (line->NumWords == 2) return ShowUsage();
    if (line->NumWords != 3) return InvalidArguments();

    const char* word = line->Words[2];
    const RomOutcome outcome = ChangeVariable(kBootSettings, [&](NicBootSettings& settings) {
        const int place = CheckedPlace(word, way, "iSCSI");
        if (place < 0) return false;
        settings.nic[place] = way.on ? kNicBootIscsi : kNicBootNone;
        return true;
    });
    return Report<kIscsiTexts>(outcome, way.verb, word);
}

}  // namespace

const char* ReadNicBoot(NicBootStates& states) {
    NicBootSettings settings;
    if (!ReadVariable(kBootSettings, settings)) return kSettingsUnreadable;
    for (int i = 0; i < kNicBootStates; ++i) {
        states.nic[i] = TextOfCode(kStates, settings.nic[i], "Unknown setting");
    }
    return nullptr;
}

int do_show_nic(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    NicBootStates states;
    if (const char* error = ReadNicBoot(states)) return Fail("%s", error);

    const int nics = embedded_nics_installed;
    if (nics < 0) {
        std::printf("\nNIC boot status (UNKNOWN number of Embedded NICs):");
    } else {
        std::printf("\nNIC boot status (%d Embedded NIC%s):", nics, nics == 1 ? "" : "s");
    }
    if (nics < 1) std::printf("\nbrantcli didn't detect any embedded NICs.");
    for (int i = 0; i < std::min(nics, kNicBootStates); ++i) std::printf("\nNIC%d: %s", i + 1, states.nic[i]);
    return 0;
}

int do_enable_nic_pxe(InputLineType* InputLine) {
    return SwitchPxe(InputLine, kEnable);
}

int do_disable_nic_pxe(InputLineType* InputLine) {
    return SwitchPxe(InputLine, kDisable);
}

int do_enable_nic_iscsi(InputLineType* InputLine) {
    return SwitchIscsi(InputLine, kEnable);
}

int do_disable_nic_iscsi(InputLineType* InputLine) {
    return SwitchIscsi(InputLine, kDisable);
}
