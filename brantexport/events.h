// The section of the event log.
#pragma once

#include "brantexport/errors.h"
#include "brantexport/writer.h"

void WriteEvents(Writer& writer, Errors& errors);
