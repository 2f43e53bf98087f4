#pragma once

#include <string>

#include "brantexport/document.h"

// The exported values as Prometheus's text format has them: gauges with labels.
// document: what is exported as JSON, sections and errors. A value that is null has no sample, and neither
// have the entries of an event log that couldn't be read to its end. The last line is "# EOF".
std::string PrometheusText(const Json& document);
