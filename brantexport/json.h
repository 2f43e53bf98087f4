// The document as JSON.
#pragma once

#include <memory>

#include "brantexport/writer.h"

// Returns a writer that writes JSON, as UTF-8, into the descriptor `output`.
std::unique_ptr<Writer> NewJsonWriter(int output);
