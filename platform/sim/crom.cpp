// The ROM variables: each is a file that contains the variable's bytes.
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <string>

#include "include/rom_variables.h"
#include "platform/sim/device.h"
#include "platform/sim/device_change.h"
#include "platform/sim/machine_directory.h"

namespace {

constexpr size_t kLargestValue = size_t{1} << 20;  // maximum size of a variable that is written, in bytes

size_t NameLength(const EV_IOCTL_STRUCT& block) {
    return static_cast<size_t>(std::find(block.EvName, std::end(block.EvName), '\0') - block.EvName);
}

bool IsValidInName(char letter) {
    return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z') ||
           (letter >= '0' && letter <= '9') || letter == '_' || letter == '-';
}

// Returns whether the variable's name is a valid file name, so that no request can access a file outside the
// directory.
bool HasValidName(const EV_IOCTL_STRUCT& block) {
    const size_t length = NameLength(block);
    return length > 0 && length < sizeof block.EvName &&
           std::all_of(block.EvName, block.EvName + length, IsValidInName);
}

// The bytes that a write stores, as lower-case hexadecimal digits.
struct Hexadecimal {
    char text[2 * sizeof EV_IOCTL_STRUCT::DataBuffer + 1];
    explicit Hexadecimal(const EV_IOCTL_STRUCT& block) {
        constexpr char kDigits[] = "0123456789abcdef";
        char* next = text;
        const size_t size = std::min<size_t>(block.DataLength, sizeof block.DataBuffer);
        for (size_t i = 0; i < size; ++i) {
            *next++ = kDigits[block.DataBuffer[i] >> 4];
            *next++ = kDigits[block.DataBuffer[i] & 15];
        }
        *next = '\0';
    }
};

bool Accepts(int code, const void* arg) {
    return arg != nullptr && (code == kReadVariable || code == kWriteVariable);
}

void Describe(int code, const void* arg, Call& call) {
    const auto& block = *static_cast<const EV_IOCTL_STRUCT*>(arg);
    call.SetSubject("crom %s %.*s", code == kReadVariable ? "read" : "write",
                    static_cast<int>(NameLength(block)), block.EvName);
    if (code == kReadVariable) {
        call.SetDetail(" length=%u", block.DataLength);
    } else {
        call.SetDetail(" length=%u data=%s", block.DataLength, Hexadecimal(block).text);
    }
}

int Read(EV_IOCTL_STRUCT& block) {
    Descriptor file;
    const int opened = OpenDeviceFile(OpenDevice(kCrom.name), block.EvName, file);
    if (opened != 0) return opened;
    return ReadAt(file.Get(), block.DataBuffer, block.DataLength, 0) < 0 ? -errno : 0;
}

int Write(const EV_IOCTL_STRUCT& block) {
    const DeviceChange change(kCrom.name);
    Descriptor file;
    const int opened = OpenDeviceFile(change.Directory(), block.EvName, file);
    if (opened < 0) return opened;

    std::string value;
    if (file && !ReadWhole(file, kLargestValue, value)) return -errno;

    value.resize(std::max<size_t>(value.size(), block.DataLength));
    std::memcpy(value.data(), block.DataBuffer, block.DataLength);
    return change.Replace(block.EvName, value);
}

int Request(int code, void* arg) {
    auto& block = *static_cast<EV_IOCTL_STRUCT*>(arg);
    if (!HasValidName(block) || block.DataLength > sizeof block.DataBuffer) return 1;
    return code == kReadVariable ? Read(block) : Write(block);
}

}  // namespace

const Device kCrom = {"crom", "/dev/zethealth/crom", Accepts, Describe, Request};
