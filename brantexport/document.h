// The exported document.
#pragma once

#include <vector>

#include "brantexport/errors.h"
#include "brantexport/sections.h"
#include "brantexport/writer.h"

// Reads the sections and sends the document to `writer`. Adds an error for each value that can't be read.
void WriteDocument(Writer& writer, const std::vector<Section>& sections, Errors& errors);
