// The firmware's settings, and the versions of its components.
#pragma once

#include "brantexport/document.h"

Json ExportSettings(Errors& errors);
Json ExportVersions(Errors& errors);
