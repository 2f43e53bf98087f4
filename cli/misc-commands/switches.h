// Settings that are switched on and off: automatic shutdown in an abnormal environment (EAAS), Wake-On-Lan,
// hyper-threading; and the POST F1 prompt, which can also be delayed.
#pragma once

#include "cli/command/command.h"

const char* ReadShutdown(bool& enabled);
const char* ReadWakeOnLan(bool& enabled);
const char* ReadHyperThreading(bool& enabled);
const char* ReadF1Prompt(const char*& state);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_eaas(InputLineType* InputLine);
int do_enable_eaas(InputLineType* InputLine);
int do_disable_eaas(InputLineType* InputLine);
int do_show_wol(InputLineType* InputLine);
int do_enable_disable_wol(InputLineType* InputLine);
int do_show_ht(InputLineType* InputLine);
int do_enable_disable_ht(InputLineType* InputLine);
int do_show_f1(InputLineType* InputLine);
int do_set_f1(InputLineType* InputLine);
