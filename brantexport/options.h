// The command line.
#pragma once

#include <string>
#include <vector>

#include "brantexport/lines.h"
#include "brantexport/sections.h"

enum class Format { Json, Prometheus, Lines, Check, Http };

struct Options {
    Format format = Format::Json;
    std::vector<Section> sections;  // the requested ones or all, in the order of Sections()
    EventFilter filter;             // of Format::Lines
    std::string reply;              // to --help or --version; if not empty, the other members aren't used
    std::string problem;            // a message if the command line is invalid
};

// Parses the command line, up to the first --help or --version. Sets the format before everything else, so
// that --check prints its verdict even if the command line is invalid or memory runs out.
void ReadOptions(int argc, char** argv, Options& options);
