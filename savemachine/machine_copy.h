// The machine directory that savemachine writes. It has a temporary name next to its destination until it is
// complete, and is removed if it never is.
//
// The parent directory may belong to an untrusted user, who can rename and replace its entries at any moment.
// So the new directory gets a random name, and everything below it is created and removed through its
// descriptor.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

// A file descriptor, closed at the end of its scope; negative if opening failed.
class OwnedDescriptor {
  public:
    explicit OwnedDescriptor(int fd = -1) : fd_(fd) {}
    ~OwnedDescriptor();
    OwnedDescriptor(const OwnedDescriptor&) = delete;
    OwnedDescriptor& operator=(const OwnedDescriptor&) = delete;

    int Get() const { return fd_; }
    void Set(int fd);  // closes the present one first

  private:
    int fd_;
};

// Bytes and their offset in a file.
struct Extent {
    off_t offset;
    std::string bytes;
};

class MachineCopy {
  public:
    // Creates the temporary directory. `path` is the destination and must not exist. All members that write
    // throw std::system_error, with `path` and the reason.
    explicit MachineCopy(const std::string& path);
    ~MachineCopy();
    MachineCopy(const MachineCopy&) = delete;
    MachineCopy& operator=(const MachineCopy&) = delete;

    // Shows on a terminal what is read next. Throws std::runtime_error if a signal has interrupted the
    // program.
    void ShowProgress(const std::string& what) const;

    // Creates the folder of a device.
    void CreateFolder(const std::string& name);
    // Creates a file. `path` is relative to the machine directory. Where extents overlap, the later one wins.
    void Write(const std::string& path, const std::vector<Extent>& extents);
    void Write(const std::string& path, const std::string& bytes);

    // Reports a failed call on standard error. `what` is the call, in the words of the file `faults`;
    // `result` is what the call returned, or -errno. If the missing file alone would not make the call fail
    // in the same way on the copy, the copy gets a fault.
    void ReportFailedCall(const std::string& what, int result);

    // Writes the faults and gives the directory its final name.
    void Finish();

  private:
    struct Entry {
        std::string path;
        bool is_folder;
    };

    int MakeTemporaryDirectory();
    void Remove() const;
    [[noreturn]] void Fail() const;            // with errno
    [[noreturn]] void FailWithoutLastEntry();  // with errno; the entry could not be created
    [[noreturn]] void FailAsReplaced() const;

    std::string path_;  // the destination, as the user named it
    std::string name_;  // its last component
    OwnedDescriptor parent_;
    std::string temporary_;       // name_, a dot and six random characters
    bool has_temporary_ = false;  // whether it exists
    OwnedDescriptor directory_;
    std::vector<Entry> entries_;  // in directory_, in the order of their creation
    std::string faults_;
};

// The result of a request on a simulated machine when the request's file is missing.
constexpr int kMissing = 1;

// Returns kMissing or -errno for the call that has just failed. The caller sets errno to 0 before the call.
int FailedResult();

// Lets the program remove an incomplete copy before it ends: from now on SIGINT, SIGTERM and SIGHUP are
// reported by MachineCopy::ShowProgress, and a closed pipe or a file-size limit only makes the write fail.
void NoticeInterrupts();

// Each function reads one part of a machine as the shell's commands read it, and writes it into the copy. A
// part that can't be read is reported and left out. Parts of a device need the device open and its folder
// created.

void SaveTables(MachineCopy& copy);     // the driver's data tables
void SaveTimer(MachineCopy& copy);      // the automatic server recovery timer's state
void SaveVariables(MachineCopy& copy);  // the ROM variables
void SaveEvents(MachineCopy& copy);     // the event log
void SaveFirmware(MachineCopy& copy);   // the BIOS area and the SMBIOS tables
void SavePicl(MachineCopy& copy);       // the management processor's node
