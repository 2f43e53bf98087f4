// Class 3, main memory.
#include "cli/eventstr/catalogue.h"
#include "include/event_memory.h"

namespace eventstr {
namespace {

constexpr size_t kSuspects = 4;
constexpr size_t kSerialNumberSize = 80;  // bytes, the terminating zero included

constexpr uint8_t kSystemMemory = 0;  // for a slot: the board's own memory
constexpr uint8_t kNotKnown = 255;

// clang-format off
constexpr Condition kNoSlot   = Is<&EVT_MAIN_MEMORY::bSlot>(kNotKnown);
constexpr Condition kBoard    = Is<&EVT_MAIN_MEMORY::bSlot>(kSystemMemory);
constexpr Condition kNoModule = Is<&EVT_MAIN_MEMORY::bModule>(kNotKnown);
constexpr Argument kSlot      = Field<&EVT_MAIN_MEMORY::bSlot, Byte2Str>;
constexpr Argument kModule    = Field<&EVT_MAIN_MEMORY::bModule, Byte2Str>;
constexpr Argument kBank      = Field<&EVT_MAIN_MEMORY::bModule, Char2Str>;
constexpr Argument kSerial    = Field<&EVT_MAIN_MEMORY::cSerialNumber, SerialNumber>;

constexpr Condition kSpareBoard = Is<&EVT_MAIN_MEMORY_SPARE_ENGAGED::bSlot>(kSystemMemory);
constexpr Argument kSpareSlot   = Field<&EVT_MAIN_MEMORY_SPARE_ENGAGED::bSlot, Byte2Str>;
constexpr Argument kSpareModule = Field<&EVT_MAIN_MEMORY_SPARE_ENGAGED::bModule, Byte2Str>;
constexpr Argument kSpareBank   = Field<&EVT_MAIN_MEMORY_SPARE_ENGAGED::bModule, Char2Str>;

constexpr Condition kMirrorBoard = Is<&EVT_MAIN_MEMORY_MIRROR_ENGAGED::bSlot>(kSystemMemory);
constexpr Argument kMirrorSlot   = Field<&EVT_MAIN_MEMORY_MIRROR_ENGAGED::bSlot, Byte2Str>;
constexpr Argument kMirrorModule = Field<&EVT_MAIN_MEMORY_MIRROR_ENGAGED::bModule, Byte2Str>;
constexpr Argument kMirrorBank   = Field<&EVT_MAIN_MEMORY_MIRROR_ENGAGED::bModule, Char2Str>;

constexpr Condition ActionIs(uint8_t action) {
    return Is<&EVT_MAIN_MEMORY_USER_ACTION::bAction>(action);
}
constexpr Condition kActionOnCartridge = Is<&EVT_MAIN_MEMORY_USER_ACTION::bCartridgeOrBoard>(1);
constexpr Condition kActionOnBoard     = Is<&EVT_MAIN_MEMORY_USER_ACTION::bCartridgeOrBoard>(0);
constexpr Argument kActionSlot         = Field<&EVT_MAIN_MEMORY_USER_ACTION::bSlot, Byte2Str>;

constexpr Condition StatusIs(uint8_t status) {
    return Is<&EVT_MAIN_MEMORY_HW_STATUS::bStatus>(status);
}
constexpr Argument kStatusSlot = Field<&EVT_MAIN_MEMORY_HW_STATUS::bSlot, Byte2Str>;

constexpr Condition kConfigCartridge = Is<&EVT_MAIN_MEMORY_CONFIG_ERR::bCartridgeOrBoard>(1);
constexpr Condition kConfigBoard     = Is<&EVT_MAIN_MEMORY_CONFIG_ERR::bCartridgeOrBoard>(0);
constexpr Argument kConfigSlot       = Field<&EVT_MAIN_MEMORY_CONFIG_ERR::bSlot, Byte2Str>;
constexpr Argument kConfigModule     = Field<&EVT_MAIN_MEMORY_CONFIG_ERR::bModule, Byte2Str>;

constexpr uint8_t kNotIsolated = 0x01;  // bNotIsolated's place in flags

constexpr Argument kDiagBoard  = Field<&EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG::bBoard, BoardPrefix>;
constexpr Argument kDiagModule = Field<&EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG::bModule, PlainByte>;
constexpr Argument kDiagSerial = Field<&EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG::szSerialNumber, SerialNumber>;
constexpr Argument kDiagSpare  = Field<&EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG::szSerialNumber, SpareNumber>;

void TranslateMainMemRomDiagFail(Bytes pEventData, TextWriter& out) {
    static constexpr EventRow kEvent[] = {
        {18, {Is<&EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG::flags>(0, kNotIsolated)},
         "Uncorrectable Memory Error detected by ROM-based memory validation (%sMemory Module %s%s%s)",
         {kDiagBoard, kDiagModule, kDiagSerial, kDiagSpare}},
        {18, {}, "Uncorrectable Memory Error detected by ROM-based memory validation "
                 "(unable to isolate to single module) (%sMemory Module %s%s%s)",
         {kDiagBoard, kDiagModule, kDiagSerial, kDiagSpare}},
    };
    static_assert(WellFormed<kEvent>());
    PrintEvent(kEvent, 18, pEventData, out);
}

void TranslateSuspects(Bytes payload, TextWriter& out);

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

