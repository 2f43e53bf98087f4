// The standard boot order (the IPL list) and the device that the next start alone boots from.
#include <algorithm>
#include <cstdio>
#include <iterator>

#include "cli/command/refusals.h"
#include "cli/command/state.h"
#include "cli/misc-commands/misc_commands.h"
#include "cli/misc-commands/rom_setting.h"
#include "cli/misc-commands/settings.h"
#include "src/utils/word_table.h"

namespace {

constexpr RomVariable<ZTHIPLSTRUCT> kBootOrder = {kBootOrderVariable};
constexpr RomVariable<BootDeviceCount> kInstalled = {kBootCountVariable};
constexpr RomVariable<ZTTBT1STRUCT> kBootOnce = {kBootOnceVariable};

constexpr char kCountUnreadable[] = "\nERROR: Failed to get number of IPL devices installed.";
constexpr char kOrderUnreadable[] = "\nERROR: Failed to get IPL list.";
constexpr char kNoSuchDevice[] = "\nERROR: Invalid boot device entered.";

constexpr RomTexts kBootFirstTexts = {
    "\nERROR: Failed to get first boot device.",
    "\nERROR: Failed to set first boot.",
    "\nSuccessfully set first boot device to %s.",
    0,
};
constexpr RomTexts kBootOnceTexts = {
    "",
    "\nERROR: Failed to set first boot.",
    "\nSuccessfully set next boot to %s.",
};

// A device's place in its table is its code in the boot order: usually, and where the list can hold a USB
// key.
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

template <size_t kCount>
const char* NameOf(const OrderDevice (&devices)[kCount], uint8_t code) {
    return code < kCount ? devices[code].shown : "UNKNOWN";
}

constexpr int kNoCode = -1;

// A device's code by its word; kNoCode where the server can't boot from it.
template <size_t kCount>
int CodeOf(const OrderDevice (&devices)[kCount], const char* word) {
    const OrderDevice* const device = FindWord(devices, word);
    return device != nullptr ? static_cast<int>(device - devices) : kNoCode;
}

struct OnceDevice {
    uint8_t code;  // ZTTBT1STRUCT::boot
    const char* word;
    const char* shown;
};
// clang-format off
constexpr OnceDevice kOnceDevices[] = {
    {1,    "FLOPPY", "Floppy"},
    {2,    "CDROM",  "CDROM"},
    {3,    "HDD",    "HDD"},
    {0x30, "KONF",   "KONF"},
    {0x40, "PXE",    "PXE"},
};
// clang-format on

// How many entries of the list mean something. count: as the firmware gives it.
int ListLength(const BootDeviceCount& count) {
    return std::min(int{count.zthnipl}, int{sizeof ZTHIPLSTRUCT::ucPriority});
}

// Swaps a device with the one that stands first. False, with the reason printed, when the list lacks it.
bool MoveToFront(uint8_t* list, int length, int code, const char* word) {
    uint8_t* const place = std::find(list, list + length, code);
    if (place == list + length) {
        std::printf("\nERROR: %s boot is not supported on this server or it may have been disabled by KONF.",
                    word);
        return false;
    }
    std::swap(*place, list[0]);
    return true;
}

}  // namespace

const char* ReadBootOnce(const char*& device) {
    ZTTBT1STRUCT once;
    if (!ReadVariable(kBootOnce, once)) return "\nERROR: Failed to get next boot device.";
    const OnceDevice* row = FindCode(kOnceDevices, once.boot.bVal);
    device = row != nullptr ? row->shown : "Not set";
    return nullptr;
}

const char* ReadBootOrder(BootOrder& order) {
    BootDeviceCount count;
    if (!ReadVariable(kInstalled, count)) return kCountUnreadable;
    ZTHIPLSTRUCT list;
    if (!ReadVariable(kBootOrder, list)) return kOrderUnreadable;

    const bool with_usb_key = count.zthnipl > std::size(ipl) || is_tr500k2();
    order.count = ListLength(count);
    for (int i = 0; i < order.count; ++i) {
        const uint8_t code = list.ucPriority[i];
        order.device[i] = with_usb_key ? NameOf(ipl2, code) : NameOf(ipl, code);
    }
    return nullptr;
}

int do_show_boot(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    ZTHIPLSTRUCT order;
    if (!ReadVariable(kBootOrder, order)) return Fail(kOrderUnreadable);
    const char* once = nullptr;
    if (const char* error = ReadBootOnce(once)) return Fail("%s", error);

    const uint8_t code = order.ucPriority[0];
    const char* first = is_tr500k2() ? NameOf(ipl2, code) : NameOf(ipl, code);
    std::printf("\nFirst boot device is: %s.", first);
    std::printf("\nOne time boot device is: %s.", once);
    return 0;
}

int do_set_boot_once(InputLineType* InputLine) {
    if (InputLine->NumWords != 4) return InvalidArguments();
    const OnceDevice* device = FindWord(kOnceDevices, InputLine->Words[3]);
    if (device == nullptr) return Fail(kNoSuchDevice);

    ZTTBT1STRUCT once{};
    once.boot.bVal = device->code;
    return Report<kBootOnceTexts>(StoreVariable(kBootOnce, once), device->word);
}

int do_set_boot_first(InputLineType* InputLine) {
    if (InputLine->NumWords != 4) return InvalidArguments();
    const char* word = InputLine->Words[3];
    if (CodeOf(ipl2, word) == kNoCode) return Fail(kNoSuchDevice);  // the longer list knows them all

    BootDeviceCount count;
    if (!ReadVariable(kInstalled, count)) return Fail(kCountUnreadable);
    if (count.zthnipl == 0) return Fail("ERROR: No bootable devices found.");

    const int code = is_tr500k2() ? CodeOf(ipl2, word) : CodeOf(ipl, word);
    if (code == kNoCode) return Fail("\nERROR: USB boot is not supported on this system by brantcli.");

    const RomOutcome outcome = ChangeVariable(kBootOrder, [&](ZTHIPLSTRUCT& order) {
        return MoveToFront(order.ucPriority, ListLength(count), code, word);
    });
    return Report<kBootFirstTexts>(outcome, word);
}

int do_show_ipl(InputLineType* InputLine) {
    if (InputLine->NumWords != 2) return InvalidArguments();

    BootOrder order;
    if (const char* error = ReadBootOrder(order)) return Fail("%s", error);
    if (order.count == 0) {
        std::printf("\nNo IPL devices installed.");
        return 0;
    }

    std::printf("\nIPL (Standard Boot Order)");
    std::printf("\n-------------------------");
    for (int i = 0; i < order.count; ++i) std::printf("\n#%d\t%s", i, order.device[i]);
    return 0;
}
