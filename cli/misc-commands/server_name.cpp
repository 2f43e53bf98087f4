// The server's name, which the firmware keeps in two halves.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "cli/command/refusals.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/misc-commands/rom_setting.h"
#include "cli/misc-commands/settings.h"

namespace {

constexpr RomVariable<ServerName> kName = {kServerNameVariable};
constexpr RomTexts kTexts = {
    "",
    "\nFailed to set server name. ",
    "\nSuccessfully set new server name: %s",
};

static_assert(2 * kServerNameHalf == 28, "as the text of SET NAME's refusal says");

}  // namespace

const char* ReadServerName(ServerName& name) {
    if (ReadVariable(kName, name)) return nullptr;
    return "\nNo Server name seems to have been set, or command failed."
           "\nPlease use \"SET NAME\" to set a server name.";
}

int do_show_name(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    ServerName name;
    if (const char* error = ReadServerName(name)) return Fail("%s", error);

    std::printf("\nServer name is: ");
    if (name.zthls1[0] == '\0') {
        std::printf("Not Set");
    } else {
        std::fwrite(&name, 1, sizeof name, stdout);  // zeros too, for which a terminal shows nothing
    }
    return 0;
}

int do_set_name(InputLineType* InputLine) {
    if (InputLine->NumWords != 3) return InvalidArguments();

    const char* typed = InputLine->OrigCaseWords[2];
    const size_t length = std::strlen(typed);
    if (length > size_t{2 * kServerNameHalf})
        return Fail("\nERROR: Max length of server name is 28 characters.");
    std::printf("\nNOTE: On some servers the name may be split in two depending on length");

    ServerName name{};
    const size_t first = std::min(length, size_t{kServerNameHalf});
    std::memcpy(name.zthls1, typed, first);
    std::memcpy(name.zthls1 + kServerNameHalf + 1, typed + first, length - first);
    return Report<kTexts>(StoreVariable(kName, name), typed);
}
