// The document in Prometheus's text format.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "brantexport/sections.h"
#include "brantexport/writer.h"

// Returns a writer that converts the values of `sections` to gauges with labels and, at the end, stores them
// in `text`. A null value has no sample. If the event log could not be read to its end, its metrics are left
// out. The last line is "# EOF".
std::unique_ptr<Writer> NewPrometheusWriter(std::string& text, const std::vector<Section>& sections);
