// The model Corvex BX20: a blade, which its enclosure cools and powers.
#pragma once

#include "mkmachine/model.h"

extern const Model kBx20;
