// Reads and sets the automatic server recovery (ASR) timer. The casr device holds its state, a ROM variable
// its timeout.
#pragma once

#include "cli/command/command.h"

struct AsrTimer {
    bool enabled;
    int minutes;
};

enum class AsrRead { Done, StateFailed, TimeoutFailed };

// Reads the timer. Prints nothing.
AsrRead ReadAsrTimer(AsrTimer& timer);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_asr(InputLineType* InputLine);
int do_set_asr(InputLineType* InputLine);
int do_enable_asr(InputLineType* InputLine);
int do_disable_asr(InputLineType* InputLine);
