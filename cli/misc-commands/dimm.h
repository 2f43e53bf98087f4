// Reads the memory modules in the driver's tables. The handler of SHOW DIMM prints them.
#pragma once

#include <cstdint>

#include "cli/command/command.h"
#include "include/memory_records.h"

struct ModuleStatus {
    int cartridge;            // number on the cartridge's label
    int module;               // number on the socket's label
    bool present;             // false: the socket isn't empty, but the driver doesn't recognise its module
    uint32_t form_factor;     // SMBIOS code
    uint32_t memory_type;     // SMBIOS code
    int size;                 // megabytes
    int speed;                // MHz
    uint32_t status;          // the driver's code
    const char* status_text;  // null if `status` has no name
};

// The sockets for memory modules: each cartridge from `cart_start` to `carts` - 1 has `dimms` sockets. A
// count of 0 or less means none.
struct MemorySockets {
    int dimms;
    int carts;
    int cart_start = 0;
    bool are_counted = false;  // the counts are the driver's

    int Count() const;
};

// Returns the sockets of the cartridges that `memory` describes, limited to the numbers that a request can
// contain. If `memory` is null, because the driver has no such record, returns counts that are large enough
// for any server.
MemorySockets SocketsOf(const RESMEM_CONFIG* memory);

// Reads where the sockets are: in cartridges or on the system board. Prints a message only if memory runs out
// (see generic_dtioctl).
MemorySockets ReadSockets();

enum class ModuleRead { Done, Empty, ConfigFailed, StatusFailed };

// Reads socket `index`, from 0 to sockets.Count() - 1. Returns ConfigFailed if the list ends before this
// socket, and StatusFailed if only the module's status can't be read. Prints a message only if memory runs
// out.
ModuleRead ReadModule(const MemorySockets& sockets, int index, ModuleStatus& module);

// The command handler. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_dimm(InputLineType* InputLine);
