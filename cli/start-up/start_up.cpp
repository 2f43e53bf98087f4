#include "cli/start-up/start_up.h"

#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "cli/command/state.h"
#include "cli/misc-commands/rom_store.h"
#include "cli/smbios-commands/inventory.h"
#include "cli/smbios_old/tables.h"
#include "cli/smbparse/memory_inventory.h"
#include "cli/smbparse/processors.h"
#include "include/rom_variables.h"
#include "include/smbios_records.h"
#include "src/utils/map_physical.h"

namespace {

int CountNicsOfRom() {
    int count = 0;
    for (int i = 0; i < kMaxEmbeddedNics; ++i) {
        if (!IsEmpty(EmbeddedNic(i))) ++count;
    }
    return count;
}

}  // namespace

int detect_zet_rom() {
    // Mapping one byte less is enough: the mapping is rounded up to whole pages, so it contains the whole
    // area.
    constexpr unsigned int kMapped = kBiosAreaSize - 1;
    auto* area = static_cast<unsigned char*>(zetMapPhys32UnCache(kBiosArea, kMapped));
    if (area == nullptr) return 1;

    const bool found = std::memcmp(area + kRomSignatureOffset, kRomSignature, kRomSignatureSize) == 0;
    zetUnMapPhys32UnCache(area, kMapped);
    return found ? 0 : 1;
}

bool CheckUser(const char* program) {
    if (getuid() == 0) return true;
    std::printf("ERROR: You must be root to run %s.\n", program);
    return false;
}

bool CheckRom(const char* program) {
    if (detect_zet_rom() == 0) return true;
    std::printf("ERROR: %s only runs on VX hardware.\n", program);
    return false;
}

bool ReadFirmwareTables(const char* program) {
    InitSMBIOS();
    smbios_available = IsSMBIOSAvailable();
    if (smbios_available == 0) return true;

    SmbParseMemRecords();
    SmbParseProcRecords();
    if (detect_corvex() != 0) {
        std::printf("ERROR: %s only runs on VX Corvex Servers.\n", program);
        DeinitSMBIOS();
        return false;
    }
    smbios_get_systemname();
    return true;
}

void FindEmbeddedNics() {
    embedded_nics_installed = get_embedded_nics_smbios();
    if (embedded_nics_installed == -1 && get_ev(kNicAddressVariable, zthmac, sizeof zthmac) == 0) {
        embedded_nics_installed = CountNicsOfRom();
    }
}

void CountEmbeddedNics() {
    FindEmbeddedNics();
    if (embedded_nics_installed < 0) {
        std::printf("\nFailed to read embedded NIC status.");
        std::printf("\nThis system may not have any embedded NICs installed.\n\n");
    }
}
