// The Corvex TR500 K2: a server with every part and setting that a machine can have.
#pragma once

#include "mkmachine/model.h"

extern const Model kTr500k2;
