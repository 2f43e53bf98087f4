#include "cli/misc-commands/rom_store.h"

#include <cstring>

#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "include/rom_variables.h"
#include "platform/request.h"
#include "src/utils/text.h"

namespace {

EV_IOCTL_STRUCT RequestFor(const char* name, int length) {
    EV_IOCTL_STRUCT request{};
    TextWriter(request.EvName, sizeof request.EvName).Text(name);
    request.DataLength = static_cast<uint32_t>(length);
    return request;
}

}  // namespace

int get_ev(const char* ev_name_string, unsigned char* return_buffer, int length) {
    EV_IOCTL_STRUCT request = RequestFor(ev_name_string, length);
    if (vxIoctlRequest(crom_fd, kReadVariable, &request) != 0) return 1;
    std::memcpy(return_buffer, request.DataBuffer, static_cast<size_t>(length));
    return 0;
}

int set_ev(const char* ev_name_string, const unsigned char* buffer, int length) {
    EV_IOCTL_STRUCT request = RequestFor(ev_name_string, length);
    std::memcpy(request.DataBuffer, buffer, static_cast<size_t>(length));
    return vxIoctlRequest(crom_fd, kWriteVariable, &request) != 0 ? 1 : 0;
}
