#include "cli/generic_dtioctl/generic_dtioctl.h"

#include <cstdint>
#include <cstdio>

#include "include/data_tables.h"
#include "platform/request.h"

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
