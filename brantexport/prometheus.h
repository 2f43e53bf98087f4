// The exported values as Prometheus's text format has them: gauges with labels.
#pragma once

#include <string>

#include "brantexport/json.h"

// document: what is exported as JSON, sections and errors. A value that is null has no sample.
std::string PrometheusText(const Json& document);
