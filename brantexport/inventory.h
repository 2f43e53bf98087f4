// The sections whose values are read from the firmware: the server, its processors and its NICs.
#pragma once

#include "brantexport/document.h"

Json ExportSystem(Errors& errors);
Json ExportProcessors(Errors& errors);
Json ExportNics(Errors& errors);
