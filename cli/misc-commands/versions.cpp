// The versions of the firmware's components.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "cli/command/refusals.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/misc-commands/rom_setting.h"

namespace {

constexpr RomVariable<VERSEVREC> kVersions = {kVersionsVariable};

struct Component {
    const char* label;  // as wide as the indentation of the line below it
    VERSION VERSEVREC::*baseline;
    VERSION VERSEVREC::*current;
};
// clang-format off
constexpr Component kComponents[] = {
    {"    TZ: ",       &VERSEVREC::tz_baseline,     &VERSEVREC::tz_current},
    {" Vetro: ",       &VERSEVREC::vetro_baseline,  &VERSEVREC::vetro_current},
    {" FLASKO: ",      &VERSEVREC::flasko_baseline, &VERSEVREC::flasko_current},
    {" Plex Warden: ", &VERSEVREC::pw_baseline,     &VERSEVREC::pw_current},
    {" Sift Tool: ",   &VERSEVREC::sift_baseline,   &VERSEVREC::sift_current},
    {" Ext. Mod: ",    &VERSEVREC::extmod_baseline, &VERSEVREC::extmod_current},
    {" KRL: ",         &VERSEVREC::krl_baseline,    &VERSEVREC::krl_current},
};
// clang-format on

bool AllZero(const VERSEVREC& versions) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(&versions);
    return std::all_of(bytes, bytes + sizeof versions, [](uint8_t byte) { return byte == 0; });
}

void PrintVersion(const char* which, const VERSION& version) {
    std::printf("%s - %d.%d.%d", which, version.major, version.minor, version.revision);
}

}  // namespace

int do_show_versions(InputLineType* /*InputLine*/) {
    VERSEVREC versions;
    if (!ReadVariable(kVersions, versions)) return Fail("\nERROR: Failed to read version information.");
    if (AllZero(versions)) {
        std::printf("\nNo version information available");
        return 0;
    }

    std::printf("\nVersion Information:");
    for (const Component& component : kComponents) {
        std::printf("\n%s", component.label);
        PrintVersion("Baseline", versions.*component.baseline);
        std::printf("\n%*s", static_cast<int>(std::strlen(component.label)), "");
        PrintVersion("Current ", versions.*component.current);
    }
    return 0;
}
