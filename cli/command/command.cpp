#include "cli/command/command.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "cli/command/state.h"

InputLineType CurrentCommandLine;
CmdType* current_command = nullptr;

void ClearLine(InputLineType* InputLine) {
    std::memset(InputLine->CmdLine, 0, sizeof InputLine->CmdLine);
    std::memset(InputLine->ParseLine, 0, sizeof InputLine->ParseLine);
    std::memset(InputLine->Words, 0, sizeof InputLine->Words);
}

int InvalidArguments() {
    return Fail("\nInvalid argument(s)\n%s", current_command->Help);
}

int ShowUsage() {
    return Fail("\n%s", current_command->Help);
}

int Fail(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
    return 1;
}

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
