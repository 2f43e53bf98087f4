// The requests of the casr device, the automatic server recovery timer. Its timeout is a ROM variable.
#pragma once

enum AsrRequest : int {
    kDisableTimer = 3,  // no block
    kEnableTimer = 4,   // no block
    kTimerState = 6,    // int32_t, filled: nonzero when the timer runs
};
