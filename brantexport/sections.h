// The sections of the exported document.
#pragma once

#include <vector>

#include "brantexport/errors.h"
#include "brantexport/writer.h"

struct Section {
    const char* name;
    // Reads the section and sends it to `writer` as one value, object or list. A value that can't be read is
    // null and adds an error. A value that neither the driver nor the firmware provides is null without an
    // error. A list of parts that the server doesn't have is empty.
    void (*write)(Writer& writer, Errors& errors);
};

// Returns all sections, in the order in which they are exported.
std::vector<Section> Sections();
