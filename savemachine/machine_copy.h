// The machine directory that savemachine writes. Until it is complete, it has a temporary name next to its
// destination. If it is never completed, it is removed.
//
// The parent directory may belong to an untrusted user, who can rename and replace its entries at any moment.
// So the new directory gets a random name, and the program creates and removes everything in it through its
// descriptor.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

#include "savemachine/redaction.h"
#include "src/utils/descriptor.h"

// Bytes and their offset in a file.
struct Extent {
    off_t offset;
    std::string bytes;
};

class MachineCopy {
  public:
    // Creates the temporary directory. `path` is the destination, which must not exist. All members that
    // write throw std::system_error, whose message contains `path` and the reason. If `redact` is true,
    // private values are replaced.
    MachineCopy(const std::string& path, bool redact = false);
    ~MachineCopy();
    MachineCopy(const MachineCopy&) = delete;
    MachineCopy& operator=(const MachineCopy&) = delete;

    // Prints on a terminal what the program reads next. Throws std::runtime_error if a signal has interrupted
    // the program.
    void ShowProgress(const std::string& what) const;

    // Creates the directory of a device.
    void CreateFolder(const std::string& name);
    // Creates a file. `path` is relative to the machine directory. If extents overlap, the later one
    // overwrites the earlier.
    void Write(const std::string& path, const std::vector<Extent>& extents);
    void Write(const std::string& path, std::string bytes);

    // Returns the object that replaces private values in this copy, or null if they are copied. Write() calls
    // it for all files except that of the physical memory, which is written as extents.
    Redaction* GetRedaction() { return redaction_ ? &*redaction_ : nullptr; }

    // Prints a message about a failed call on standard error. `what` is the call, as in the file `faults`;
    // `result` is its result or -errno. If the missing file alone doesn't make the call fail in the same way
    // on the copy, adds a fault to the copy.
    void ReportFailedCall(const std::string& what, int result);

    // Writes the files `faults` and `about`, and renames the directory to its final name.
    void Finish();

  private:
    struct Entry {
        std::string path;
        bool is_folder;
    };

    int MakeTemporaryDirectory();
    void Remove() const;
    [[noreturn]] void Fail() const;            // throws with the reason in errno
    [[noreturn]] void FailWithoutLastEntry();  // the same, if the newest entry could not be created
    [[noreturn]] void FailAsReplaced() const;

    std::string path_;  // the destination, as the user has typed it
    std::string name_;  // last component of path_
    Descriptor parent_;
    std::string temporary_;       // name_, a dot and six random characters
    bool has_temporary_ = false;  // whether the temporary directory exists
    Descriptor directory_;
    std::vector<Entry> entries_;  // the entries of directory_, in the order in which they were created
    std::optional<Redaction> redaction_;
    std::string faults_;
    std::string failed_calls_;  // the lines about them in `about`
};

// The result of a request on a simulated machine that has no file for it.
constexpr int kMissing = 1;

// Returns kMissing or -errno for the call that has just failed. The caller must set errno to 0 before the
// call.
int FailedResult();

// Lets the program remove an incomplete copy before it ends: after this call, MachineCopy::ShowProgress
// reports SIGINT, SIGTERM and SIGHUP.
void NoticeInterrupts();
