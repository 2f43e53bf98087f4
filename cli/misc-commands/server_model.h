// What the commands need to know of the server's model.
#pragma once

// Whether this is the one model that can boot from a USB key, whose firmware numbers the boot devices
// and routes the embedded serial ports in ways of its own.
bool is_tr500k2();
