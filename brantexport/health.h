// The sections whose values are read from the health driver.
#pragma once

#include "brantexport/errors.h"
#include "brantexport/writer.h"

void WriteMemory(Writer& writer, Errors& errors);
void WriteFans(Writer& writer, Errors& errors);
void WriteTemperatures(Writer& writer, Errors& errors);
void WritePowerSupplies(Writer& writer, Errors& errors);
void WriteUid(Writer& writer, Errors& errors);
void WriteAsr(Writer& writer, Errors& errors);
