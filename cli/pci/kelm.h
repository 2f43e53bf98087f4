// Finds Kelm, the management processor: a function on the PCI bus.
#pragma once

#include "platform/picl.h"

// The management processor's node in the PICL tree has this class, and these values of the properties
// "vendor-id" and "device-id".
constexpr char kPciFunctionClass[] = "obp-device";
constexpr uint32_t kKelmVendor = 0x1C4E;
constexpr uint32_t kKelmDevice = 0x6D19;

// Searches the PICL tree for the management processor. Returns 1 if it is there; returns 0 if it isn't or if
// the PICL service fails. Prints nothing.
int find_kelm();

// Tree-walk callback of find_kelm(). If the node `p` is the management processor, sets the int at `arg` to 1
// and returns PICL_WALK_TERMINATE; otherwise returns PICL_WALK_CONTINUE.
int is_kelm(picl_nodehdl_t p, void* arg);
