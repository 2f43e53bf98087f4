#include "cli/misc-commands/server_model.h"

#include <cstring>

#include "cli/smbios-commands/smbios_commands.h"

bool is_tr500k2() {
    return std::strcmp(system_name, "Corvex TR500 K2") == 0;
}
