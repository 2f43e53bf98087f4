// Physical memory: the machine's file `xsvc`. The byte at offset N is the byte at address N.
#include "platform/physical_memory.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/sim/call.h"
#include "platform/sim/machine_directory.h"

namespace {

constexpr char kMemoryFile[] = "xsvc";

// Returns whether the file contains the whole range. An empty range passes; mmap rejects it later.
bool Contains(int fd, off_t address, size_t length) {
    struct stat status;
    if (fstat(fd, &status) != 0 || address < 0 || address > status.st_size) return false;
    return length <= static_cast<uint64_t>(status.st_size - address);
}

// Stores the address of a private copy of the range in `mapping`. Returns 0, or -errno.
int Map(int fd, off_t address, size_t length, void*& mapping) {
    if (!Contains(fd, address, length)) return -EINVAL;
    // Not a mapping of the file itself: reading it would raise SIGBUS if the file shrank later.
    void* const pages = mmap(nullptr, length, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED) {
        if (errno == ENOMEM) ReportFailure(kMemoryFile);
        return -errno;
    }

    const ssize_t count = ReadAt(fd, pages, length, address);
    const int error = count < 0 ? errno : EINVAL;
    if (count == static_cast<ssize_t>(length)) {
        mapping = pages;
        return 0;
    }
    munmap(pages, length);
    return -error;
}

}  // namespace

int xsvc_open() {
    const auto describe = [](Call& call) { call.SetSubject("xsvc open"); };
    Descriptor file;
    const int result = Perform(describe, [&] {
        file = OpenFile(OpenMachine(), kMemoryFile);
        if (file) return 0;
        if (errno == ENOENT) {
            ReportNoMachine("there is no file xsvc");  // every machine has this file
        } else {
            ReportFailure(kMemoryFile);
        }
        return -errno;
    });
    return result < 0 ? ReturnValue(result) : file.Release();
}

void* xsvc_map(int fd, off_t address, size_t length) {
    const auto describe = [&](Call& call) {
        call.SetSubject("xsvc map 0x%08llx", static_cast<unsigned long long>(address));
        call.SetDetail(" %zu", length);
    };
    void* mapping = nullptr;
    ReturnValue(Perform(describe, [&] { return Map(fd, address, length, mapping); }));
    return mapping;
}

void xsvc_unmap(void* mapping, size_t length) {
    munmap(mapping, length);
    TraceWithoutResult([&](Call& call) { call.SetSubject("xsvc unmap %zu", length); });
}

void xsvc_close(int fd) {
    close(fd);
    TraceWithoutResult([](Call& call) { call.SetSubject("xsvc close"); });
}
