#include "tests/support/program_state.h"

#include <cstdlib>
#include <cstring>

#include "cli/command/command.h"
#include "cli/command/state.h"
#include "cli/parse/command_tree.h"
#include "cli/terminal/keys.h"
#include "cli/terminal/terminal.h"
#include "src/utils/map_physical.h"

namespace {

struct Variable {
    template <typename Value>
    constexpr Variable(Value& value) : address(&value), size(sizeof value) {}

    void* address;
    size_t size;
};

// All variables of cli/command/state.h.
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

void ResetState() {
    RestoreTerminal();
    GetChar(1);
    FreeCommands();
    current_command = nullptr;
    std::memset(&CurrentCommandLine, 0, sizeof CurrentCommandLine);
    __brantcli_pgsz = 0;

    std::free(pSMBTables);
    std::free(smb_record_sizes);
    FreeAll(gCpu_tbl);
    FreeAll(gCache_tbl);
    FreeAll(gMemoryMod);
    std::free(History[0]);
    for (const Variable& variable : kVariables) std::memset(variable.address, 0, variable.size);
    cdt_fd = cevt_fd = casr_fd = crom_fd = -1;
}

std::string StateNow() {
    std::string state;
    for (const Variable& variable : kVariables) {
        state.append(static_cast<const char*>(variable.address), variable.size);
    }
    return state;
}

void ReturnToState(const std::string& state) {
    const char* next = state.data();
    for (const Variable& variable : kVariables) {
        std::memcpy(variable.address, next, variable.size);
        next += variable.size;
    }
}
