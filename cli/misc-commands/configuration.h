// The system configuration: one variable whose bits several commands share.
#pragma once

#include "cli/misc-commands/rom_setting.h"

// As most commands use it: they write back all but its last byte.
constexpr RomVariable<WOLEVREC> kConfiguration = {kConfigurationVariable, sizeof(WOLEVREC),
                                                  offsetof(WOLEVREC, flags5)};

// As the hyper-threading commands use it.
constexpr RomVariable<WOLEVREC> kWholeConfiguration = {kConfigurationVariable};
