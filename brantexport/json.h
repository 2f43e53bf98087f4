// The document as JSON.
#pragma once

#include <memory>

#include "brantexport/writer.h"

// Returns a writer that writes JSON in UTF-8 to the descriptor `output`.
std::unique_ptr<Writer> NewJsonWriter(int output);
