// All that start-up fills (cli/command/state.h), for tests and fuzz targets, which start up more than once in
// one process. A variable that is added there has its place in the table of the source file.
#pragma once

#include <string>

// Frees what start-up allocated and puts every variable back to what it is before start-up. The devices
// aren't closed.
void ResetState();

// All variables as one value, with which to return to one start-up after another. What they point to isn't
// copied: it is freed once, by ResetState, while they are in place.
std::string StateNow();
void ReturnToState(const std::string& state);
