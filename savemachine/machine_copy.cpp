#include "savemachine/machine_copy.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "savemachine/random_numbers.h"
#include "src/utils/standard_streams.h"
#include "src/utils/utc.h"
#include "src/utils/version.h"

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
    if (HasTerminal()) WriteAll(STDERR_FILENO, kEraseLine);
}

// O_NONBLOCK keeps the program from waiting if a FIFO has replaced the directory. (The server's system has no
// O_DIRECTORY.)
constexpr int kOpenDirectory = O_RDONLY | O_NONBLOCK;

// Creates a directory that only its owner can open, in the directory `parent`. The server's system has no
// mkdirat(), and a path could lead to a directory that has replaced the parent. So the parent is the working
// directory during the call.
int MakeDirectoryAt(int parent, const std::string& name) {
    const Descriptor before(open(".", kOpenDirectory));
    if (!before || fchdir(parent) != 0) return -1;
    const int result = mkdir(name.c_str(), S_IRWXU);
    const int reason = errno;
    if (fchdir(before.Get()) != 0) return -1;
    errno = reason;
    return result;
}

// Returns whether the descriptor refers to a directory that only this user can access.
bool IsPrivateDirectory(int fd) {
    struct stat status {};
    return fstat(fd, &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
           (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

// Returns whether the entry `name` of the directory `parent` is the file that is open as `fd`.
bool IsEntry(int parent, const std::string& name, int fd) {
    struct stat entry {};
    struct stat open_file {};
    return fstatat(parent, name.c_str(), &entry, AT_SYMLINK_NOFOLLOW) == 0 && fstat(fd, &open_file) == 0 &&
           entry.st_dev == open_file.st_dev && entry.st_ino == open_file.st_ino;
}

// Returns a dot and six random letters and digits.
std::string RandomSuffix() {
    constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyz234567";
    constexpr unsigned kBits = 5;  // bits for each character
    unsigned bits = RandomNumbers().Next();
    std::string suffix = ".";
    for (int i = 0; i < 6; ++i, bits >>= kBits) suffix += kLetters[bits % (1U << kBits)];
    return suffix;
}

std::string WithoutTrailingSlashes(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

std::string ParentOf(const std::string& path) {
    const size_t slash = path.rfind('/');
    return slash == path.npos ? "." : path.substr(0, slash + 1);
}

}  // namespace

int FailedResult() {
    return errno == 0 || errno == ENOENT ? kMissing : -errno;
}

void NoticeInterrupts() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action {};
        sigaction(signal, nullptr, &action);
        if (action.sa_handler == SIG_IGN) continue;  // nohup ignores SIGHUP; keep that
        action.sa_handler = Interrupt;
        action.sa_flags = SA_RESTART;
        sigaction(signal, &action, nullptr);
    }
}

MachineCopy::MachineCopy(const std::string& path, bool redact)
    : path_(WithoutTrailingSlashes(path)),
      name_(path_.substr(path_.rfind('/') + 1)),  // without a slash, npos + 1 is 0
      parent_(open(ParentOf(path_).c_str(), kOpenDirectory)) {
    if (redact) redaction_.emplace();
    if (!parent_) Fail();
    struct stat status {};
    if (name_.empty() || fstatat(parent_.Get(), name_.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
        errno = EEXIST;
        Fail();
    }
    if (MakeTemporaryDirectory() != 0) Fail();
    directory_ = Descriptor(openat(parent_.Get(), temporary_.c_str(), kOpenDirectory | O_NOFOLLOW));
    if (IsPrivateDirectory(directory_.Get())) return;
    Remove();
    FailAsReplaced();
}

MachineCopy::~MachineCopy() {
    EraseProgress();
    Remove();
}

// Sets temporary_ and has_temporary_. Returns 0, or -1 with errno set on failure.
int MachineCopy::MakeTemporaryDirectory() {
    constexpr int kAttempts = 100;
    for (int i = 0; i < kAttempts; ++i) {
        temporary_ = name_ + RandomSuffix();
        has_temporary_ = MakeDirectoryAt(parent_.Get(), temporary_) == 0;
        if (has_temporary_) return 0;
        if (errno != EEXIST) break;
    }
    return -1;
}

// Removes the entries that this object has created, and no others, then the directory. Prints a message for
// the first failure. Doesn't allocate memory, because memory may have run out.
void MachineCopy::Remove() const {
    if (!has_temporary_) return;
    int reason = 0;
    const auto remove = [&reason](int directory, const char* path, bool is_folder) {
        if (unlinkat(directory, path, is_folder ? AT_REMOVEDIR : 0) != 0 && reason == 0) reason = errno;
    };
    for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) {
        remove(directory_.Get(), entry->path.c_str(), entry->is_folder);
    }
    remove(parent_.Get(), temporary_.c_str(), true);
    if (reason == 0) return;
    std::fprintf(stderr, "savemachine: not removed: %s%s: %s\n", path_.c_str(),
                 temporary_.c_str() + name_.size(), std::strerror(reason));
}

void MachineCopy::Fail() const {
    throw std::system_error(errno, std::generic_category(), path_);
}

void MachineCopy::FailWithoutLastEntry() {
    const int reason = errno;
    entries_.pop_back();
    errno = reason;
    Fail();
}

void MachineCopy::FailAsReplaced() const {
    throw std::runtime_error(path_ + ": " + "the new directory was replaced by another user");
}

void MachineCopy::ShowProgress(const std::string& what) const {
    if (interrupted != 0) throw std::runtime_error("interrupted by a signal");
    if (HasTerminal()) std::fprintf(stderr, "%sreading %s", kEraseLine, what.c_str());
}

void MachineCopy::CreateFolder(const std::string& name) {
    entries_.push_back({name, true});
    if (MakeDirectoryAt(directory_.Get(), name) != 0) FailWithoutLastEntry();
}

void MachineCopy::Write(const std::string& path, const std::vector<Extent>& extents) {
    entries_.push_back({path, false});
    const Descriptor file(
        openat(directory_.Get(), path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, S_IRUSR | S_IWUSR));
    if (!file) FailWithoutLastEntry();
    for (const Extent& extent : extents) {
        if (lseek(file.Get(), extent.offset, SEEK_SET) < 0 || !WriteAll(file.Get(), extent.bytes)) Fail();
    }
    if (fsync(file.Get()) != 0) Fail();
}

void MachineCopy::Write(const std::string& path, std::string bytes) {
    if (redaction_) redaction_->RedactFile(path, bytes);
    Write(path, std::vector<Extent>{{0, std::move(bytes)}});
}

void MachineCopy::ReportFailedCall(const std::string& what, int result) {
    EraseProgress();
    const char* const reason = result < 0 ? std::strerror(-result) : "refused";
    std::fprintf(stderr, "savemachine: not read: %s: %s\n", what.c_str(), reason);
    failed_calls_ += "not read: " + what + ": " + reason + '\n';
    if (result != kMissing) faults_ += what + " " + std::to_string(result) + "\n";
}

void MachineCopy::Finish() {
    EraseProgress();
    if (!faults_.empty()) Write("faults", faults_);
    std::string about = std::string("savemachine: ") + kVersion + '\n';
    about += "time: " + UtcText(std::time(nullptr)) + '\n';
    about += std::string("redacted: ") + (redaction_ ? "yes" : "no") + '\n';
    Write("about", about + failed_calls_);
    if (renameat(parent_.Get(), temporary_.c_str(), parent_.Get(), name_.c_str()) != 0) Fail();
    if (!IsEntry(parent_.Get(), name_, directory_.Get())) FailAsReplaced();
    has_temporary_ = false;
}
