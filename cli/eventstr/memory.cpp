// Class 3, main memory.
#include "cli/eventstr/catalogue.h"
#include "cli/eventstr/translators.h"
#include "include/event_memory.h"

namespace eventstr {
namespace {

constexpr size_t kSuspects = 4;
constexpr size_t kSerialNumberSize = 80;  // bytes, the terminating zero included

constexpr uint8_t kSystemMemory = 0;  // for a slot: the board's own memory
constexpr uint8_t kNotKnown = 255;

// clang-format off
// Slot and module (or bank) stand at the same offsets in these three records, so their rows share the arguments.
constexpr size_t kSlotAt = offsetof(EVT_MAIN_MEMORY, bSlot);
constexpr size_t kModuleAt = offsetof(EVT_MAIN_MEMORY, bModule);
static_assert(offsetof(EVT_MAIN_MEMORY_SPARE_ENGAGED, bSlot) == kSlotAt &&
              offsetof(EVT_MAIN_MEMORY_SPARE_ENGAGED, bModule) == kModuleAt &&
              offsetof(EVT_MAIN_MEMORY_MIRROR_ENGAGED, bSlot) == kSlotAt &&
              offsetof(EVT_MAIN_MEMORY_MIRROR_ENGAGED, bModule) == kModuleAt);

constexpr Condition kNoSlot   = {kSlotAt, kNotKnown};
constexpr Condition kBoard    = {kSlotAt, kSystemMemory};
constexpr Condition kNoModule = {kModuleAt, kNotKnown};

constexpr Argument kSlot   = {kSlotAt, Byte2Str};
constexpr Argument kModule = {kModuleAt, Byte2Str};
constexpr Argument kBank   = {kModuleAt, Char2Str};
constexpr Argument kSerial = {offsetof(EVT_MAIN_MEMORY, cSerialNumber), SerialNumber};

constexpr Condition ActionIs(uint8_t action) {
    return {offsetof(EVT_MAIN_MEMORY_USER_ACTION, bAction), action};
}
constexpr Condition kActionOnCartridge = {offsetof(EVT_MAIN_MEMORY_USER_ACTION, bCartridgeOrBoard), 1};
constexpr Condition kActionOnBoard     = {offsetof(EVT_MAIN_MEMORY_USER_ACTION, bCartridgeOrBoard), 0};
constexpr Argument kActionSlot         = {offsetof(EVT_MAIN_MEMORY_USER_ACTION, bSlot), Byte2Str};

constexpr Condition StatusIs(uint8_t status) {
    return {offsetof(EVT_MAIN_MEMORY_HW_STATUS, bStatus), status};
}
constexpr Argument kStatusSlot = {offsetof(EVT_MAIN_MEMORY_HW_STATUS, bSlot), Byte2Str};

constexpr Condition kConfigCartridge = {offsetof(EVT_MAIN_MEMORY_CONFIG_ERR, bCartridgeOrBoard), 1};
constexpr Condition kConfigBoard     = {offsetof(EVT_MAIN_MEMORY_CONFIG_ERR, bCartridgeOrBoard), 0};
constexpr Argument kConfigSlot       = {offsetof(EVT_MAIN_MEMORY_CONFIG_ERR, bSlot), Byte2Str};
constexpr Argument kConfigModule     = {offsetof(EVT_MAIN_MEMORY_CONFIG_ERR, bModule), Byte2Str};

constexpr uint8_t kNotIsolated = 0x01;  // bNotIsolated's place in flags

void TranslateMainMemRomDiagFail(Bytes pEventData, TextWriter& out) {
    constexpr Argument kArguments[] = {
        {offsetof(EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG, bBoard),         BoardPrefix},
        {offsetof(EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG, bModule),        PlainByte},
        {offsetof(EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG, szSerialNumber), SerialNumber},
        {offsetof(EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG, szSerialNumber), SpareNumber},
    };
    constexpr Condition kIsolated = {offsetof(EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG, flags), 0, kNotIsolated};
    PrintText(kIsolated.Holds(pEventData)
                  ? "Uncorrectable Memory Error detected by ROM-based memory validation "
                    "(%sMemory Module %s%s%s)"
                  : "Uncorrectable Memory Error detected by ROM-based memory validation "
                    "(unable to isolate to single module) (%sMemory Module %s%s%s)",
              kArguments, pEventData, out);
}

constexpr EventRow kEvents[] = {
    {1, {kNoSlot, kNoModule}, "Corrected Memory Error threshold exceeded (Memory Module Unknown%s)",
     {kSerial}},
    {1, {kBoard, kNoModule},  "Corrected Memory Error threshold exceeded (System Memory%s)", {kSerial}},
    {1, {kBoard}, "Corrected Memory Error threshold exceeded (System Memory, Memory Module %s%s)",
     {kModule, kSerial}},
    {1, {}, "Corrected Memory Error threshold exceeded (Slot %s, Memory Module %s%s)",
     {kSlot, kModule, kSerial}},

    {2, {kNoSlot, kNoModule}, "Uncorrectable Memory Error (Module Unknown%s)", {kSerial}},
    {2, {kBoard, kNoModule},  "Uncorrectable Memory Error (System Memory%s)", {kSerial}},
    {2, {kBoard}, "Uncorrectable Memory Error (System Memory, Memory Module %s%s)", {kModule, kSerial}},
    {2, {},       "Uncorrectable Memory Error (Slot %s, Memory Module %s%s)", {kSlot, kModule, kSerial}},

    // 3: TranslateSuspects

    {4, {ActionIs(0), kActionOnCartridge}, "Memory Cartridge Removed (Slot %s)", {kActionSlot}},
    {4, {ActionIs(0), kActionOnBoard},     "Memory Board Removed (Slot %s)", {kActionSlot}},
    {4, {ActionIs(1), kActionOnCartridge}, "Memory Cartridge Inserted (Slot %s)", {kActionSlot}},
    {4, {ActionIs(1), kActionOnBoard},     "Memory Board Inserted (Slot %s)", {kActionSlot}},
    {4, {ActionIs(2)}, "Memory Cartridge Unlocked (Slot %s)", {kActionSlot}},
    {4, {ActionIs(3)}, "Memory Cartridge Locked (Slot %s)", {kActionSlot}},

    {5, {StatusIs(0)}, "Memory Cartridge Bus Fault (Slot %s)", {kStatusSlot}},
    {5, {StatusIs(1)}, "Memory Cartridge Power Fault (Slot %s)", {kStatusSlot}},
    {5, {StatusIs(2)}, "Memory Cartridge Not Redundant (Slot %s)", {kStatusSlot}},
    {5, {StatusIs(3)}, "Memory Cartridge Online (Slot %s)", {kStatusSlot}},

    {6, {kConfigCartridge}, "Memory Cartridge Configuration Error (Slot %s, Memory Module %s)",
     {kConfigSlot, kConfigModule}},
    {6, {kConfigBoard}, "Memory Board Configuration Error (Slot %s, Memory Module %s)",
     {kConfigSlot, kConfigModule}},

    {7, {{offsetof(EVT_MAIN_MEMORY_CONFIG_CHG, bAction), 0}}, "Memory Added (Size %s MB)",
     {{offsetof(EVT_MAIN_MEMORY_CONFIG_CHG, ulSize), Dword2Str}}},
    {7, {{offsetof(EVT_MAIN_MEMORY_CONFIG_CHG, bAction), 1}}, "Memory Successfully Removed", {}},

    {8, {kBoard},
     "Online Spare Memory Copy Process Started for Faulty Module (System Memory, Memory Module %s)",
     {kModule}},
    {8, {}, "Online Spare Memory Copy Process Started for Faulty Module (Slot %s, Memory Module %s)",
     {kSlot, kModule}},

    {9, {kBoard}, "Mirrored Memory Engaged for Faulty Module (System Memory, Memory Module %s)", {kModule}},
    {9, {}, "Mirrored Memory Engaged for Faulty Module (Slot %s, Memory Module %s)", {kSlot, kModule}},

    {10, {kNoSlot, kNoModule}, "Corrected Memory Error threshold exceeded (Bank Unknown%s)", {kSerial}},
    {10, {kBoard, kNoModule},  "Corrected Memory Error threshold exceeded (System Memory%s)", {kSerial}},
    {10, {kBoard}, "Corrected Memory Error threshold exceeded (System Memory, Bank %s%s)", {kBank, kSerial}},
    {10, {},       "Corrected Memory Error threshold exceeded (Slot %s, Bank %s%s)", {kSlot, kBank, kSerial}},

    {11, {kBoard}, "Online Spare Memory Copy Process Started for Faulty Module (System Memory, Bank %s)",
     {kBank}},
    {11, {}, "Online Spare Memory Copy Process Started for Faulty Module (Slot %s, Bank %s)",
     {kSlot, kBank}},

    {12, {kBoard}, "Mirrored Memory Engaged for Faulty Module (System Memory, Bank %s)", {kBank}},
    {12, {}, "Mirrored Memory Engaged for Faulty Module (Slot %s, Bank %s)", {kSlot, kBank}},

    {13, {}, "Loss of Mirroring in Memory Subsystem", {}},
    {14, {}, "Online Spare Memory Disabled", {}},
    {15, {}, "Memory Subsystem Not In RAID Mode", {}},
    {16, {}, "Online Spare Memory Switchover Complete", {}},
    {17, {}, "Memory Board Failure (Slot %s)", {{offsetof(EVT_MAIN_MEMORY_BOARD_FAILURE, bSlot), Byte2Str}}},

    {18, {}, "%s", {TranslateMainMemRomDiagFail}},
};
static_assert(WellFormed(kEvents));

// What follows the first suspect of event 3, which reads as event 2.
constexpr EventRow kFurtherSuspects[] = {
    {2, {kNoSlot, kNoModule}, " or (Module Unknown%s)", {kSerial}},
    {2, {kBoard, kNoModule},  " or (System Memory%s)", {kSerial}},
    {2, {kBoard}, " or (System Memory, Memory Module %s%s)", {kModule, kSerial}},
    {2, {},       " or (Slot %s, Memory Module %s%s)", {kSlot, kModule, kSerial}},
};
static_assert(WellFormed(kFurtherSuspects));
// clang-format on

// One suspect of several, laid out as EVT_MAIN_MEMORY is, so that the same rows print it.
struct Suspect {
    uint8_t bSlot;
    uint8_t bModule;
    char cSerialNumber[kSerialNumberSize];
};
static_assert(offsetof(Suspect, bSlot) == kSlotAt && offsetof(Suspect, bModule) == kModuleAt &&
              offsetof(Suspect, cSerialNumber) == offsetof(EVT_MAIN_MEMORY, cSerialNumber));

// Gives each suspect its serial number: the pieces of a text between its commas, in order.
void SetSerialNumbers(Suspect (&suspects)[kSuspects], std::string_view serials) {
    for (Suspect& suspect : suspects) {
        const size_t comma = serials.find(',');
        TextWriter serial(suspect.cSerialNumber, sizeof suspect.cSerialNumber);
        CopyAndReformat(serial, serials.substr(0, comma));
        if (comma == serials.npos) return;
        serials.remove_prefix(comma + 1);
    }
}

// Event 3: the modules that the error may have come from, the first one whatever the count.
void TranslateSuspects(Bytes payload, TextWriter& out) {
    Suspect suspects[kSuspects] = {};
    SetSerialNumbers(suspects, ReadText(payload, offsetof(EVT_MAIN_MEMORY_MULTI, cSerialNumber)));

    const auto count = ReadPaddedField<uint8_t>(payload, offsetof(EVT_MAIN_MEMORY_MULTI, bResolution));
    for (size_t i = 0; i < kSuspects && (i == 0 || i < count); ++i) {
        const size_t single = offsetof(EVT_MAIN_MEMORY_MULTI, mm) + i * sizeof(EVT_MEM_SINGLE);
        suspects[i].bSlot = ReadPaddedField<uint8_t>(payload, single + offsetof(EVT_MEM_SINGLE, bSlot));
        suspects[i].bModule = ReadPaddedField<uint8_t>(payload, single + offsetof(EVT_MEM_SINGLE, bModule));

        const Bytes suspect = {reinterpret_cast<const uint8_t*>(&suspects[i]), sizeof(Suspect)};
        if (i == 0) {
            PrintEvent(kEvents, 2, suspect, out);
        } else {
            PrintEvent(kFurtherSuspects, 2, suspect, out);
        }
    }
}

}  // namespace

void TranslateClass03(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    if (wEventCode == 3) return TranslateSuspects(pEventData, out);
    PrintEvent(kEvents, wEventCode, pEventData, out);
}

}  // namespace eventstr
