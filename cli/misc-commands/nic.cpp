// How each embedded NIC boots: not at all, by PXE (one NIC at most) or from an iSCSI disk.
#include "cli/misc-commands/nic.h"

#include <algorithm>
#include <cstdio>

#include "cli/command/command.h"
#include "cli/command/state.h"
#include "cli/misc-commands/rom_store.h"
#include "src/utils/text.h"

namespace {

// What the PXE commands read and write depends on how many NICs there are; the others know of ten.
constexpr RomVariable<NicBootSettings> kBootSettings = {kNicBootVariable};
constexpr RomVariable<NicBootSettings, kNicBootStates> kFirstBootSettings = {kNicBootVariable};
constexpr RomVariable<NicPxeFlags, sizeof(NicPxeFlags), 1> kPxeFlags = {
    kNicPxeVariable};  // on older firmware

constexpr char kSettingsUnreadable[] = "\nERROR: Failed to read NIC status.";

constexpr int kNamedNics = 5;  // NIC1 to NIC5: the words of the commands, and the flags of the older variable
constexpr uint8_t kAllPxeFlags = (1 << kNamedNics) - 1;

constexpr CodeText kStates[] = {
    {kNicBootNone, "PXE disabled"},
    {kNicBootPxe, "PXE enabled"},
    {kNicBootIscsi, "iSCSI enabled"},
};

// A NIC's place among the settings, from 0, by its word; -1 for a word that names none.
int PlaceOf(const char* word) {
    if (!StartsWith(word, "NIC") || word[3] == '\0' || word[4] != '\0') return -1;
    const int place = word[3] - '1';
    return place >= 0 && place < kNamedNics ? place : -1;
}

// Whether the server has a NIC. False: the reason has been printed.
bool HasNic(int place) {
    if (embedded_nics_installed < 1) {
        std::printf("\nERROR: brantcli didn't detect any embedded NICs.");
        return false;
    }
    if (place >= embedded_nics_installed) {
        std::printf("\nERROR: This sytem only has %d embedded NICs.", embedded_nics_installed);
        return false;
    }
    return true;
}

void SayPxeMoved(int place) {
    std::printf("\nPXE boot was already enabled for NIC%d. It has now been disabled.", place + 1);
}

// One NIC at most boots by PXE: any other that did is switched off, with a note. nics: how many there are.
void EnablePxe(NicBootSettings& settings, int place, size_t nics) {
    const int count = static_cast<int>(std::min(nics, sizeof settings.nic));
    for (int i = 0; i < count; ++i) {
        if (settings.nic[i] != kNicBootPxe || i == place) continue;
        SayPxeMoved(i);
        settings.nic[i] = kNicBootNone;
    }
    settings.nic[place] = kNicBootPxe;
}

// As above. Where several flags are set, only the lowest one's NIC is named, and not when it is this one.
void EnablePxe(NicPxeFlags& flags, int place) {
    int first = 0;
    while (first < kNamedNics && (flags.nics >> first & 1) == 0) ++first;
    if (first < kNamedNics && first != place) SayPxeMoved(first);
    flags.nics = static_cast<uint8_t>((flags.nics & ~kAllPxeFlags) | 1 << place);
}

void DisablePxe(NicBootSettings& settings, int place) {
    settings.nic[place] = kNicBootNone;
}

void DisablePxe(NicPxeFlags& flags, int place) {
    flags.nics = static_cast<uint8_t>(flags.nics & ~(1 << place));
}

int SwitchPxe(InputLineType* line, bool enable) {
    if (line->NumWords == 2) return ShowUsage();
    if (line->NumWords != 3) return InvalidArguments();
    const char* word = line->Words[2];
    const int place = PlaceOf(word);
    if (place < 0) {
        return Fail(enable ? "\nERROR: Failed to enable PXE. Please specify either NIC1, NIC2...NIC5"
                           : "\nERROR: Failed to disable PXE. Please specify either NIC, NIC2...NIC5");
    }
    if (!HasNic(place)) return 1;

    const auto nics = static_cast<size_t>(embedded_nics_installed);
    NicBootSettings settings;
    NicPxeFlags flags;
    bool written = false;
    if (ReadVariable(kBootSettings, settings, enable ? sizeof settings : nics)) {
        enable ? EnablePxe(settings, place, nics) : DisablePxe(settings, place);
        written = WriteVariable(kBootSettings, settings, nics);
    } else if (ReadVariable(kPxeFlags, flags)) {
        enable ? EnablePxe(flags, place) : DisablePxe(flags, place);
        written = WriteVariable(kPxeFlags, flags);
    } else {
        return Fail("\nERROR: Failed to read PXE status.");
    }

    if (!written) {
        return Fail(enable ? "\nERROR: Failed to enable %s PXE support."
                           : "\nERROR: Failed to disable %s PXE support.",
                    word);
    }
    std::printf(enable ? "\nSuccessfully enabled %s PXE support." : "\nSuccessfully disabled %s PXE support.",
                word);
    return 0;
}

int SwitchIscsi(InputLineType* line, bool enable) {
    if (line->NumWords == 2) return ShowUsage();
    if (line->NumWords != 3) return InvalidArguments();

    NicBootSettings settings;
    if (!ReadVariable(kFirstBootSettings, settings)) return Fail(kSettingsUnreadable);
    const char* word = line->Words[2];
    const int place = PlaceOf(word);
    if (place < 0) {
        return Fail(enable ? "\nERROR: Failed to enable iSCSI. Please specify either NIC1, NIC2...NIC5"
                           : "\nERROR: Failed to disable iSCSI. Please specify either NIC, NIC2...NIC5");
    }
    if (!HasNic(place)) return 1;

    settings.nic[place] = enable ? kNicBootIscsi : kNicBootNone;
    if (!WriteVariable(kFirstBootSettings, settings)) {
        return Fail(enable ? "\nERROR: Failed to enable %s iSCSI support."
                           : "\nERROR: Failed to disable %s iSCSI support.",
                    word);
    }
    std::printf(
        enable ? "\nSuccessfully enabled %s iSCSI support." : "\nSuccessfully disabled %s iSCSI support.",
        word);
    return 0;
}

}  // namespace

const char* ReadNicBoot(NicBootStates& states) {
    NicBootSettings settings;
    if (!ReadVariable(kFirstBootSettings, settings)) return kSettingsUnreadable;
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
    return SwitchPxe(InputLine, true);
}

int do_disable_nic_pxe(InputLineType* InputLine) {
    return SwitchPxe(InputLine, false);
}

int do_enable_nic_iscsi(InputLineType* InputLine) {
    return SwitchIscsi(InputLine, true);
}

int do_disable_nic_iscsi(InputLineType* InputLine) {
    return SwitchIscsi(InputLine, false);
}
