// The machine directory, which contains the state of the simulated machine in regular files. It may come from
// another user and contain anything. So only regular files are opened, symbolic links aren't followed, and no
// more of a file is read than the reader can use.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "src/utils/descriptor.h"

// Returns the path of the machine directory: BRANT_MACHINE, or /var/lib/brant/machine.
const char* MachinePath();

// Prints on standard error that `name` can't be opened, and the reason (errno, which doesn't change). Of this
// function and the next one, only the first call of the process prints, because later calls fail for the same
// reason.
void ReportFailure(const char* name);

// Prints on standard error that the machine directory isn't one because of `problem`, and how to create one.
// Doesn't change errno.
void ReportNoMachine(const char* problem);

// Opens the machine directory, whose path may be a symbolic link. On failure, prints a message and returns an
// empty descriptor, with errno set.
Descriptor OpenMachine();

// Opens the directory of a device, such as "crom". Doesn't follow a symbolic link (ENOTDIR). Returns an empty
// descriptor, with errno set, on failure.
Descriptor OpenDevice(const char* device);

// Opens a regular file in one of these directories, without waiting. `flags` is O_RDONLY, or flags for
// writing. On failure, returns an empty descriptor and sets errno: ENOENT if there is no such file; ELOOP,
// EISDIR or ENODEV if `name` is a symbolic link, a directory or another special file. If `directory` is
// empty, errno keeps the value that the failed opening of the directory has set.
Descriptor OpenFile(const Descriptor& directory, const char* name, int flags = O_RDONLY);

// Opens a file that a request reads. Returns 0; 1 if the device has no such file; or -errno after any other
// failure, also if `directory` is empty.
int OpenDeviceFile(const Descriptor& directory, const char* name, Descriptor& file);

// Returns 0 if `status` is that of a regular file, otherwise the errno that OpenFile() sets for such a file.
int FileTypeError(const struct stat& status);

// Reads from `offset` until `buffer` has `size` bytes or the file ends. Returns the number of bytes read, or
// -1 with errno set.
ssize_t ReadAt(int fd, void* buffer, size_t size, off_t offset);

// Reads a whole file of at most `limit` bytes. Returns false, with errno set, on failure: EFBIG if the file
// is larger. Throws std::bad_alloc.
bool ReadWhole(const Descriptor& file, size_t limit, std::string& bytes);

// The lines of a text file, except empty lines and comments, which begin with '#'. White space at the end of
// a line is removed, including the carriage returns that some editors write.
class Lines {
  public:
    // `file` is the file's name, for Reject(); `text` is its contents. Both must outlive this object.
    Lines(const char* file, std::string_view text) : file_(file), rest_(text) {}

    // Advances to the next line. Returns false at the end.
    bool Next();

    // Returns the current line, with its indentation.
    std::string_view Line() const { return line_; }
    size_t Indentation() const;  // number of spaces at the start of the line

    // Prints on standard error that the current line can't be parsed.
    void Reject() const;

  private:
    const char* file_;
    std::string_view rest_;
    std::string_view line_;
    int number_ = 0;  // line number, from 1
};

// Parses a decimal number, or a hexadecimal one after "0x". Returns false and leaves `value` unchanged if
// `text` isn't a number or exceeds `largest`.
bool ReadNumber(std::string_view text, uint64_t largest, uint64_t& value);
