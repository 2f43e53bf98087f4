// What start-up asks of the tables: the server line, the model, the embedded NICs.
#include <strings.h>

#include <cstdio>
#include <cstring>

#include "cli/command/state.h"
#include "cli/smbios-commands/smbios_commands.h"
#include "cli/smbios_old/smbios.h"
#include "src/utils/text.h"

namespace {

constexpr char kServerLine[] = "corvex";

}  // namespace

int detect_corvex() {
    const auto system = SmbFirst<smbios::System>();
    if (!system) {
        std::printf("\nERROR: Failed to get SMBIOS system data.");
        std::printf("\nThis does not seem to be a VX Corvex Server.");
        return 1;
    }
    const char* product = system.Text(smbios::System::kProductName);
    return strncasecmp(product, kServerLine, std::strlen(kServerLine)) == 0 ? 0 : 1;
}

int smbios_get_systemname() {
    if (smbios_available == 0) return 1;
    const auto system = SmbFirst<smbios::System>();
    if (!system) {
        std::printf("\nERROR: Failed to read system name.");
        return 1;
    }
    TextWriter(system_name, sizeof system_name).Text(system.Text(smbios::System::kProductName));
    return 0;
}

int get_embedded_nics_smbios() {
    if (smbios_available == 0) return -1;
    const auto table = SmbFirst<smbios_nic_table>();
    if (!table) return -1;

    const auto count = static_cast<int>(table.Count(smbios::kNics));
    int empty = 0;
    int stored = 0;
    for (int i = 0; i < count && stored < kMaxEmbeddedNics; ++i) {
        const smbios_nic nic = table.Read(smbios::kNics, static_cast<size_t>(i));
        if (IsEmpty(nic)) {
            ++empty;
            continue;
        }
        std::memcpy(EmbeddedNic(stored).nic_mac, nic.nic_mac, sizeof nic.nic_mac);
        ++stored;
    }
    return count - empty;
}
