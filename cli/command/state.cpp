#include "cli/command/state.h"

#include <cstdlib>
#include <cstring>

int script_mode = 0;
int got_kelm = 0;

int cdt_fd = -1;
int cevt_fd = -1;
int casr_fd = -1;
int crom_fd = -1;

int embedded_nics_installed = 0;
unsigned char zthmac[kMaxEmbeddedNics * sizeof(smbios_nic)];

unsigned char fSMBiosInited = 0;
SMBIOSEntryPoint EPS;
unsigned char* pSMBTables = nullptr;

int smbios_available = 0;
char system_name[64];
ZET_CPU* gCpu_tbl[11];
ZET_CACHE* gCache_tbl[21];
ZET_MemModule* gMemoryMod[64];
int processors_left_out = 0;
int memory_modules_left_out = 0;

char* History[kHistorySlots];
int history_index = 0;

smbios_nic& EmbeddedNic(int index) {
    static_assert(alignof(smbios_nic) == 1);
    return reinterpret_cast<smbios_nic*>(zthmac)[index];
}

namespace {

template <typename Record, size_t kEntries>
void FreeAll(Record* (&table)[kEntries]) {
    for (Record*& record : table) {
        std::free(record);
        record = nullptr;
    }
}

}  // namespace

void ResetState() {
    script_mode = got_kelm = 0;
    cdt_fd = cevt_fd = casr_fd = crom_fd = -1;
    embedded_nics_installed = 0;
    std::memset(zthmac, 0, sizeof zthmac);

    std::free(pSMBTables);
    pSMBTables = nullptr;
    fSMBiosInited = 0;
    EPS = {};

    smbios_available = 0;
    std::memset(system_name, 0, sizeof system_name);
    FreeAll(gCpu_tbl);
    FreeAll(gCache_tbl);
    FreeAll(gMemoryMod);
    processors_left_out = memory_modules_left_out = 0;

    std::free(History[0]);
    std::memset(History, 0, sizeof History);
    history_index = 0;
}
