// An allocator for the whole process, of which one allocation fails: the N-th, when BRANT_FAIL_ALLOCATION is
// N. It says so on standard error, so that whoever asked knows whether the process got that far.
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdlib>

extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* block, size_t size);
}

namespace {

bool Fails() {
    static unsigned long made = 0;
    const char* const failing = getenv("BRANT_FAIL_ALLOCATION");
    if (failing == nullptr || ++made != strtoul(failing, nullptr, 10)) return false;
    errno = ENOMEM;
    constexpr char kNotice[] = "allocation failed\n";
    return write(STDERR_FILENO, kNotice, sizeof kNotice - 1) > 0;
}

}  // namespace

// operator new comes here too.
extern "C" void* malloc(size_t size) {
    return Fails() ? nullptr : __libc_malloc(size);
}

extern "C" void* calloc(size_t count, size_t size) {
    return Fails() ? nullptr : __libc_calloc(count, size);
}

extern "C" void* realloc(void* block, size_t size) {
    return Fails() ? nullptr : __libc_realloc(block, size);
}
