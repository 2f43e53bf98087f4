// Reads and sets the switches: automatic shutdown in an abnormal environment (EAAS), Wake-On-LAN,
// hyper-threading, and the POST F1 prompt, which can also be delayed.
#pragma once

#include "cli/command/command.h"

// Each reads a setting. Returns false if the setting can't be read. Prints nothing.
bool ReadShutdown(bool& enabled);  // automatic shutdown
bool ReadWakeOnLan(bool& enabled);
bool ReadHyperThreading(bool& enabled);
bool ReadF1Prompt(const char*& state);  // `state`: "undefined", "enabled", "disabled" or "delayed"

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
