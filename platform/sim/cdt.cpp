// The data tables: one file for each record. The three numbers of the request are the file's name.
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <string>

#include "include/health_records.h"
#include "platform/sim/device.h"
#include "platform/sim/device_change.h"
#include "platform/sim/machine_directory.h"

namespace {

constexpr size_t kLargestIndicator = size_t{1} << 16;  // maximum size of its record in bytes
constexpr size_t kStateOffset = offsetof(INDCBASIC, ucCurrState);

std::string RecordName(const DT_IOCTL_HEADER& header) {
    return std::to_string(header.DT_Type) + '.' + std::to_string(header.Index) + '.' +
           std::to_string(header.Index2);
}

bool Accepts(int code, const void* block) {
    return code == kDataTableRequest && block != nullptr;
}

void Describe(int /*code*/, const void* block, Call& call) {
    const DT_IOCTL_HEADER& header = static_cast<const DT_IOCTL*>(block)->DtHdr;
    call.SetSubject("cdt %u.%u.%u", header.DT_Type, header.Index, header.Index2);
    call.SetDetail(" size=%u cru=%u.%u", header.size, header.CRUFunction, header.CRUSubfunction);
}

int Report(const DT_IOCTL& block) {
    Descriptor file;
    const int opened = OpenDeviceFile(OpenDevice(kCdt.name), RecordName(block.DtHdr).c_str(), file);
    if (opened != 0) return opened;
    return ReadAt(file.Get(), block.pData, block.DtHdr.size, 0) < 0 ? -errno : 0;
}

// Stores an indicator's new state. The reply is the stored record.
int SetIndicator(const DT_IOCTL& block, IndicatorState state) {
    const std::string name = RecordName(block.DtHdr);
    const DeviceChange change(kCdt.name);
    Descriptor file;
    const int opened = OpenDeviceFile(change.Directory(), name.c_str(), file);
    if (opened != 0) return opened;

    std::string record;
    if (!ReadWhole(file, kLargestIndicator, record)) return -errno;
    record.resize(std::max(record.size(), kStateOffset + 1));
    record[kStateOffset] = static_cast<char>(state);
    const int result = change.Replace(name.c_str(), record);
    if (result != 0) return result;
    std::memcpy(block.pData, record.data(), std::min<size_t>(record.size(), block.DtHdr.size));
    return 0;
}

int ControlIndicator(const DT_IOCTL& block) {
    if (block.DtHdr.CRUFunction != kIndicatorControl) return 1;
    switch (block.DtHdr.CRUSubfunction) {
        case kReportState: return Report(block);
        case kTurnOn: return SetIndicator(block, kIndicatorOn);
        case kTurnOff: return SetIndicator(block, kIndicatorOff);
        default: return 1;
    }
}

int Request(int, void* arg) {
    const DT_IOCTL& block = *static_cast<const DT_IOCTL*>(arg);
    if (block.pData == nullptr) return -EFAULT;
    return block.DtHdr.DT_Type == kIndicatorControlTable ? ControlIndicator(block) : Report(block);
}

}  // namespace

const Device kCdt = {"cdt", "/dev/zethealth/cdt", Accepts, Describe, Request};
