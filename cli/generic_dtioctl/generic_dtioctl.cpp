#include "cli/generic_dtioctl/generic_dtioctl.h"

#include <cstdint>
#include <cstdio>

#include "platform/request.h"

char cdt_path[] = "/dev/zethealth/cdt";
char cevt_path[] = "/dev/zethealth/cevt";
char casr_path[] = "/dev/zethealth/casr";
char crom_path[] = "/dev/zethealth/crom";

// clang-format off
const HealthDevice kHealthDevices[kDeviceCount] = {
    {"cdt",  cdt_path,  &cdt_fd,  "\nERROR: Could not communicate with brantd/brantlited.\n", ""},
    {"cevt", cevt_path, &cevt_fd, "\nERROR: Could not open /dev/zethealth/cevt.",             "\n"},
    {"casr", casr_path, &casr_fd, "\nERROR: Could not open /dev/zethealth/casr.",             "\n"},
    {"crom", crom_path, &crom_fd, "\nERROR: Could not open /dev/zethealth/crom.",             "\n"},
};
// clang-format on

namespace {

constexpr char kDaemonHint[] =
    "\nPlease make sure the brantd/brantlited daemon is started and running properly.";

// Closes the first `count` devices, the last one first.
void CloseBackwards(int count) {
    while (count > 0) vxCloseRequest(*kHealthDevices[--count].descriptor);
}

}  // namespace

bool OpenDevices() {
    for (int i = 0; i < kDeviceCount; ++i) {
        const HealthDevice& device = kHealthDevices[i];
        *device.descriptor = vxOpenRequest(device.path, kReadWrite);
        if (*device.descriptor >= 0) continue;

        std::printf("%s%s%s", device.error, kDaemonHint, device.after_hint);
        CloseBackwards(i);
        return false;
    }
    return true;
}

void OpenAvailableDevices() {
    for (const HealthDevice& device : kHealthDevices)
        *device.descriptor = vxOpenRequest(device.path, kReadWrite);
}

void CloseDevices() {
    for (const HealthDevice& device : kHealthDevices) vxCloseRequest(*device.descriptor);
}

void CloseDevicesLastFirst() {
    CloseBackwards(kDeviceCount);
}

void* generic_dtioctl(short dt_type, int index, int index2, int size, int fd) {
    DT_IOCTL request{};
    request.DtHdr.size = static_cast<uint32_t>(size);
    request.DtHdr.DT_Type = static_cast<DataTableType>(dt_type);
    request.DtHdr.Index = static_cast<uint8_t>(index);
    request.DtHdr.Index2 = static_cast<uint8_t>(index2);
    request.pData = std::calloc(1, static_cast<size_t>(size));
    if (request.pData == nullptr) {
        std::printf("\nERROR: Could not allocate memory for command.");
        return nullptr;
    }
    if (vxIoctlRequest(fd, kDataTableRequest, &request) != 0) {
        std::free(request.pData);
        return nullptr;
    }
    return request.pData;
}
