// The sections of the firmware's settings and of the versions of its components.
#pragma once

#include "brantexport/document.h"

Json ExportSettings(Errors& errors);
Json ExportVersions(Errors& errors);
