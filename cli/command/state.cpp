#include "cli/command/state.h"

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

smbios_nic EmbeddedNic(int index) {
    smbios_nic nic;
    std::memcpy(&nic, zthmac + static_cast<size_t>(index) * sizeof nic, sizeof nic);
    return nic;
}

bool is_tr500k2() {
    return std::strcmp(system_name, "Corvex TR500 K2") == 0;
}
