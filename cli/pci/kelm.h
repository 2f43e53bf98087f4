// Kelm, the management processor: a function on the PCI bus.
#pragma once

#include "platform/picl.h"

// How the platform information service shows it: a node of this class, its properties "vendor-id" and
// "device-id".
constexpr char kPciFunctionClass[] = "obp-device";
constexpr uint32_t kKelmVendor = 0x1C4E;
constexpr uint32_t kKelmDevice = 0x6D19;

// Looks for it among the devices that the platform information service lists. Result: 1 when it is there; 0
// when it isn't or the service can't be asked. Prints nothing.
int find_kelm();

// The visitor of that search. p: a device's node. arg: the int that is set to 1 when p is the management
// processor. Result: PICL_WALK_TERMINATE when it is, else PICL_WALK_CONTINUE.
int is_kelm(picl_nodehdl_t p, void* arg);
