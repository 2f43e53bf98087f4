// Adds an inaccessible guard page after each memory mapping, so that a signal ends the process if it reads
// past the end of a mapping.
#include <dlfcn.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>

namespace {

size_t PageSize() {
    return static_cast<size_t>(sysconf(_SC_PAGESIZE));
}

// Rounds `length` up to whole pages.
size_t WholePages(size_t length) {
    return (length + PageSize() - 1) / PageSize() * PageSize();
}

// Returns the C library's function with this name.
template <typename Function>
Function* Original(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// Each function replaces the C library's function that the asm label names.
extern "C" {
void* Map(void* address, size_t length, int protection, int flags, int fd, off_t offset) asm("mmap64");
int Unmap(void* mapping, size_t length) asm("munmap");
}

void* Map(void* address, size_t length, int protection, int flags, int fd, off_t offset) {
    void* const mapping = Original<decltype(Map)>("mmap64")(address, WholePages(length) + PageSize(),
                                                            protection, flags, fd, offset);
    if (mapping != MAP_FAILED)
        mprotect(static_cast<char*>(mapping) + WholePages(length), PageSize(), PROT_NONE);
    return mapping;
}

int Unmap(void* mapping, size_t length) {
    return Original<decltype(Unmap)>("munmap")(mapping, WholePages(length) + PageSize());
}
