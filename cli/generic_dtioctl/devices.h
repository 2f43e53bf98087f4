// The health driver's four devices, open from start-up to the end of the run.
#pragma once

#include "cli/command/state.h"

// Their files. Not const: the request library takes a char*.
extern char cdt_path[];
extern char cevt_path[];
extern char casr_path[];
extern char crom_path[];

// Opens cdt, cevt, casr and crom, in this order. False, with a message, when one of them doesn't open; those
// before it are closed again, the last one first.
bool OpenDevices();

// Opens those that open, for programs that do without the others: the descriptor of one that doesn't is below
// 0, and requests on it fail. Prints nothing.
void OpenWhatOpens();

// Close all four: in the order in which they were opened, or the last one first.
void CloseDevices();
void CloseDevicesLastFirst();
