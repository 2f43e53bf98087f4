// What start-up asks of the tables: the server line, the model, the embedded NICs.
#include <strings.h>

#include <cstdio>
#include <cstring>

#include "cli/command/state.h"
#include "cli/smbios-commands/smbios_commands.h"
#include "cli/smbios_old/smbios.h"
#include "src/utils/text_writer.h"

namespace {

constexpr char kServerLine[] = "corvex";
constexpr size_t kMacOffset = offsetof(smbios_nic, nic_mac);

bool IsEmpty(const smbios_nic& nic) {
    return nic.nic_devfcn == 0 && nic.nic_bus == 0;
}

size_t NicOffset(int index) {
    return offsetof(smbios_nic_table, nic_nics) + static_cast<size_t>(index) * sizeof(smbios_nic);
}

}  // namespace

int detect_corvex() {
    void* record = nullptr;
    if (SmbGetRecordByType(kSystemInformation, 0, &record) != TRUE) {
        std::printf("\nERROR: Failed to get SMBIOS system data.");
        std::printf("\nThis does not seem to be a VX Corvex Server.");
        return 1;
    }
    const char* product = SmbText(record, system_information::kProductName);
    return strncasecmp(product, kServerLine, std::strlen(kServerLine)) == 0 ? 0 : 1;
}

int smbios_get_systemname() {
    if (smbios_available == 0) return 1;
    void* record = nullptr;
    if (SmbGetRecordByType(kSystemInformation, 0, &record) != TRUE) {
        std::printf("\nERROR: Failed to read system name.");
        return 1;
    }
    TextWriter(system_name, sizeof system_name).Text(SmbText(record, system_information::kProductName));
    return 0;
}

int get_embedded_nics_smbios() {
    void* record = nullptr;
    if (smbios_available == 0 || SmbGetRecordByType(kNicTable, 0, &record) != TRUE) return -1;

    const size_t bytes = SmbFormattedArea(record).size - sizeof(SMBIOS_HEADER);
    const int count = static_cast<int>(bytes / sizeof(smbios_nic));
    int empty = 0;
    int stored = 0;
    for (int i = 0; i < count && stored < kMaxEmbeddedNics; ++i) {
        const auto nic = SmbReadEntry<smbios_nic>(record, NicOffset(i));
        if (IsEmpty(nic)) {
            ++empty;
            continue;
        }
        std::memcpy(zthmac + stored * kNicEntrySize + kMacOffset, nic.nic_mac, sizeof nic.nic_mac);
        ++stored;
    }
    return count - empty;
}
