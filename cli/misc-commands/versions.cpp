#include "cli/misc-commands/versions.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

#include "cli/command/command.h"
#include "cli/misc-commands/rom_store.h"

namespace {

constexpr RomVariable<VERSEVREC> kVersions = {kVersionsVariable};

struct Component {
    int indentation;
    const char* name;
    VERSION VERSEVREC::*baseline;
    VERSION VERSEVREC::*current;
};
// clang-format off
constexpr Component kComponents[] = {
    {4, "TZ",          &VERSEVREC::tz_baseline,     &VERSEVREC::tz_current},
    {1, "Vetro",       &VERSEVREC::vetro_baseline,  &VERSEVREC::vetro_current},
    {1, "FLASKO",      &VERSEVREC::flasko_baseline, &VERSEVREC::flasko_current},
    {1, "Plex Warden", &VERSEVREC::pw_baseline,     &VERSEVREC::pw_current},
    {1, "Sift Tool",   &VERSEVREC::sift_baseline,   &VERSEVREC::sift_current},
    {1, "Ext. Mod",    &VERSEVREC::extmod_baseline, &VERSEVREC::extmod_current},
    {1, "KRL",         &VERSEVREC::krl_baseline,    &VERSEVREC::krl_current},
};
// clang-format on
static_assert(std::size(kComponents) == std::size(ComponentVersions{}.component), "each row has its element");

bool AllZero(const VERSEVREC& versions) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(&versions);
    return std::all_of(bytes, bytes + sizeof versions, [](uint8_t byte) { return byte == 0; });
}

void PrintVersion(const char* which, const VERSION& version) {
    std::printf("%s - %d.%d.%d", which, version.major, version.minor, version.revision);
}

}  // namespace

bool ReadVersions(ComponentVersions& versions) {
    VERSEVREC record;
    if (!ReadVariable(kVersions, record)) return false;
    versions.known = !AllZero(record);
    ComponentVersion* next = versions.component;
    for (const Component& row : kComponents) *next++ = {row.name, record.*row.baseline, record.*row.current};
    return true;
}

int do_show_versions(InputLineType* /*InputLine*/) {
    ComponentVersions versions;
    if (!ReadVersions(versions)) return Fail("\nERROR: Failed to read version information.");
    if (!versions.known) {
        std::printf("\nNo version information available");
        return 0;
    }

    std::printf("\nVersion Information:");
    for (size_t i = 0; i < std::size(kComponents); ++i) {
        const ComponentVersion& component = versions.component[i];
        const int indentation = kComponents[i].indentation;
        const int label = indentation + static_cast<int>(std::strlen(component.name)) + 2;
        std::printf("\n%*s%s: ", indentation, "", component.name);
        PrintVersion("Baseline", component.baseline);
        std::printf("\n%*s", label, "");  // indents the second line to the end of the label
        PrintVersion("Current ", component.current);
    }
    return 0;
}
