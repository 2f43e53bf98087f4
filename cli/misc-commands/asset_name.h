// Reads and sets the asset text and the server's name.
#pragma once

#include "cli/command/command.h"
#include "include/rom_variables.h"

// Return false if the variable can't be read. Print nothing.
bool ReadAsset(AssetText& asset);
bool ReadServerName(ServerName& name);

// The command handlers. Each takes the tokenized line and returns 0, or 1 on failure.
int do_show_asset(InputLineType* InputLine);
int do_set_asset(InputLineType* InputLine);
int do_show_name(InputLineType* InputLine);
int do_set_name(InputLineType* InputLine);
