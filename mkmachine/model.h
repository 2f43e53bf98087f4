// A server model that mkmachine can simulate.
#pragma once

#include <vector>

#include "mkmachine/firmware.h"
#include "mkmachine/health_records.h"
#include "mkmachine/rom_settings.h"

struct Model {
    const char* name;          // argument of the option --model
    const char* product_name;  // product name in the SMBIOS tables
    std::vector<Fan> fans;
    std::vector<Sensor> sensors;
    std::vector<Supply> supplies;
    IndicatorState uid;
    DriverMemory memory;
    Hardware hardware;
    RomSettings settings;
    Kelm kelm;
};
