// The section of the event log.
#pragma once

#include "brantexport/document.h"

Json ExportEvents(Errors& errors);
