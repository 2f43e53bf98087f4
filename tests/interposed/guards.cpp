// A page that can't be read lies behind each mapping: whoever looks past the end is ended by a signal.
#include <dlfcn.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>

namespace {

size_t PageSize() {
    return static_cast<size_t>(sysconf(_SC_PAGESIZE));
}

// The bytes of a mapping's whole pages.
size_t WholePages(size_t length) {
    return (length + PageSize() - 1) / PageSize() * PageSize();
}

// The C library's own.
template <typename Function>
Function* Own(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// Each stands in the place of the C library's function of the name behind it.
extern "C" {
void* Map(void* address, size_t length, int protection, int flags, int fd, off_t offset) asm("mmap64");
int Unmap(void* mapping, size_t length) asm("munmap");
}

void* Map(void* address, size_t length, int protection, int flags, int fd, off_t offset) {
    void* const mapping =
        Own<decltype(Map)>("mmap64")(address, WholePages(length) + PageSize(), protection, flags, fd, offset);
    if (mapping != MAP_FAILED)
        mprotect(static_cast<char*>(mapping) + WholePages(length), PageSize(), PROT_NONE);
    return mapping;
}

int Unmap(void* mapping, size_t length) {
    return Own<decltype(Unmap)>("munmap")(mapping, WholePages(length) + PageSize());
}
