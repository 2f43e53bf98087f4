// Kelm, the management processor: a function on the PCI bus.
#pragma once

#include "platform/picl.h"

// Looks for it among the devices that the platform information service lists. Result: 1 when it is there; 0
// when it isn't or the service can't be asked. Prints nothing.
int find_kelm();

// The visitor of that search. p: a device's node. arg: the int that is set to 1 when p is the management
// processor. Result: PICL_WALK_TERMINATE when it is, else PICL_WALK_CONTINUE.
int is_kelm(picl_nodehdl_t p, void* arg);
