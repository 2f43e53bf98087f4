#include "src/utils/exceptions.h"

#include <cstdio>
#include <exception>
#include <new>

const char* ExceptionMessage() {
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return "out of memory";
    } catch (const std::exception& error) {
        return error.what();
    }
}

int ReportException(const char* program) {
    std::fprintf(stderr, "%s: %s\n", program, ExceptionMessage());
    return 1;
}
