// The memory modules that the driver's tables contain, and SHOW DIMM.
#pragma once

#include <cstdint>

#include "cli/command/command.h"
#include "include/memory_records.h"

struct ModuleStatus {
    int cartridge;         // as labelled
    int module;            // as labelled
    bool present;          // false: the socket isn't empty, but the driver doesn't recognise a module in it
    uint32_t form_factor;  // SMBIOS code
    uint32_t memory_type;  // SMBIOS code
    int size;              // megabytes
    int speed;             // MHz
    uint32_t status;       // the driver's code
    const char* status_text;  // null if the code has no name
};

// The sockets for memory modules: `dimms` in each cartridge from `cart_start` to `carts` - 1. A count of 0 or
// less means that there are none.
struct MemorySockets {
    int dimms;
    int carts;
    int cart_start = 0;

    int Count() const;
};

// Returns the sockets of the cartridges that `memory` describes, limited to what a request's index bytes can
// name. If `memory` is null, because the driver has no such record, returns counts that are high enough for
// any server.
MemorySockets SocketsOf(const RESMEM_CONFIG* memory);

// Reads where the sockets are: in cartridges or on the system board. A message is printed only if memory runs
// out (see generic_dtioctl).
MemorySockets ReadSockets();

enum class ModuleRead { Done, Empty, ConfigFailed, StatusFailed };

// Reads socket `index`, from 0 to sockets.Count() - 1. ConfigFailed means that the list ends before this
// socket. Prints as ReadSockets does.
ModuleRead ReadModule(const MemorySockets& sockets, int index, ModuleStatus& module);

// The command handler. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_dimm(InputLineType* InputLine);
