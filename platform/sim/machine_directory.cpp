#include "platform/sim/machine_directory.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <system_error>

namespace {

constexpr char kDefaultMachine[] = "/var/lib/brant/machine";
constexpr int kOpenDirectory = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

// Returns true at the first call of the process and false at later calls.
bool IsFirstFailure() {
    static bool reported = false;
    return !std::exchange(reported, true);
}

}  // namespace

const char* MachinePath() {
    const char* path = std::getenv("BRANT_MACHINE");
    return path != nullptr && *path != '\0' ? path : kDefaultMachine;
}

void ReportFailure(const char* name) {
    if (!IsFirstFailure()) return;
    const int error = errno;
    std::fprintf(stderr, "simulated machine: %s: %s\n", name, std::strerror(error));
    errno = error;
}

void ReportNoMachine(const char* problem) {
    if (!IsFirstFailure()) return;
    const int error = errno;
    std::fprintf(
        stderr,
        "simulated machine: %s: %s\n"
        "simulated machine: mkmachine DIR creates one; set BRANT_MACHINE to its path (default: %s)\n",
        MachinePath(), problem, kDefaultMachine);
    errno = error;
}

Descriptor OpenMachine() {
    Descriptor machine(open(MachinePath(), kOpenDirectory));
    if (!machine) ReportNoMachine(std::strerror(errno));
    return machine;
}

Descriptor OpenDevice(const char* device) {
    const Descriptor machine = OpenMachine();
    if (!machine) return Descriptor();
    return Descriptor(openat(machine.Get(), device, kOpenDirectory | O_NOFOLLOW));
}

int FileTypeError(const struct stat& status) {
    switch (status.st_mode & S_IFMT) {
        case S_IFREG: return 0;
        case S_IFLNK: return ELOOP;
        case S_IFDIR: return EISDIR;
        default: return ENODEV;
    }
}

// The type is checked before the file is opened, because opening a device can have an effect (it starts a
// watchdog timer). It is checked again afterwards, because another program may have replaced the file in
// between. O_NONBLOCK keeps open() from waiting for the other end of a FIFO.
Descriptor OpenFile(const Descriptor& directory, const char* name, int flags) {
    if (!directory) return Descriptor();
    struct stat status;
    if (fstatat(directory.Get(), name, &status, AT_SYMLINK_NOFOLLOW) != 0) return Descriptor();
    Descriptor file;
    int error = FileTypeError(status);
    if (error == 0) {
        file =
            Descriptor(openat(directory.Get(), name, flags | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
        if (!file || fstat(file.Get(), &status) != 0) return Descriptor();
        error = FileTypeError(status);
    }
    if (error == 0) return file;
    errno = error;
    return Descriptor();
}

int OpenDeviceFile(const Descriptor& directory, const char* name, Descriptor& file) {
    if (!directory) return -errno;
    file = OpenFile(directory, name);
    if (file) return 0;
    return errno == ENOENT ? 1 : -errno;
}

ssize_t ReadAt(int fd, void* buffer, size_t size, off_t offset) {
    size_t done = 0;
    while (done < size) {
        const ssize_t count =
            pread(fd, static_cast<char*>(buffer) + done, size - done, offset + static_cast<off_t>(done));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return -1;
        if (count == 0) break;
        done += static_cast<size_t>(count);
    }
    return static_cast<ssize_t>(done);
}

bool ReadWhole(const Descriptor& file, size_t limit, std::string& bytes) {
    struct stat status;
    if (fstat(file.Get(), &status) != 0) return false;
    if (static_cast<uint64_t>(status.st_size) > limit) {
        errno = EFBIG;
        return false;
    }
    bytes.resize(static_cast<size_t>(status.st_size));
    const ssize_t count = ReadAt(file.Get(), bytes.data(), bytes.size(), 0);
    if (count < 0) return false;
    bytes.resize(static_cast<size_t>(count));
    return true;
}

bool Lines::Next() {
    while (!rest_.empty()) {
        const size_t end = std::min(rest_.find('\n'), rest_.size());
        line_ = rest_.substr(0, end);
        line_ = line_.substr(0, line_.find_last_not_of(" \t\r") + 1);
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        ++number_;
        if (!line_.empty() && line_[Indentation()] != '#') return true;
    }
    return false;
}

size_t Lines::Indentation() const {
    return line_.find_first_not_of(' ');
}

void Lines::Reject() const {
    std::fprintf(stderr, "simulated machine: %s: line %d can't be read\n", file_, number_);
}

bool ReadNumber(std::string_view text, uint64_t largest, uint64_t& value) {
    const bool hexadecimal = text.substr(0, 2) == "0x";
    if (hexadecimal) text.remove_prefix(2);

    uint64_t number = 0;
    const char* end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number, hexadecimal ? 16 : 10);
    if (error != std::errc() || stopped != end || number > largest) return false;
    value = number;
    return true;
}
