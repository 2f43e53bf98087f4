// The event log, read entry by entry from the lowest number on.
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

#include "cli/misc-commands/health.h"
#include "savemachine/machine_copy.h"

namespace {

constexpr size_t kLongestRead = sizeof(LOG_INFO) + UINT16_MAX;  // of an entry that is too long for the shell
constexpr int kMostFailures = 3;                                // in a row, after which the log is given up

// The room of a read: the request, and behind it the entry.
class Reading {
  public:
    // Reads as the shell does, but with room for any entry where its own isn't enough. Result: ReadEvent's.
    int Read(uint32_t number) {
        bytes_.resize(kEventReadSize);
        const int status = ReadEvent(bytes_.data(), bytes_.size(), number);
        if (status != kBufferTooSmall) return status;
        bytes_.resize(kLongestRead);
        return ReadEvent(bytes_.data(), bytes_.size(), number);
    }

    uint32_t Number() const { return HeaderOf(bytes_.data()).dwEvtNumber; }

    // The entry. A length that can't be true would end the log: the nearest that can stands in for it, with
    // which the entry reads the same.
    std::string Entry() const {
        EVT_HEADER header = HeaderOf(bytes_.data());
        header.wEvtLength =
            static_cast<uint16_t>(std::clamp<size_t>(header.wEvtLength, sizeof header, Room()));
        std::string entry(reinterpret_cast<const char*>(bytes_.data()) + sizeof(LOG_INFO), header.wEvtLength);
        std::memcpy(entry.data(), &header, sizeof header);
        return entry;
    }

  private:
    size_t Room() const { return bytes_.size() - sizeof(LOG_INFO); }

    std::vector<uint8_t> bytes_;
};

// A status as a fault has it. Those that no driver gives are the errno of a failed call.
int FaultOf(int status) {
    if (status == kEntryFromBefore) return -EPROTO;
    return status == kBufferTooSmall ? status : -status;
}

}  // namespace

void SaveEvents(MachineCopy& copy) {
    std::string log;
    Reading reading;
    uint32_t wanted = 0;
    for (int failures = 0; failures < kMostFailures;) {
        copy.Reading("event " + std::to_string(wanted));
        const int status = reading.Read(wanted);
        if (status == kEndOfLog) break;
        if (status == kEntryRead) {
            log += reading.Entry();
            wanted = reading.Number();
            failures = 0;
        } else {
            copy.Refused("cevt read " + std::to_string(wanted), FaultOf(status));
            ++failures;
        }
        if (wanted++ == UINT32_MAX) break;
    }
    copy.Write("cevt/hlog", log);
}
