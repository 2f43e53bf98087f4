// The sections that the firmware's tables contain: the server, its processors, its NICs.
#pragma once

#include "brantexport/document.h"

Json ExportSystem(Errors& errors);
Json ExportProcessors(Errors& errors);
Json ExportNics(Errors& errors);
