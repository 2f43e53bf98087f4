// Replaces open(), so that the physical-memory device, which exists only on a server, is the file `xsvc` of
// the simulated machine.
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

// Replaces open64(), which is called for open() because file offsets have 64 bits.
extern "C" int Open(const char* path, int flags, ...) asm("open64");

// Files are created only with openat(), so this function never gets a third argument with permissions.
int Open(const char* path, int flags, ...) {
    std::string file = path;
    if (file == "/dev/xsvc") {
        const char* const machine = std::getenv("BRANT_MACHINE");
        file = std::string(machine != nullptr ? machine : "") + "/xsvc";
    }
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, file.c_str(), flags | O_LARGEFILE, 0));
}
