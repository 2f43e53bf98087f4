// The model Corvex TR500 K2: a server with every part and setting that the shell can show.
#pragma once

#include "mkmachine/model.h"

extern const Model kTr500k2;
