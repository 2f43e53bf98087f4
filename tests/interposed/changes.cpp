// The system calls that change a machine's files. What has been reported is let out before each, and a write
// takes half of its bytes. A line of the trace is written as it is, after all that was printed before its
// call. With BRANT_END_AT=N each call is named on standard output once it is reached, and the process ends,
// as if by kill -9, before the N-th. After each directory that the process makes, it runs the shell command
// BRANT_AFTER_MKDIR, with the directory's name as MADE. With BRANT_NO_NULL
// there is no /dev/null.
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

void Before(const char* call, const char* file) {
    std::fflush(stdout);
    const char* const end_at = std::getenv("BRANT_END_AT");
    if (end_at == nullptr) return;
    static unsigned long reached = 0;
    if (++reached == std::strtoul(end_at, nullptr, 10)) std::raise(SIGKILL);
    const char* const slash = std::strrchr(file, '/');
    dprintf(STDOUT_FILENO, "%s %s\n", call, slash == nullptr ? file : slash + 1);
}

void Before(const char* call, int fd) {
    char link[32], path[4096];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t length = readlink(link, path, sizeof path - 1);
    path[length < 0 ? 0 : length] = '\0';
    Before(call, path);
}

}  // namespace

// Each stands in the place of the C library's function of the name behind it.
extern "C" {
int Open(const char* path, int flags, ...) asm("open64");
int OpenAt(int directory, const char* path, int flags, ...) asm("openat64");
ssize_t Write(int fd, const void* bytes, size_t size) asm("write");
int Fsync(int fd) asm("fsync");
int RenameAt(int from, const char* path, int to, const char* new_path) asm("renameat");
int UnlinkAt(int directory, const char* path, int flags) asm("unlinkat");
int MakeDirectory(const char* path, mode_t mode) asm("mkdir");
}

// No caller creates a file by its path.
int Open(const char* path, int flags, ...) {
    if (std::getenv("BRANT_NO_NULL") != nullptr && std::strcmp(path, "/dev/null") == 0) path = "";  // ENOENT
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags | O_LARGEFILE));
}

// The one caller that makes a file asks for these permissions.
int OpenAt(int directory, const char* path, int flags, ...) {
    if ((flags & O_ACCMODE) != O_RDONLY) Before("open", path);
    return static_cast<int>(syscall(SYS_openat, directory, path, flags | O_LARGEFILE, 0600));
}

ssize_t Write(int fd, const void* bytes, size_t size) {
    const bool is_trace = (fcntl(fd, F_GETFL) & O_APPEND) != 0;
    if (is_trace) std::fflush(stdout);
    if (fd <= STDERR_FILENO || is_trace) return syscall(SYS_write, fd, bytes, size);
    Before("write", fd);
    return syscall(SYS_write, fd, bytes, (size + 1) / 2);
}

int Fsync(int fd) {
    Before("fsync", fd);
    return static_cast<int>(syscall(SYS_fsync, fd));
}

int RenameAt(int from, const char* path, int to, const char* new_path) {
    Before("rename", new_path);
    return static_cast<int>(syscall(SYS_renameat, from, path, to, new_path));
}

int UnlinkAt(int directory, const char* path, int flags) {
    Before("unlink", path);
    return static_cast<int>(syscall(SYS_unlinkat, directory, path, flags));
}

int MakeDirectory(const char* path, mode_t mode) {
    const int result = static_cast<int>(syscall(SYS_mkdirat, AT_FDCWD, path, mode));
    if (const char* const command = std::getenv("BRANT_AFTER_MKDIR")) {
        const int reason = errno;
        setenv("MADE", path, 1);
        const pid_t shell = fork();  // system() would ignore SIGINT
        if (shell == 0) execl("/bin/sh", "sh", "-c", command, nullptr);
        int status = 0;
        if (waitpid(shell, &status, 0) != shell || status != 0) std::abort();
        errno = reason;
    }
    return result;
}
