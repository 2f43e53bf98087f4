#include "cli/misc-commands/asset_name.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "cli/command/command.h"
#include "cli/misc-commands/rom_store.h"

namespace {

constexpr RomVariable<AssetText> kAsset = {kAssetVariable};
constexpr RomVariable<ServerName> kServerName = {kServerNameVariable};

static_assert(2 * kServerNameHalf == 28, "the message of SET NAME contains this limit");

}  // namespace

bool ReadAsset(AssetText& asset) {
    return ReadVariable(kAsset, asset);
}

bool ReadServerName(ServerName& name) {
    return ReadVariable(kServerName, name);
}

int do_show_asset(InputLineType* /*InputLine*/) {
    AssetText asset;
    if (!ReadAsset(asset)) return Fail("\nERROR: Failed to read Asset Text.");

    std::printf("\nAsset: '%.*s'", int{sizeof asset.asset_text}, asset.asset_text);
    return 0;
}

int do_set_asset(InputLineType* InputLine) {
    if (InputLine->NumWords == 2) return ShowUsage();
    if (InputLine->NumWords != 3) return InvalidArguments();

    const char* text = InputLine->Words[2];
    AssetText asset{};
    std::memcpy(asset.asset_text, text, std::min(std::strlen(text), sizeof asset.asset_text));
    if (!WriteVariable(kAsset, asset)) return Fail("\nERROR: Failed to set Asset Text.");

    std::printf("\nSuccessfully set Asset Text.");
    return 0;
}

int do_show_name(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    ServerName name;
    if (!ReadServerName(name)) {
        return Fail(
            "\nNo Server name seems to have been set, or command failed."
            "\nPlease use \"SET NAME\" to set a server name.");
    }

    std::printf("\nServer name is: ");
    if (name.zthls1[0] == '\0') {
        std::printf("Not Set");
    } else {
        std::fwrite(&name, 1, sizeof name, stdout);  // including its NULs, which a terminal ignores
    }
    return 0;
}

int do_set_name(InputLineType* InputLine) {
    if (InputLine->NumWords != 3) return InvalidArguments();

    const char* typed = InputLine->OrigCaseWords[2];
    const size_t length = std::strlen(typed);
    if (length > size_t{2 * kServerNameHalf}) {
        return Fail("\nERROR: Max length of server name is 28 characters.");
    }
    std::printf("\nNOTE: On some servers the name may be split in two depending on length");

    ServerName name{};
    const size_t first = std::min(length, size_t{kServerNameHalf});
    std::memcpy(name.zthls1, typed, first);
    std::memcpy(name.zthls1 + kServerNameHalf + 1, typed + first, length - first);
    if (!WriteVariable(kServerName, name)) return Fail("\nFailed to set server name. ");

    std::printf("\nSuccessfully set new server name: %s", typed);
    return 0;
}
