// Replaces the C library's allocator. If BRANT_FAIL_ALLOCATION is N, the N-th allocation of the process
// fails; if it is N+, all allocations from the N-th on fail. Each failure is reported on standard error, so
// that the test can check whether the process got that far. If BRANT_COUNT_BLOCKS is set, the process prints,
// when it ends, the number of blocks that it has not freed.
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* block, size_t size);
void __libc_free(void* block);
}

namespace {

bool Fails() {
    static unsigned long allocations = 0;
    const char* const failing = getenv("BRANT_FAIL_ALLOCATION");
    if (failing == nullptr) return false;
    char* end;
    const unsigned long first = strtoul(failing, &end, 10);
    ++allocations;
    if (allocations < first || (allocations > first && *end != '+')) return false;
    errno = ENOMEM;
    constexpr char kNotice[] = "allocation failed\n";
    return write(STDERR_FILENO, kNotice, sizeof kNotice - 1) > 0;
}

long blocks = 0;

void* Counted(void* block) {
    if (block != nullptr) ++blocks;
    return block;
}

__attribute__((destructor)) void ReportBlocks() {
    if (getenv("BRANT_COUNT_BLOCKS") != nullptr) dprintf(STDERR_FILENO, "%ld blocks", blocks);
}

}  // namespace

// operator new also allocates with malloc.
extern "C" void* malloc(size_t size) {
    return Fails() ? nullptr : Counted(__libc_malloc(size));
}

extern "C" void* calloc(size_t count, size_t size) {
    return Fails() ? nullptr : Counted(__libc_calloc(count, size));
}

extern "C" void* realloc(void* block, size_t size) {
    if (Fails()) return nullptr;
    return block == nullptr ? Counted(__libc_realloc(block, size)) : __libc_realloc(block, size);
}

extern "C" void free(void* block) {
    if (block != nullptr) --blocks;
    __libc_free(block);
}
