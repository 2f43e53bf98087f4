// Replaces alarm(), syslog(), and the system calls with which a program changes the files of a machine
// directory:
// - Each call first flushes standard output, so that the test sees everything that was printed before a kill.
// - A write to a file writes only half of the bytes, except to the trace.
// - With BRANT_KILL_AT=N, each call is printed on standard output, and SIGKILL ends the process before the
//   N-th.
// - BRANT_AFTER_MKDIR contains a shell command, which runs after the process has created a directory. The
//   variable MADE contains the directory's path.
// - With BRANT_NO_NULL, opening /dev/null fails; with BRANT_NO_SYNC, fsync fails; with BRANT_NO_SEEK, lseek.
#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// Called before each call that changes a file.
void Before(const char* call, const char* file) {
    std::fflush(stdout);
    const char* const kill_at = std::getenv("BRANT_KILL_AT");
    if (kill_at == nullptr) return;
    static unsigned long calls = 0;
    if (++calls == std::strtoul(kill_at, nullptr, 10)) std::raise(SIGKILL);
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

// Each function replaces the C library's function that the asm label names.
extern "C" {
int Open(const char* path, int flags, ...) asm("open64");
int OpenAt(int directory, const char* path, int flags, ...) asm("openat64");
ssize_t Write(int fd, const void* bytes, size_t size) asm("write");
int Fsync(int fd) asm("fsync");
off_t Seek(int fd, off_t offset, int whence) asm("lseek64");
int RenameAt(int from, const char* path, int to, const char* new_path) asm("renameat");
int UnlinkAt(int directory, const char* path, int flags) asm("unlinkat");
int MakeDirectory(const char* path, mode_t mode) asm("mkdir");
unsigned Alarm(unsigned seconds) asm("alarm");
void SystemLog(int priority, const char* format, ...) asm("syslog");
}

// The programs create files only with openat, so this function never gets a third argument with permissions.
int Open(const char* path, int flags, ...) {
    if (std::getenv("BRANT_NO_NULL") != nullptr && std::strcmp(path, "/dev/null") == 0) path = "";  // ENOENT
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags | O_LARGEFILE));
}

// The only call that creates a file passes the permissions 0600, so they are constant here.
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
    return static_cast<int>(syscall(SYS_fsync, std::getenv("BRANT_NO_SYNC") != nullptr ? -1 : fd));
}

// The tests seek to offsets below 2 GiB only, which fit into a long on every system.
off_t Seek(int fd, off_t offset, int whence) {
    const int seekable = std::getenv("BRANT_NO_SEEK") != nullptr ? -1 : fd;
    return syscall(SYS_lseek, seekable, static_cast<long>(offset), whence);
}

int RenameAt(int from, const char* path, int to, const char* new_path) {
    Before("rename", new_path);
    return static_cast<int>(syscall(SYS_renameat, from, path, to, new_path));
}

int UnlinkAt(int directory, const char* path, int flags) {
    Before("unlink", path);
    return static_cast<int>(syscall(SYS_unlinkat, directory, path, flags));
}

unsigned Alarm(unsigned seconds) {
    Before("alarm", seconds == 60 ? "60" : "wrong");
    return 0;
}

// Writes to standard input, because the program uses the log only if its standard streams are a socket and it
// has redirected the others.
void SystemLog(int priority, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    dprintf(STDIN_FILENO, "%d ", priority);
    vdprintf(STDIN_FILENO, format, arguments);
    va_end(arguments);
}

int MakeDirectory(const char* path, mode_t mode) {
    const int result = static_cast<int>(syscall(SYS_mkdirat, AT_FDCWD, path, mode));
    if (const char* const command = std::getenv("BRANT_AFTER_MKDIR")) {
        const int reason = errno;
        setenv("MADE", path, 1);
        const pid_t shell = fork();  // not system(), which would ignore SIGINT during the command
        if (shell == 0) execl("/bin/sh", "sh", "-c", command, nullptr);
        int status = 0;
        if (waitpid(shell, &status, 0) != shell || status != 0) std::abort();
        errno = reason;
    }
    return result;
}
