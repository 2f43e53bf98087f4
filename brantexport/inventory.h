// The sections whose values are read from the firmware: the server, its processors and its NICs.
#pragma once

#include "brantexport/errors.h"
#include "brantexport/writer.h"

void WriteSystem(Writer& writer, Errors& errors);
void WriteProcessors(Writer& writer, Errors& errors);
void WriteNics(Writer& writer, Errors& errors);
void WritePortMap(Writer& writer, Errors& errors);
