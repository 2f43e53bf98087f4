// Saves the event log, one entry after another, starting with the lowest number.
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <vector>

#include "cli/misc-commands/event_log.h"
#include "savemachine/parts.h"

namespace {

constexpr size_t kLongestRead = sizeof(LOG_INFO) + UINT16_MAX;  // for entries too long for the shell's buffer
constexpr int kMostFailures = 3;                                // consecutive failed reads that end the log

// The buffer of a read: the request block, followed by the entry.
class EventReader {
  public:
    // Reads with the shell's buffer size and retries with the maximum size if the driver reports that the
    // buffer is too small. Returns ReadEvent's result.
    int Read(uint32_t number) {
        bytes_.resize(kEventReadSize);
        const int status = ReadEvent(bytes_.data(), bytes_.size(), number);
        if (status != kBufferTooSmall) return status;
        bytes_.resize(kLongestRead);
        return ReadEvent(bytes_.data(), bytes_.size(), number);
    }

    uint32_t Number() const { return HeaderOf(bytes_.data()).dwEvtNumber; }

    // Returns the entry. An impossible length would end the log on the copy, so it is replaced by the nearest
    // possible length. The text of the entry doesn't change.
    std::string Entry() const {
        EVT_HEADER header = HeaderOf(bytes_.data());
        header.wEvtLength =
            static_cast<uint16_t>(std::clamp<size_t>(header.wEvtLength, sizeof header, MaxLength()));
        std::string entry(reinterpret_cast<const char*>(bytes_.data()) + sizeof(LOG_INFO), header.wEvtLength);
        std::memcpy(entry.data(), &header, sizeof header);
        return entry;
    }

  private:
    size_t MaxLength() const { return bytes_.size() - sizeof(LOG_INFO); }

    std::vector<uint8_t> bytes_;
};

// Converts a status of ReadEvent() to the result of a fault: kBufferTooSmall is unchanged, an errno becomes
// negative, and kEntryFromBefore, which no driver returns, becomes -EPROTO.
int FaultOf(int status) {
    if (status == kEntryFromBefore) return -EPROTO;
    return status == kBufferTooSmall ? status : -status;
}

}  // namespace

void SaveEvents(MachineCopy& copy) {
    std::string log;
    EventReader reader;
    uint32_t wanted = 0;
    for (int failures = 0; failures < kMostFailures;) {
        copy.ShowProgress("event " + std::to_string(wanted));
        const int status = reader.Read(wanted);
        if (status == kEndOfLog) break;
        if (status == kEntryRead) {
            log += reader.Entry();
            wanted = reader.Number();
            failures = 0;
        } else {
            copy.ReportFailedCall("cevt read " + std::to_string(wanted), FaultOf(status));
            ++failures;
        }
        if (wanted++ == UINT32_MAX) break;
    }
    copy.Write("cevt/hlog", log);
}
