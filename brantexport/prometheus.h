// The exported document in Prometheus's text format.
#pragma once

#include <string>

#include "brantexport/document.h"

// Converts the values of `document`, which contains sections and errors, to gauges with labels. A null value
// has no sample. If the event log could not be read to its end, its entries are not counted. The last line is
// "# EOF".
std::string PrometheusText(const Json& document);
