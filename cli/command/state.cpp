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
uint16_t* smb_record_sizes = nullptr;

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

struct Variable {
    template <typename Value>
    constexpr Variable(Value& value) : place(&value), size(sizeof value) {}

    void* place;
    size_t size;
};

// clang-format off
constexpr Variable kVariables[] = {
    script_mode, got_kelm,
    cdt_fd, cevt_fd, casr_fd, crom_fd,
    embedded_nics_installed, zthmac,
    fSMBiosInited, EPS, pSMBTables, smb_record_sizes,
    smbios_available, system_name, gCpu_tbl, gCache_tbl, gMemoryMod, processors_left_out, memory_modules_left_out,
    History, history_index,
};
// clang-format on

template <typename Record, size_t kEntries>
void FreeAll(Record* (&table)[kEntries]) {
    for (Record* record : table) std::free(record);
}

}  // namespace

bool is_tr500k2() {
    return std::strcmp(system_name, "Corvex TR500 K2") == 0;
}

void ResetState() {
    std::free(pSMBTables);
    std::free(smb_record_sizes);
    FreeAll(gCpu_tbl);
    FreeAll(gCache_tbl);
    FreeAll(gMemoryMod);
    std::free(History[0]);
    for (const Variable& variable : kVariables) std::memset(variable.place, 0, variable.size);
    cdt_fd = cevt_fd = casr_fd = crom_fd = -1;
}

std::string StateNow() {
    std::string state;
    for (const Variable& variable : kVariables) {
        state.append(static_cast<const char*>(variable.place), variable.size);
    }
    return state;
}

void ReturnToState(const std::string& state) {
    const char* next = state.data();
    for (const Variable& variable : kVariables) {
        std::memcpy(variable.place, next, variable.size);
        next += variable.size;
    }
}
