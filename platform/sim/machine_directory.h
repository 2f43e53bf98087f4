// The machine directory: every fact about the simulated machine is one ordinary file in it. It may hold
// anything, so only regular files are read, and never more of one than its reader has a use for.
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

// Reads from an offset into buffer until it has size bytes or the file ends. Result: bytes read; -1 with
// errno.
ssize_t ReadAt(int fd, void* buffer, size_t size, off_t offset);

// Reads a whole file. limit: the largest size in bytes that makes sense. False with errno set on failure:
// EFBIG when the file is larger. Throws std::bad_alloc.
bool ReadWhole(const Descriptor& file, size_t limit, std::string& bytes);

// The machine's text files: their lines, and the numbers in them.

// The lines that count: those that are blank or begin with '#' don't, and neither do blanks at the end of a
// line, among them the carriage return that some editors leave there.
class Lines {
  public:
    // file: its name in the machine directory. text: what it holds. Both must outlive this.
    Lines(const char* file, std::string_view text) : file_(file), rest_(text) {}

    // Takes the next line that counts. False at the end.
    bool Take();

    // The line that was taken, with its indentation.
    std::string_view Line() const { return line_; }
    size_t Indentation() const;  // in blanks

    // Reports on standard error that the line can't be read.
    void Reject() const;

  private:
    const char* file_;
    std::string_view rest_;
    std::string_view line_;
    int number_ = 0;  // from 1
};

// Reads a whole text as a number, decimal or hexadecimal after "0x". largest: the largest that is accepted.
// False, with value as it was, for anything else.
bool ReadNumber(std::string_view text, uint64_t largest, uint64_t& value);
