// Saves the ROM variables and the state of the recovery timer.
#include <cerrno>

#include "cli/command/state.h"
#include "cli/misc-commands/rom_store.h"
#include "include/health_records.h"
#include "include/rom_variables.h"
#include "platform/request.h"
#include "savemachine/parts.h"

namespace {

// A ROM variable, and the largest number of bytes that a command reads of it.
struct Variable {
    const char* name;
    int size;
    bool is_optional = false;  // not reported if missing: some firmware stores this elsewhere
};
// clang-format off
constexpr Variable kVariables[] = {
    {kNicAddressVariable,    sizeof zthmac, true},
    {kAsrVariable,           sizeof(ASREVSTRUCT)},
    {kAssetVariable,         sizeof(AssetText)},
    {kShutdownVariable,      sizeof(CSMEVSTRUCT)},
    {kServerNameVariable,    sizeof(ServerName)},
    {kBootOrderVariable,     sizeof(ZTHIPLSTRUCT)},
    {kBootOnceVariable,      sizeof(ZTTBT1STRUCT)},
    {kBootCountVariable,     sizeof(BootDeviceCount)},
    {kNicBootVariable,       sizeof(NicBootSettings)},
    {kNicPxeVariable,        sizeof(NicPxeFlags), true},
    {kConfigurationVariable, sizeof(WOLEVREC)},
    {kBiosPortVariable,      sizeof(BiosPort)},
    {kBiosBaudVariable,      sizeof(BiosBaud)},
    {kVersionsVariable,      sizeof(VERSEVREC)},
};
// clang-format on

void Save(MachineCopy& copy, const Variable& variable) {
    unsigned char value[sizeof EV_IOCTL_STRUCT::DataBuffer];
    errno = 0;
    if (get_ev(variable.name, value, variable.size) == 0) {
        const std::string bytes(reinterpret_cast<const char*>(value), static_cast<size_t>(variable.size));
        copy.Write(std::string("crom/") + variable.name, bytes);
    } else if (FailedResult() != kMissing || !variable.is_optional) {
        copy.ReportFailedCall(std::string("crom read ") + variable.name, FailedResult());
    }
}

}  // namespace

void SaveTimer(MachineCopy& copy) {
    copy.ShowProgress("the recovery timer");
    int32_t enabled = 0;
    errno = 0;
    if (vxIoctlRequest(casr_fd, kTimerState, &enabled) == 0) {
        copy.Write("casr/enabled", enabled != 0 ? "1\n" : "0\n");
    } else {
        copy.ReportFailedCall("casr " + std::to_string(kTimerState), FailedResult());
    }
}

void SaveVariables(MachineCopy& copy) {
    copy.ShowProgress("ROM variables");
    for (const Variable& variable : kVariables) Save(copy, variable);
}
