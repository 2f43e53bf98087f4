// The sections of the exported document.
#pragma once

#include <vector>

#include "brantexport/document.h"

struct Section {
    const char* name;
    // Returns the section's value. A value that can't be read is null and adds an error. A value that neither
    // the driver nor the firmware has is null. If the server has no such parts, a list is empty.
    Json (*read)(Errors& errors);
};

// Returns all sections, in the order in which they are printed.
const std::vector<Section>& Sections();
