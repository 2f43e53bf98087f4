// The handler for uncaught exceptions, which is linked into every program.
//
// If there isn't enough memory even for the exception object of std::bad_alloc, the C++ library calls this
// handler without an exception. The handler then prints a message and exits with status 1. If it is called
// for any other reason, there is a bug in the program, and it aborts.
//
// The library's own handler prints the exception's type, and so contains a demangler. This handler replaces
// it at link time, so that the demangler isn't linked; loading it would take 1 % of a short run.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>

namespace __gnu_cxx {

void __verbose_terminate_handler() {
    try {
        if (std::current_exception() != nullptr) throw;
    } catch (const std::bad_alloc&) {
        // Memory has run out in a function that must not throw.
    } catch (...) {
        std::abort();
    }
    std::fflush(stdout);
    std::fputs("ERROR: out of memory.\n", stderr);
    _exit(1);
}

}  // namespace __gnu_cxx

namespace {

// Needed if the C++ library is shared: it doesn't call the replacement by itself.
[[maybe_unused]] const std::terminate_handler former =
    std::set_terminate(__gnu_cxx::__verbose_terminate_handler);

}  // namespace
