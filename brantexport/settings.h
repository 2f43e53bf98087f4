// The sections of the firmware's settings and of the versions of its components.
#pragma once

#include "brantexport/errors.h"
#include "brantexport/writer.h"

void WriteSettings(Writer& writer, Errors& errors);
void WriteVersions(Writer& writer, Errors& errors);
