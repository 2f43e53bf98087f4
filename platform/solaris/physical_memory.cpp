// The physical-memory device of the real server. A mapping requests read, write and execute access, although
// the program only reads: it isn't documented whether the device accepts fewer rights.
#include "platform/physical_memory.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

int xsvc_open() {
    return open("/dev/xsvc", O_RDWR, 0600);
}

void* xsvc_map(int fd, off_t address, size_t length) {
    void* mapping = mmap(nullptr, length, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_SHARED, fd, address);
    return mapping != MAP_FAILED ? mapping : nullptr;
}

void xsvc_unmap(void* mapping, size_t length) {
    munmap(static_cast<char*>(mapping), length);  // older headers declare munmap(caddr_t, size_t)
}

void xsvc_close(int fd) {
    close(fd);
}
