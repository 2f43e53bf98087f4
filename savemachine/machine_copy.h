// The machine directory that is being written: under a name of its own beside its place until it is complete,
// and gone again when it never is. What can't be written throws std::system_error, with the place's name.
#pragma once

#include <string>

class MachineCopy {
  public:
    // place: where the directory will be. Refused when something is there already.
    explicit MachineCopy(std::string place);
    ~MachineCopy();
    MachineCopy(const MachineCopy&) = delete;
    MachineCopy& operator=(const MachineCopy&) = delete;

    // Says what is read next, to whoever sits at the terminal. Throws std::runtime_error when the user has
    // interrupted the program meanwhile.
    void Reading(const std::string& what) const;

    // Makes a folder, of a device that opened.
    void Folder(const std::string& name) const;
    // Writes bytes at an offset of a file, by its path below the directory.
    void Write(const std::string& path, const std::string& bytes, off_t offset = 0) const;

    // Reports a piece that the machine refused. what: the call, in the words of the file `faults`. result:
    // what the call returned, or -E. Where a missing file would not have the copy refuse it too, it gets a
    // fault.
    void Refused(const std::string& what, int result);

    // Puts the directory into its place.
    void Finish();

  private:
    [[noreturn]] void Fail() const;

    std::string place_;
    std::string directory_;  // as long as it isn't in its place
    std::string faults_;
};

// What a request of a machine directory comes to when its file is missing.
constexpr int kMissing = 1;

// What the call that has just failed comes to, where only its errno is known (0 before the call): kMissing or
// -E.
int FailedResult();

// From now on no signal that can be helped ends the process with a copy half made: SIGINT, SIGTERM and SIGHUP
// are noticed by MachineCopy::Reading.
void NoticeInterrupts();

// The pieces of a machine, each read as the shell's commands read it and written as a machine directory has
// it. What the machine refuses is reported and left out. Pieces of a device need the device open and its
// folder made.

void SaveTables(MachineCopy& copy);     // the driver's data tables
void SaveTimer(MachineCopy& copy);      // the automatic server recovery timer's state
void SaveVariables(MachineCopy& copy);  // the ROM variables
void SaveEvents(MachineCopy& copy);     // the event log
void SaveFirmware(MachineCopy& copy);   // the BIOS area and the SMBIOS tables
void SavePicl(MachineCopy& copy);       // the management processor's node
