// The recovery timer: the machine's file `enabled` contains a number, which is nonzero if the timer runs.
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstring>
#include <string>

#include "include/health_records.h"
#include "platform/sim/device.h"
#include "platform/sim/device_change.h"
#include "platform/sim/machine_directory.h"

namespace {

constexpr char kStateFile[] = "enabled";
constexpr size_t kLongestNumber = 32;  // maximum size of the file in bytes

bool Accepts(int /*code*/, const void* /*block*/) {
    return true;  // so that calls with any code are traced; Request() rejects invalid codes
}

void Describe(int code, const void* /*block*/, Call& call) {
    call.SetSubject("casr %d", code);
}

int ReadState(void* block) {
    Descriptor file;
    const int opened = OpenDeviceFile(OpenDevice(kCasr.name), kStateFile, file);
    if (opened != 0) return opened;
    std::string text;
    if (!ReadWhole(file, kLongestNumber, text)) return -errno;
    if (!text.empty() && text.back() == '\n') text.pop_back();

    uint64_t number = 0;
    if (!ReadNumber(text, INT_MAX, number)) return -EINVAL;
    const auto state = static_cast<int32_t>(number);
    std::memcpy(block, &state, sizeof state);
    return 0;
}

int SetState(const char* text) {
    const DeviceChange change(kCasr.name);
    Descriptor file;
    const int opened = OpenDeviceFile(change.Directory(), kStateFile, file);
    return opened == 0 ? change.Replace(kStateFile, text) : opened;
}

int Request(int code, void* block) {
    switch (code) {
        case kTimerState: return block != nullptr ? ReadState(block) : -EINVAL;
        case kEnableTimer: return SetState("1\n");
        case kDisableTimer: return SetState("0\n");
        default: return -EINVAL;
    }
}

}  // namespace

const Device kCasr = {"casr", "/dev/zethealth/casr", Accepts, Describe, Request};
