// Memory modules, in the order of the driver's cartridges and their sockets.
#pragma once

#include <cstdint>

#include "cli/command/command.h"
#include "include/memory_records.h"

struct ModuleStatus {
    int cartridge;  // as they are labelled
    int module;
    bool present;  // false: there is something in the socket, but not a module that the driver takes for one
    uint32_t form_factor;  // as SMBIOS numbers them
    uint32_t memory_type;
    int size;                 // megabytes
    int speed;                // MHz
    uint32_t status;          // the driver's number
    const char* status_text;  // null when the number isn't known
};

// The ranges that a walk of the memory modules covers; a count of 0 or below covers none.
struct MemoryCounts {
    int dimms;  // sockets of each cartridge
    int carts;  // cartridges
};

// Returns the counts of `memory`, limited to what a request's index bytes can name. If `memory` is null,
// because the driver has no such record, returns counts that are high enough for any server.
MemoryCounts CountsOf(const RESMEM_CONFIG* memory);

class MemoryModules {
  public:
    enum class Next { Module, End, Failed };

    MemoryModules();  // reads the counts, and whether the memory is on the system board

    // Reads the next socket that isn't empty. Returns End if there is none or the request for a socket
    // failed, and Failed if the request for the module's status failed. After either, further calls return
    // End and send no request.
    Next ReadNext(ModuleStatus& module);

  private:
    int dimms;       // sockets of each cartridge
    int carts;       // the walk ends before this cartridge
    int cartridge_;  // the socket that is read next
    int socket_ = 0;
};

// The command handler. Takes the tokenized line; returns 0, or 1 on failure.
int do_show_dimm(InputLineType* InputLine);
