#include "cli/brantcli/state.h"

int script_mode = 0;
int smbios_available = 0;
int got_kelm = 0;
int embedded_nics_installed = 0;
unsigned char zthmac[kMaxEmbeddedNics * kNicEntrySize];
char* History[kHistorySlots];
int history_index = 0;
