// The version of the programs, which CMakeLists.txt defines. The v1.1 in the shell's banner is the version of
// the command language.
#pragma once

extern const char kVersion[];
