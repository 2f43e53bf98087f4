#include "savemachine/machine_copy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace {

volatile std::sig_atomic_t interrupted = 0;

void Interrupt(int /*signal*/) {
    interrupted = 1;
}

constexpr char kEraseLine[] = "\r\33[K";

bool HasTerminal() {
    return isatty(STDERR_FILENO) != 0;
}

void EraseProgress() {
    if (HasTerminal()) std::fputs(kEraseLine, stderr);
}

// All of the bytes, and on disk.
bool WriteAll(int fd, const std::string& bytes, off_t offset) {
    size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            pwrite(fd, bytes.data() + done, bytes.size() - done, offset + static_cast<off_t>(done));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        done += static_cast<size_t>(count);
    }
    return fsync(fd) == 0;
}

}  // namespace

int FailedResult() {
    return errno == 0 || errno == ENOENT ? kMissing : -errno;
}

void NoticeInterrupts() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (std::signal(signal, SIG_IGN) != SIG_IGN) std::signal(signal, Interrupt);  // else as nohup has it
    }
    for (const int signal : {SIGPIPE, SIGXFSZ}) std::signal(signal, SIG_IGN);  // the write fails, too
}

MachineCopy::MachineCopy(std::string place) : place_(std::move(place)) {
    while (place_.size() > 1 && place_.back() == '/') place_.pop_back();
    struct stat status {};
    if (lstat(place_.c_str(), &status) == 0) {
        errno = EEXIST;
        Fail();
    }
    const std::string name = place_ + "." + std::to_string(getpid());
    if (mkdir(name.c_str(), 0700) != 0) Fail();  // for its owner alone
    directory_ = name;
}

MachineCopy::~MachineCopy() {
    EraseProgress();
    std::error_code ignored;  // what can't be removed can't be helped
    if (!directory_.empty()) std::filesystem::remove_all(directory_, ignored);
}

void MachineCopy::Fail() const {
    throw std::system_error(errno, std::generic_category(), place_);
}

void MachineCopy::Reading(const std::string& what) const {
    if (interrupted != 0) throw std::runtime_error("interrupted by a signal");
    if (HasTerminal()) std::fprintf(stderr, "%sreading %s", kEraseLine, what.c_str());
}

void MachineCopy::Folder(const std::string& name) const {
    if (mkdir((directory_ + "/" + name).c_str(), 0700) != 0) Fail();
}

void MachineCopy::Write(const std::string& path, const std::string& bytes, off_t offset) const {
    const int fd = open((directory_ + "/" + path).c_str(), O_WRONLY | O_CREAT, 0600);
    if (fd < 0) Fail();
    const bool written = WriteAll(fd, bytes, offset);
    const int reason = errno;
    close(fd);
    errno = reason;
    if (!written) Fail();
}

void MachineCopy::Refused(const std::string& what, int result) {
    EraseProgress();
    const char* const reason = result < 0 ? std::strerror(-result) : "refused";
    std::fprintf(stderr, "savemachine: not read: %s: %s\n", what.c_str(), reason);
    if (result != kMissing) faults_ += what + " " + std::to_string(result) + "\n";
}

void MachineCopy::Finish() {
    EraseProgress();
    if (!faults_.empty()) Write("faults", faults_);
    if (rename(directory_.c_str(), place_.c_str()) != 0) Fail();
    directory_.clear();
}
