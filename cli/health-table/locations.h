// Where in the chassis a fan or a temperature sensor sits.
#pragma once

#include "cli/health-table/rows.h"
#include "include/data_tables.h"

// The zones that the fan table and the temperature table call by different names.
struct ZoneWords {
    const char* system;
    const char* power_supply_bay;
    const char* exhaust;
};

// Writes the name of the location's zone into a cell; a processor's zone by its number where it has one.
void SetLocation(field& cell, LOCATIONDESIGNATOR location, const ZoneWords& words);
