// The Corvex BX20: a blade, cooled and powered by its enclosure.
#pragma once

#include "mkmachine/model.h"

extern const Model kBx20;
