// Tests of the commands for the recovery timer, the server's name, the asset text, the switches, and the
// versions.
#include <gtest/gtest.h>

#include "cli/misc-commands/asset_name.h"
#include "tests/misc-commands/rom_shell.h"

namespace {

#define ASR_RANGE "\nERROR: Timeout must be 5, 10, 15, 20 or 30 minutes."
#define NAME_NOTE "\nNOTE: On some servers the name may be split in two depending on length"

// clang-format off
const std::vector<RomRow> kRows = {
    {kOrdinary, "the state is shown as the minutes", "ZTHCPR=0203140405060708",
     {{"ENABLE ASR", "\nSuccessfully enabled ASR timer.", "casr 4"},
      {"SHOW ASR", "\nASR timeout is 20 minutes.\nASR is currently enabled.", "casr 6; read ZTHCPR 8"},
      {"DISABLE ASR", "\nSuccessfully disabled ASR timer.", "casr 3"},
      {"SHOW ASR", "\nASR timeout is 20 minutes.\nASR is currently disabled.", "casr 6; read ZTHCPR 8"}}},
    {kOrdinary, "an invalid number is accepted, or one that wraps to a valid one", "",
     {Fails("SET ASR 12", ASR_RANGE), Fails("SET ASR TEN", ASR_RANGE), Fails("SET ASR 4294967301", ASR_RANGE)}},
    {kOrdinary, "a half has one character too many or too few, or no NULs", "",
     {{"SET NAME abcdefghijklmnOPQRSTUVWXYZ12", NAME_NOTE "\nSuccessfully set new server name: abcdefghijklmnOPQRSTUVWXYZ12",
       "write ZTHLS1 30 6162636465666768696a6b6c6d6e004f505152535455565758595a313200"},
      {"SHOW NAME", "\nServer name is: abcdefghijklmn~OPQRSTUVWXYZ12~", "read ZTHLS1 30"},
      Fails("SET NAME abcdefghijklmnOPQRSTUVWXYZ123", "\nERROR: Max length of server name is 28 characters."),
      {"SET NAME \"My Server\"", NAME_NOTE "\nSuccessfully set new server name: My Server",
       "write ZTHLS1 30 4d7920536572766572000000000000000000000000000000000000000000"}}},
    {kOrdinary, "no message for a failed write, or a wrong status", "!crom write ZTSBKT 1; !crom write ZTHLS1 1",
     {Fails("SET NAME web7", NAME_NOTE "\nFailed to set server name. ", kAnything),
      {"ENABLE WOL", "\nERROR: Failed to enable Wake-On-Lan support.", kAnything},
      {"DISABLE WOL", "\nERROR: Failed to disable Wake-On-Lan support.", kAnything}}},
    {kOrdinary, "the case of a quoted word is ignored", "",
     {Fails("SET F1 \"delayed\"", "\nERROR: Invalid argument(s)\n"
            "USAGE: SET F1 [ ENABLED | DELAYED | DISABLED ]: Sets the POST F1 prompt configuration.", "read ZTSBKT 13")}},
    {kOrdinary, "a component has the version of another one",
     "ZTHUV=000102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f20212223242526272829ff",
     {{"SHOW VERSIONS IN FULL", "\nVersion Information:"
     "\n    TZ: Baseline - 0.1.2\n        Current  - 3.4.5\n Vetro: Baseline - 6.7.8\n        Current  - 9.10.11"
     "\n FLASKO: Baseline - 12.13.14\n         Current  - 15.16.17"
     "\n Plex Warden: Baseline - 18.19.20\n              Current  - 21.22.23"
     "\n Sift Tool: Baseline - 24.25.26\n            Current  - 27.28.29\n Ext. Mod: Baseline - 30.31.32"
     "\n           Current  - 33.34.35\n KRL: Baseline - 36.37.38\n      Current  - 39.40.41", "read ZTHUV 42"}}},
};

const std::vector<Shown> kShown = {
    {"ZTHLS1=0041", "SHOW NAME", "\nServer name is: Not Set"},
    {"ZTHCSM=fe", "SHOW EAAS", "\nEAAS is currently disabled."},
    {"ZTHCSM=07", "SHOW EAAS", "\nEAAS is currently enabled."},
    {"ZTSBKT=000000000000fc", "SHOW WOL", "\nWake-On-Lan is currently disabled."},
    {"ZTSBKT=000000000000ff", "SHOW WOL", "\nWake-On-Lan is currently disabled."},
    {"ZTSBKT=00000000000000fc", "SHOW F1", "\nThe POST F1 prompt is currently undefined."},
};
// clang-format on

TEST(RomSettings, ChangeOnlyTheirOwnBits) {
    ExpectRows(kRows);
}

TEST(RomSettings, ShowNamesOfTheirBits) {
    ExpectShown("", kShown);
    RomShell shell;
    shell.machine.Variable("ZTHUV", std::string(41, '\0') + '\1');
    EXPECT_EQ("\nVersion Information:", shell.Run("SHOW VERSIONS").substr(0, 21));
}

TEST(RomSettings, TruncateTheAssetText) {
    RomShell shell;
    InputLineType line{};
    line.NumWords = 3;
    std::string longer(300, 'A');
    line.Words[2] = longer.data();
    EXPECT_EQ(do_set_asset(&line), 0);
    EXPECT_EQ(shell.Run("SHOW ASSET IN FULL"), "\nAsset: '" + longer.substr(0, 255) + "'");
}

}  // namespace
