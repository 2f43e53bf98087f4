// The machine directory: every fact about the simulated machine is a regular file in it. It may come from
// another user and contain anything, so nothing but regular files is opened, no symbolic link is followed,
// and no more of a file is read than its reader can use.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// An open file or directory, closed when the scope ends.
class Descriptor {
  public:
    explicit Descriptor(int fd = -1) : fd_(fd) {}
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept : fd_(other.Release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept;

    explicit operator bool() const { return fd_ >= 0; }
    int Get() const { return fd_; }
    int Release();  // gives up ownership

  private:
    int fd_;
};

// Returns the path of the machine directory: BRANT_MACHINE, or /var/lib/brant/machine.
const char* MachinePath();

// Reports on standard error that `name` can't be opened, why (errno, which stays) and what to do about it.
// Only the first failure of the process is reported, because later calls fail for the same reason.
void ReportFailure(const char* name, const char* advice = "");

// Opens the machine directory, whose path may be a symbolic link. Reports a failure. Returns an empty
// descriptor, with errno set, on failure.
Descriptor OpenMachine();

// Opens the directory of a device ("crom"). A symbolic link isn't followed (ENOTDIR). Returns an empty
// descriptor, with errno set, on failure.
Descriptor OpenDevice(const char* device);

// Opens a regular file in one of these directories, without waiting. `flags`: O_RDONLY, or how to write.
// Returns an empty descriptor, with errno set, on failure: ENOENT if there is no such file; ELOOP, EISDIR or
// ENODEV if `name` is a symbolic link, a directory or anything else. If `directory` is empty, errno stays as
// the failed opening of the directory set it.
Descriptor OpenFile(const Descriptor& directory, const char* name, int flags = O_RDONLY);

// Opens a file that a request on a device reads. Returns 0; 1 if the device has no such file; -errno on any
// other failure, among them an empty `directory`.
int OpenDeviceFile(const Descriptor& directory, const char* name, Descriptor& file);

// Returns 0 if `status` is that of a regular file, otherwise the errno with which OpenFile rejects it.
int FileTypeError(const struct stat& status);

// Reads from `offset` until `buffer` has `size` bytes or the file ends. Returns the number of bytes read, or
// -1 with errno set.
ssize_t ReadAt(int fd, void* buffer, size_t size, off_t offset);

// Reads a whole file of at most `limit` bytes. Returns false, with errno set, on failure: EFBIG if the file
// is larger. Throws std::bad_alloc.
bool ReadWhole(const Descriptor& file, size_t limit, std::string& bytes);

// The lines of a text file, except empty lines and comments (which begin with '#'). White space at the end of
// a line is removed, including the carriage return that some editors write.
class Lines {
  public:
    // `file` is the file's name for Reject(), `text` its contents. Both must outlive this object.
    Lines(const char* file, std::string_view text) : file_(file), rest_(text) {}

    // Advances to the next line. Returns false at the end.
    bool Next();

    // Returns the current line, with its indentation.
    std::string_view Line() const { return line_; }
    size_t Indentation() const;  // in spaces

    // Reports on standard error that the current line can't be parsed.
    void Reject() const;

  private:
    const char* file_;
    std::string_view rest_;
    std::string_view line_;
    int number_ = 0;  // from 1
};

// Parses a number of at most `largest`, decimal or hexadecimal after "0x". Returns false, and leaves `value`
// unchanged, if `text` is anything else.
bool ReadNumber(std::string_view text, uint64_t largest, uint64_t& value);
