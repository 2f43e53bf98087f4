#include "cli/misc-commands/nic.h"

#include <algorithm>
#include <cstdio>

#include "cli/command/command.h"
#include "cli/command/state.h"
#include "cli/misc-commands/rom_store.h"
#include "src/utils/text.h"

namespace {

// The PXE commands write one byte for each installed NIC. SHOW NIC and the iSCSI commands read and write the
// first ten bytes.
constexpr RomVariable<NicBootSettings> kBootSettings = {kNicBootVariable};
constexpr RomVariable<NicBootSettings, kNicBootStates> kFirstBootSettings = {kNicBootVariable};
// Older firmware has this variable instead of ZTHNIC.
constexpr RomVariable<NicPxeFlags, sizeof(NicPxeFlags), 1> kPxeFlags = {kNicPxeVariable};

constexpr char kSettingsUnreadable[] = "\nERROR: Failed to read NIC status.";

constexpr int kNamedNics = 5;  // the commands accept NIC1 to NIC5, and NicPxeFlags has a bit for each
constexpr uint8_t kAllPxeFlags = (1 << kNamedNics) - 1;

constexpr CodeText kStates[] = {
    {kNicBootNone, "PXE disabled"},
    {kNicBootPxe, "PXE enabled"},
    {kNicBootIscsi, "iSCSI enabled"},
};

// Returns the index of the NIC with the name `word`, from 0 for "NIC1", or -1 if there is no such name.
int IndexOf(const char* word) {
    if (!StartsWith(word, "NIC") || word[3] == '\0' || word[4] != '\0') return -1;
    const int nic = word[3] - '1';
    return nic >= 0 && nic < kNamedNics ? nic : -1;
}

// Prints the message for a NIC whose index is embedded_nics_installed or higher. Returns 1.
int FailWithoutNic() {
    if (embedded_nics_installed < 1) return Fail("\nERROR: brantcli didn't detect any embedded NICs.");
    return Fail("\nERROR: This sytem only has %d embedded NICs.", embedded_nics_installed);
}

void PrintPxeMoved(int nic) {
    std::printf("\nPXE boot was already enabled for NIC%d. It has now been disabled.", nic + 1);
}

// Enables PXE for a NIC. Only one NIC can boot by PXE. So PXE is disabled for each other NIC of the `nics`
// installed ones for which it is enabled, and a note is printed for each.
void EnablePxe(NicBootSettings& settings, int nic, size_t nics) {
    const int count = static_cast<int>(std::min(nics, sizeof settings.nic));
    for (int i = 0; i < count; ++i) {
        if (settings.nic[i] != kNicBootPxe || i == nic) continue;
        PrintPxeMoved(i);
        settings.nic[i] = kNicBootNone;
    }
    settings.nic[nic] = kNicBootPxe;
}

// Does the same with the flags of older firmware, but prints at most one note: only the lowest flag that is
// set counts, and there is no note if it is the flag of `nic`.
void EnablePxe(NicPxeFlags& flags, int nic) {
    int first = 0;
    while (first < kNamedNics && (flags.nics >> first & 1) == 0) ++first;
    if (first < kNamedNics && first != nic) PrintPxeMoved(first);
    flags.nics = static_cast<uint8_t>((flags.nics & ~kAllPxeFlags) | 1 << nic);
}

void DisablePxe(NicBootSettings& settings, int nic) {
    settings.nic[nic] = kNicBootNone;
}

void DisablePxe(NicPxeFlags& flags, int nic) {
    flags.nics = static_cast<uint8_t>(flags.nics & ~(1 << nic));
}

int SwitchPxe(const InputLineType& line, bool enable) {
    if (line.NumWords == 2) return ShowUsage();
    if (line.NumWords != 3) return InvalidArguments();
    const char* word = line.Words[2];
    const int nic = IndexOf(word);
    if (nic < 0) {
        return Fail(enable ? "\nERROR: Failed to enable PXE. Please specify either NIC1, NIC2...NIC5"
                           : "\nERROR: Failed to disable PXE. Please specify either NIC, NIC2...NIC5");
    }
    if (nic >= embedded_nics_installed) return FailWithoutNic();

    const auto nics = static_cast<size_t>(embedded_nics_installed);
    NicBootSettings settings;
    NicPxeFlags flags;
    bool written = false;
    if (ReadVariable(kBootSettings, settings, enable ? sizeof settings : nics)) {
        enable ? EnablePxe(settings, nic, nics) : DisablePxe(settings, nic);
        written = WriteVariable(kBootSettings, settings, nics);
    } else if (ReadVariable(kPxeFlags, flags)) {
        enable ? EnablePxe(flags, nic) : DisablePxe(flags, nic);
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

int SwitchIscsi(const InputLineType& line, bool enable) {
    if (line.NumWords == 2) return ShowUsage();
    if (line.NumWords != 3) return InvalidArguments();

    NicBootSettings settings;
    if (!ReadVariable(kFirstBootSettings, settings)) return Fail(kSettingsUnreadable);
    const char* word = line.Words[2];
    const int nic = IndexOf(word);
    if (nic < 0) {
        return Fail(enable ? "\nERROR: Failed to enable iSCSI. Please specify either NIC1, NIC2...NIC5"
                           : "\nERROR: Failed to disable iSCSI. Please specify either NIC, NIC2...NIC5");
    }
    if (nic >= embedded_nics_installed) return FailWithoutNic();

    settings.nic[nic] = enable ? kNicBootIscsi : kNicBootNone;
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

bool ReadNicBoot(NicBootStates& states) {
    NicBootSettings settings;
    if (!ReadVariable(kFirstBootSettings, settings)) return false;
    for (int i = 0; i < kNicBootStates; ++i) {
        states.nic[i] = TextOfCode(kStates, settings.nic[i], "Unknown setting");
    }
    return true;
}

int do_show_nic(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    NicBootStates states;
    if (!ReadNicBoot(states)) return Fail(kSettingsUnreadable);

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
    return SwitchPxe(*InputLine, true);
}

int do_disable_nic_pxe(InputLineType* InputLine) {
    return SwitchPxe(*InputLine, false);
}

int do_enable_nic_iscsi(InputLineType* InputLine) {
    return SwitchIscsi(*InputLine, true);
}

int do_disable_nic_iscsi(InputLineType* InputLine) {
    return SwitchIscsi(*InputLine, false);
}
