// What an exception that nobody catches ends in, linked into the programs that have the C++ library within
// them. The library's own handler prints the exception's type in C++'s words, for which it brings a reader of
// mangled names: a tenth of what the loader does in a run was to bind that reader and to set the pointers in
// its tables.
#include <cstdlib>
#include <exception>

namespace __gnu_cxx {

void __verbose_terminate_handler() {
    std::abort();
}

}  // namespace __gnu_cxx
