// The sections whose values are read from the health driver.
#pragma once

#include "brantexport/document.h"

Json ExportMemory(Errors& errors);
Json ExportFans(Errors& errors);
Json ExportTemperatures(Errors& errors);
Json ExportPowerSupplies(Errors& errors);
Json ExportUid(Errors& errors);
Json ExportAsr(Errors& errors);
