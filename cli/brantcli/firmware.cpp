#include "cli/brantcli/firmware.h"

#include <cstdio>

#include "cli/brantcli/rom_signature.h"

bool CheckRom() {
    if (detect_zet_rom() == 0) return true;
    std::printf("ERROR: brantcli only runs on VX hardware.\n");
    return false;
}