    {3, {}, "%s", {Whole(TranslateSuspects)}},

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

    {7, {Is<&EVT_MAIN_MEMORY_CONFIG_CHG::bAction>(0)}, "Memory Added (Size %s MB)",
     {Field<&EVT_MAIN_MEMORY_CONFIG_CHG::ulSize, Dword2Str>}},
    {7, {Is<&EVT_MAIN_MEMORY_CONFIG_CHG::bAction>(1)}, "Memory Successfully Removed", {}},

    {8, {kSpareBoard},
     "Online Spare Memory Copy Process Started for Faulty Module (System Memory, Memory Module %s)",
     {kSpareModule}},
    {8, {}, "Online Spare Memory Copy Process Started for Faulty Module (Slot %s, Memory Module %s)",
     {kSpareSlot, kSpareModule}},

    {9, {kMirrorBoard}, "Mirrored Memory Engaged for Faulty Module (System Memory, Memory Module %s)",
     {kMirrorModule}},
    {9, {}, "Mirrored Memory Engaged for Faulty Module (Slot %s, Memory Module %s)",
     {kMirrorSlot, kMirrorModule}},

    {10, {kNoSlot, kNoModule}, "Corrected Memory Error threshold exceeded (Bank Unknown%s)", {kSerial}},
    {10, {kBoard, kNoModule},  "Corrected Memory Error threshold exceeded (System Memory%s)", {kSerial}},
    {10, {kBoard}, "Corrected Memory Error threshold exceeded (System Memory, Bank %s%s)", {kBank, kSerial}},
    {10, {},       "Corrected Memory Error threshold exceeded (Slot %s, Bank %s%s)", {kSlot, kBank, kSerial}},

    {11, {kSpareBoard}, "Online Spare Memory Copy Process Started for Faulty Module (System Memory, Bank %s)",
     {kSpareBank}},
    {11, {}, "Online Spare Memory Copy Process Started for Faulty Module (Slot %s, Bank %s)",
     {kSpareSlot, kSpareBank}},

    {12, {kMirrorBoard}, "Mirrored Memory Engaged for Faulty Module (System Memory, Bank %s)", {kMirrorBank}},
    {12, {}, "Mirrored Memory Engaged for Faulty Module (Slot %s, Bank %s)", {kMirrorSlot, kMirrorBank}},

    {13, {}, "Loss of Mirroring in Memory Subsystem", {}},
    {14, {}, "Online Spare Memory Disabled", {}},
    {15, {}, "Memory Subsystem Not In RAID Mode", {}},
    {16, {}, "Online Spare Memory Switchover Complete", {}},
    {17, {}, "Memory Board Failure (Slot %s)", {Field<&EVT_MAIN_MEMORY_BOARD_FAILURE::bSlot, Byte2Str>}},

    {18, {}, "%s", {Whole(TranslateMainMemRomDiagFail)}},
};
static_assert(WellFormed<kEvents>());

// What follows the first suspect of event 3, which reads as event 2.
constexpr EventRow kFurtherSuspects[] = {
    {2, {kNoSlot, kNoModule}, " or (Module Unknown%s)", {kSerial}},
    {2, {kBoard, kNoModule},  " or (System Memory%s)", {kSerial}},
    {2, {kBoard}, " or (System Memory, Memory Module %s%s)", {kModule, kSerial}},
    {2, {},       " or (Slot %s, Memory Module %s%s)", {kSlot, kModule, kSerial}},
};
static_assert(WellFormed<kFurtherSuspects>());
// clang-format on

// One suspect of several, laid out as EVT_MAIN_MEMORY is, so that the same rows print it.
struct Suspect {
    uint8_t bSlot;
    uint8_t bModule;
    char cSerialNumber[kSerialNumberSize];
};
static_assert(offsetof(Suspect, bSlot) == offsetof(EVT_MAIN_MEMORY, bSlot) &&
              offsetof(Suspect, bModule) == offsetof(EVT_MAIN_MEMORY, bModule) &&
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
    PrintEvent(kEvents, wEventCode, pEventData, out);
}

}  // namespace eventstr
