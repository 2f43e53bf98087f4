// The sections of the exported document.
#pragma once

#include <vector>

#include "brantexport/document.h"

struct Section {
    const char* name;
    // The section's value. What can't be read is null in it, and an error. What the machine doesn't have is
    // an empty list, what nobody tells null.
    Json (*read)(Errors& errors);
};

// All of them, in the order in which they are written.
const std::vector<Section>& Sections();
