#include "cli/misc-commands/boot.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iterator>

#include "cli/command/command.h"
#include "cli/command/state.h"
#include "cli/misc-commands/rom_store.h"
#include "src/utils/text.h"

namespace {

constexpr RomVariable<ZTHIPLSTRUCT> kBootOrder = {kBootOrderVariable};
constexpr RomVariable<BootDeviceCount> kInstalled = {kBootCountVariable};
constexpr RomVariable<ZTTBT1STRUCT> kBootOnce = {kBootOnceVariable};

constexpr char kCountUnreadable[] = "\nERROR: Failed to get number of IPL devices installed.";
constexpr char kOrderUnreadable[] = "\nERROR: Failed to get IPL list.";
constexpr char kNoSuchDevice[] = "\nERROR: Invalid boot device entered.";

// The devices of the boot order, indexed by their codes. `ipl` is for servers that can't boot from a USB key,
// `ipl2` for those that can.
struct OrderDevice {
    const char* word;
    const char* shown;
};
// clang-format off
constexpr OrderDevice ipl[] = {
    {"CDROM",  "CD-ROM"},
    {"FLOPPY", "Floppy"},
    {"HDD",    "HDD"},
    {"PXE",    "PXE"},
};
constexpr OrderDevice ipl2[] = {
    {"CDROM",  "CDROM"},
    {"FLOPPY", "Floppy"},
    {"HDD",    "HDD"},
    {"USBKEY", "USBKEY"},
    {"PXE",    "PXE"},
};
// clang-format on

static_assert(std::size(ipl) == kBootPxe + 1 && std::size(ipl2) == kBootPxeAfterUsbKey + 1, "PXE comes last");

struct OrderDevices {
    const OrderDevice* list;
    size_t count;
};
constexpr OrderDevices kUsual = {ipl, std::size(ipl)};
constexpr OrderDevices kWithUsbKey = {ipl2, std::size(ipl2)};

const OrderDevices& DevicesOfServer() {
    return is_tr500k2() ? kWithUsbKey : kUsual;
}

const char* NameOf(const OrderDevices& devices, uint8_t code) {
    return code < devices.count ? devices.list[code].shown : "UNKNOWN";
}

constexpr int kNoCode = -1;

// Returns the code of the device with the name `word`, or kNoCode if there is none.
int CodeOf(const OrderDevices& devices, const char* word) {
    const OrderDevice* const end = devices.list + devices.count;
    const OrderDevice* const device = std::find_if(
        devices.list, end, [=](const OrderDevice& row) { return std::strcmp(row.word, word) == 0; });
    return device != end ? static_cast<int>(device - devices.list) : kNoCode;
}

struct OnceDevice {
    BootOnce code;
    const char* word;
    const char* shown;
};
// clang-format off
constexpr OnceDevice kOnceDevices[] = {
    {kBootOnceFloppy, "FLOPPY", "Floppy"},
    {kBootOnceCdrom,  "CDROM",  "CDROM"},
    {kBootOnceHdd,    "HDD",    "HDD"},
    {kBootOnceKonf,   "KONF",   "KONF"},
    {kBootOncePxe,    "PXE",    "PXE"},
};
// clang-format on

// Returns the number of used entries in the boot order.
int LengthOfOrder(const BootDeviceCount& installed) {
    return std::min(int{installed.zthnipl}, int{sizeof ZTHIPLSTRUCT::ucPriority});
}

}  // namespace

bool ReadBootOnce(const char*& device) {
    ZTTBT1STRUCT once;
    if (!ReadVariable(kBootOnce, once)) return false;
    const OnceDevice* row = FindCode(kOnceDevices, once.boot.bVal);
    device = row != nullptr ? row->shown : "Not set";
    return true;
}

BootOrderRead ReadBootOrder(BootOrder& order) {
    BootDeviceCount installed;
    if (!ReadVariable(kInstalled, installed)) return BootOrderRead::CountFailed;
    ZTHIPLSTRUCT codes;
    if (!ReadVariable(kBootOrder, codes)) return BootOrderRead::ListFailed;

    const OrderDevices& devices = installed.zthnipl > kUsual.count ? kWithUsbKey : DevicesOfServer();
    order.count = LengthOfOrder(installed);
    for (int i = 0; i < order.count; ++i) order.device[i] = NameOf(devices, codes.ucPriority[i]);
    return BootOrderRead::Done;
}

int do_show_boot(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    ZTHIPLSTRUCT order;
    if (!ReadVariable(kBootOrder, order)) return Fail(kOrderUnreadable);
    const char* once = nullptr;
    if (!ReadBootOnce(once)) return Fail("\nERROR: Failed to get next boot device.");

    std::printf("\nFirst boot device is: %s.", NameOf(DevicesOfServer(), order.ucPriority[0]));
    std::printf("\nOne time boot device is: %s.", once);
    return 0;
}

int do_set_boot_once(InputLineType* InputLine) {
    if (InputLine->NumWords != 4) return InvalidArguments();
    const OnceDevice* device = FindWord(kOnceDevices, InputLine->Words[3]);
    if (device == nullptr) return Fail(kNoSuchDevice);

    ZTTBT1STRUCT once{};
    once.boot.bVal = device->code;
    if (!WriteVariable(kBootOnce, once)) return Fail("\nERROR: Failed to set first boot.");

    std::printf("\nSuccessfully set next boot to %s.", device->word);
    return 0;
}

int do_set_boot_first(InputLineType* InputLine) {
    if (InputLine->NumWords != 4) return InvalidArguments();
    const char* word = InputLine->Words[3];
    if (CodeOf(kWithUsbKey, word) == kNoCode) return Fail(kNoSuchDevice);  // contains all names

    ZTHIPLSTRUCT order;
    std::memset(&order, 0xFF, sizeof order);  // 0xFF isn't the code of any device
    BootDeviceCount installed;
    if (!ReadVariable(kInstalled, installed)) return Fail(kCountUnreadable);
    if (installed.zthnipl == 0) return Fail("ERROR: No bootable devices found.");
    const int code = CodeOf(DevicesOfServer(), word);
    if (code == kNoCode) return Fail("\nERROR: USB boot is not supported on this system by brantcli.");

    if (!ReadVariableOver(kBootOrder, order)) return Fail("\nERROR: Failed to get first boot device.");
    uint8_t* const first = order.ucPriority;
    uint8_t* const end = first + LengthOfOrder(installed);
    uint8_t* const found = std::find(first, end, code);
    if (found == end) {
        return Fail("\nERROR: %s boot is not supported on this server or it may have been disabled by KONF.",
                    word);
    }
    std::swap(*found, *first);
    if (!WriteVariable(kBootOrder, order)) {
        std::printf("\nERROR: Failed to set first boot.");
        return 0;
    }
    std::printf("\nSuccessfully set first boot device to %s.", word);
    return 0;
}

int do_show_ipl(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    BootOrder order;
    switch (ReadBootOrder(order)) {
        case BootOrderRead::CountFailed: return Fail(kCountUnreadable);
        case BootOrderRead::ListFailed: return Fail(kOrderUnreadable);
        case BootOrderRead::Done: break;
    }
    if (order.count == 0) {
        std::printf("\nNo IPL devices installed.");
        return 0;
    }

    std::printf("\nIPL (Standard Boot Order)");
    std::printf("\n-------------------------");
    for (int i = 0; i < order.count; ++i) std::printf("\n#%d\t%s", i, order.device[i]);
    return 0;
}
