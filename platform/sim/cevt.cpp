// The event log: one file, `hlog`, of entries one after the other.
#include <cerrno>
#include <cstdint>
#include <cstring>

#include "include/event_log.h"
#include "platform/sim/change.h"
#include "platform/sim/device.h"
#include "platform/sim/event_index.h"
#include "platform/sim/machine_directory.h"

namespace {

constexpr char kLogFile[] = "hlog";

bool Knows(int code, const void* arg) {
    return code == kEventLogRequest && arg != nullptr;
}

void Describe(int /*code*/, const void* arg, Call& call) {
    const auto& block = *static_cast<const LOG_INFO*>(arg);
    switch (block.choice) {
        case kReadEvent: call.SetSubject("cevt read %d", block.EvtNumber); break;
        case kClearEvents: call.SetSubject("cevt clear"); break;
        default: call.SetSubject("cevt choice=%d", block.choice); break;
    }
    call.SetDetail(" length=%u", block.length);
}

// entry: where the reply goes, behind the block.
int Read(const LOG_INFO& block, void* entry) {
    static EventIndex index;
    const Descriptor log = OpenFile(OpenDevice(kCevt.name), kLogFile);
    if (!log) return AnswerForMissing();
    const int followed = index.Follow(log);
    if (followed != 0) return followed;

    const EventPlace* const place = index.Find(static_cast<uint32_t>(block.EvtNumber));
    if (place == nullptr) return kEndOfLog;
    if (block.length < sizeof block || block.length - sizeof block < place->length) return kBufferTooSmall;
    uint8_t bytes[UINT16_MAX];
    const ssize_t count = ReadAt(log.Get(), bytes, place->length, place->offset);
    if (count != place->length) return count < 0 ? -errno : -EIO;
    std::memcpy(entry, bytes, place->length);
    return kEntryRead;
}

int Clear() {
    const Change change(kCevt.name);
    if (!change) return -errno;
    return change.Replace(kLogFile, {});
}

int Request(int, void* arg) {
    const LOG_INFO& block = *static_cast<const LOG_INFO*>(arg);
    switch (block.choice) {
        case kReadEvent: return Read(block, static_cast<uint8_t*>(arg) + sizeof block);
        case kClearEvents: return Clear();
        default: return -EINVAL;
    }
}

}  // namespace

const Device kCevt = {"cevt", "/dev/zethealth/cevt", Knows, Describe, Request};
