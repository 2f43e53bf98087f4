// What start-up learns from the firmware: whether it runs on the maker's servers at all, and what is in this
// one.
#pragma once

// False, with a message, when the ROM isn't the maker's.
bool CheckRom();
