// The model Corvex TR300: an ordinary server with older firmware and an older driver, which has no memory
// tables.
#pragma once

#include "mkmachine/model.h"

extern const Model kTr300;
