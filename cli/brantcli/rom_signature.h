// The signature by which the BIOS ROM shows whose hardware this is.
#pragma once

// Whether this is the maker's hardware, by the signature in the BIOS ROM. Result: 0 when it is there, 1 when
// it isn't or when the BIOS area can't be mapped. Prints nothing.
int detect_zet_rom();
