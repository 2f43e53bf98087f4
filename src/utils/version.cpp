#include "src/utils/version.h"

const char kVersion[] = BRANT_VERSION;
