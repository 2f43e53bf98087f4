// The asset text.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "cli/command/refusals.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/misc-commands/rom_setting.h"
#include "cli/misc-commands/settings.h"

namespace {

constexpr RomVariable<AssetText> kAsset = {kAssetVariable};
constexpr RomTexts kTexts = {
    "",
    "\nERROR: Failed to set Asset Text.",
    "\nSuccessfully set Asset Text.",
};

}  // namespace

const char* ReadAsset(AssetText& asset) {
    return ReadVariable(kAsset, asset) ? nullptr : "\nERROR: Failed to read Asset Text.";
}

int do_show_asset(InputLineType* /*InputLine*/) {
    AssetText asset;
    if (const char* error = ReadAsset(asset)) return Fail("%s", error);

    std::printf("\nAsset: '%.*s'", int{sizeof asset.asset_text}, asset.asset_text);
    return 0;
}

int do_set_asset(InputLineType* InputLine) {
    if (InputLine->NumWords == 2) return ShowUsage();
    if (InputLine->NumWords != 3) return InvalidArguments();

    const char* text = InputLine->Words[2];
    AssetText asset{};
    std::memcpy(asset.asset_text, text, std::min(std::strlen(text), sizeof asset.asset_text));
    return Report<kTexts>(StoreVariable(kAsset, asset));
}
