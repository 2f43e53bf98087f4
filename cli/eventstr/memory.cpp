// Class 3, main memory.
#include "cli/eventstr/event_table.h"
#include "cli/eventstr/translators.h"
#include "include/event_memory.h"

namespace eventstr {
namespace {

constexpr size_t kMaxSuspects = 4;
constexpr size_t kSerialNumberSize = 80;  // bytes, including the NUL terminator

constexpr uint8_t kSystemMemory = 0;  // slot number of the memory on the system board
constexpr uint8_t kNotKnown = 255;

constexpr auto kNoSlot = Is<&EVT_MAIN_MEMORY::bSlot>(kNotKnown);
constexpr auto kBoard = Is<&EVT_MAIN_MEMORY::bSlot>(kSystemMemory);
constexpr auto kNoModule = Is<&EVT_MAIN_MEMORY::bModule>(kNotKnown);
constexpr auto kSlot = Field<&EVT_MAIN_MEMORY::bSlot, Byte2Str>;
constexpr auto kModule = Field<&EVT_MAIN_MEMORY::bModule, Byte2Str>;
constexpr auto kBank = Field<&EVT_MAIN_MEMORY::bModule, Char2Str>;
constexpr auto kSerial = Field<&EVT_MAIN_MEMORY::cSerialNumber, SerialNumber>;

constexpr auto kSpareBoard = Is<&EVT_MAIN_MEMORY_SPARE_ENGAGED::bSlot>(kSystemMemory);
constexpr auto kSpareSlot = Field<&EVT_MAIN_MEMORY_SPARE_ENGAGED::bSlot, Byte2Str>;
constexpr auto kSpareModule = Field<&EVT_MAIN_MEMORY_SPARE_ENGAGED::bModule, Byte2Str>;
constexpr auto kSpareBank = Field<&EVT_MAIN_MEMORY_SPARE_ENGAGED::bModule, Char2Str>;

constexpr auto kMirrorBoard = Is<&EVT_MAIN_MEMORY_MIRROR_ENGAGED::bSlot>(kSystemMemory);
constexpr auto kMirrorSlot = Field<&EVT_MAIN_MEMORY_MIRROR_ENGAGED::bSlot, Byte2Str>;
constexpr auto kMirrorModule = Field<&EVT_MAIN_MEMORY_MIRROR_ENGAGED::bModule, Byte2Str>;
constexpr auto kMirrorBank = Field<&EVT_MAIN_MEMORY_MIRROR_ENGAGED::bModule, Char2Str>;

constexpr auto ActionIs(uint8_t action) {
    return Is<&EVT_MAIN_MEMORY_USER_ACTION::bAction>(action);
}
constexpr auto kActionOnCartridge = Is<&EVT_MAIN_MEMORY_USER_ACTION::bCartridgeOrBoard>(1);
constexpr auto kActionOnBoard = Is<&EVT_MAIN_MEMORY_USER_ACTION::bCartridgeOrBoard>(0);
constexpr auto kActionSlot = Field<&EVT_MAIN_MEMORY_USER_ACTION::bSlot, Byte2Str>;

constexpr auto StatusIs(uint8_t status) {
    return Is<&EVT_MAIN_MEMORY_HW_STATUS::bStatus>(status);
}
constexpr auto kStatusSlot = Field<&EVT_MAIN_MEMORY_HW_STATUS::bSlot, Byte2Str>;

constexpr auto kConfigCartridge = Is<&EVT_MAIN_MEMORY_CONFIG_ERR::bCartridgeOrBoard>(1);
constexpr auto kConfigBoard = Is<&EVT_MAIN_MEMORY_CONFIG_ERR::bCartridgeOrBoard>(0);
constexpr auto kConfigSlot = Field<&EVT_MAIN_MEMORY_CONFIG_ERR::bSlot, Byte2Str>;
constexpr auto kConfigModule = Field<&EVT_MAIN_MEMORY_CONFIG_ERR::bModule, Byte2Str>;

constexpr uint8_t kNotIsolated = 0x01;  // mask of the bit bNotIsolated in the byte `flags`

constexpr auto kDiagBoard = Field<&EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG::bBoard, BoardPrefix>;
constexpr auto kDiagModule = Field<&EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG::bModule, PlainByte>;
constexpr auto kDiagSerial = Field<&EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG::szSerialNumber, SerialNumber>;
constexpr auto kDiagSpare = Field<&EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG::szSerialNumber, SpareNumber>;

void TranslateSuspects(Bytes payload, TextWriter& out);

// The event of the ROM's memory test. The first row applies if the test isolated the error to one module.
constexpr EventRow TranslateMainMemRomDiagFail[] = {
    Row(18, When(Is<&EVT_MAIN_MEMORY_FAIL_IN_ROM_DIAG::flags>(0, kNotIsolated)),
        "Uncorrectable Memory Error detected by ROM-based memory validation (%sMemory Module %s%s%s)",
        kDiagBoard, kDiagModule, kDiagSerial, kDiagSpare),
    Row(18,
        "Uncorrectable Memory Error detected by ROM-based memory validation "
        "(unable to isolate to single module) (%sMemory Module %s%s%s)",
        kDiagBoard, kDiagModule, kDiagSerial, kDiagSpare),
};

constexpr EventRow kEvents[] = {
    Row(1, When(kNoSlot, kNoModule), "Corrected Memory Error threshold exceeded (Memory Module Unknown%s)",
        kSerial),
    Row(1, When(kBoard, kNoModule), "Corrected Memory Error threshold exceeded (System Memory%s)", kSerial),
    Row(1, When(kBoard), "Corrected Memory Error threshold exceeded (System Memory, Memory Module %s%s)",
        kModule, kSerial),
    Row(1, "Corrected Memory Error threshold exceeded (Slot %s, Memory Module %s%s)", kSlot, kModule,
        kSerial),

    Row(2, When(kNoSlot, kNoModule), "Uncorrectable Memory Error (Module Unknown%s)", kSerial),
    Row(2, When(kBoard, kNoModule), "Uncorrectable Memory Error (System Memory%s)", kSerial),
    Row(2, When(kBoard), "Uncorrectable Memory Error (System Memory, Memory Module %s%s)", kModule, kSerial),
    Row(2, "Uncorrectable Memory Error (Slot %s, Memory Module %s%s)", kSlot, kModule, kSerial),

    Row(3, "%s", Argument<EVT_MAIN_MEMORY_MULTI>{TranslateSuspects}),

    Row(4, When(ActionIs(0), kActionOnCartridge), "Memory Cartridge Removed (Slot %s)", kActionSlot),
    Row(4, When(ActionIs(0), kActionOnBoard), "Memory Board Removed (Slot %s)", kActionSlot),
    Row(4, When(ActionIs(1), kActionOnCartridge), "Memory Cartridge Inserted (Slot %s)", kActionSlot),
    Row(4, When(ActionIs(1), kActionOnBoard), "Memory Board Inserted (Slot %s)", kActionSlot),
    Row(4, When(ActionIs(2)), "Memory Cartridge Unlocked (Slot %s)", kActionSlot),
    Row(4, When(ActionIs(3)), "Memory Cartridge Locked (Slot %s)", kActionSlot),

    Row(5, When(StatusIs(0)), "Memory Cartridge Bus Fault (Slot %s)", kStatusSlot),
    Row(5, When(StatusIs(1)), "Memory Cartridge Power Fault (Slot %s)", kStatusSlot),
    Row(5, When(StatusIs(2)), "Memory Cartridge Not Redundant (Slot %s)", kStatusSlot),
    Row(5, When(StatusIs(3)), "Memory Cartridge Online (Slot %s)", kStatusSlot),

    Row(6, When(kConfigCartridge), "Memory Cartridge Configuration Error (Slot %s, Memory Module %s)",
        kConfigSlot, kConfigModule),
    Row(6, When(kConfigBoard), "Memory Board Configuration Error (Slot %s, Memory Module %s)", kConfigSlot,
        kConfigModule),

    Row(7, When(Is<&EVT_MAIN_MEMORY_CONFIG_CHG::bAction>(0)), "Memory Added (Size %s MB)",
        Field<&EVT_MAIN_MEMORY_CONFIG_CHG::ulSize, Dword2Str>),
    Row(7, When(Is<&EVT_MAIN_MEMORY_CONFIG_CHG::bAction>(1)), "Memory Successfully Removed"),

    Row(8, When(kSpareBoard),
        "Online Spare Memory Copy Process Started for Faulty Module (System Memory, Memory Module %s)",
        kSpareModule),
    Row(8, "Online Spare Memory Copy Process Started for Faulty Module (Slot %s, Memory Module %s)",
        kSpareSlot, kSpareModule),

    Row(9, When(kMirrorBoard), "Mirrored Memory Engaged for Faulty Module (System Memory, Memory Module %s)",
        kMirrorModule),
    Row(9, "Mirrored Memory Engaged for Faulty Module (Slot %s, Memory Module %s)", kMirrorSlot,
        kMirrorModule),

    Row(10, When(kNoSlot, kNoModule), "Corrected Memory Error threshold exceeded (Bank Unknown%s)", kSerial),
    Row(10, When(kBoard, kNoModule), "Corrected Memory Error threshold exceeded (System Memory%s)", kSerial),
    Row(10, When(kBoard), "Corrected Memory Error threshold exceeded (System Memory, Bank %s%s)", kBank,
        kSerial),
    Row(10, "Corrected Memory Error threshold exceeded (Slot %s, Bank %s%s)", kSlot, kBank, kSerial),

    Row(11, When(kSpareBoard),
        "Online Spare Memory Copy Process Started for Faulty Module (System Memory, Bank %s)", kSpareBank),
    Row(11, "Online Spare Memory Copy Process Started for Faulty Module (Slot %s, Bank %s)", kSpareSlot,
        kSpareBank),

    Row(12, When(kMirrorBoard), "Mirrored Memory Engaged for Faulty Module (System Memory, Bank %s)",
        kMirrorBank),
    Row(12, "Mirrored Memory Engaged for Faulty Module (Slot %s, Bank %s)", kMirrorSlot, kMirrorBank),

    Row(13, "Loss of Mirroring in Memory Subsystem"),
    Row(14, "Online Spare Memory Disabled"),
    Row(15, "Memory Subsystem Not In RAID Mode"),
    Row(16, "Online Spare Memory Switchover Complete"),
    Row(17, "Memory Board Failure (Slot %s)", Field<&EVT_MAIN_MEMORY_BOARD_FAILURE::bSlot, Byte2Str>),

    TranslateMainMemRomDiagFail[0],
    TranslateMainMemRomDiagFail[1],
};

// The texts for the second to fourth suspect of event 3. The first suspect is printed like event 2.
constexpr EventRow kFurtherSuspects[] = {
    Row(2, When(kNoSlot, kNoModule), " or (Module Unknown%s)", kSerial),
    Row(2, When(kBoard, kNoModule), " or (System Memory%s)", kSerial),
    Row(2, When(kBoard), " or (System Memory, Memory Module %s%s)", kModule, kSerial),
    Row(2, " or (Slot %s, Memory Module %s%s)", kSlot, kModule, kSerial),
};

// A suspect of event 3, with its serial number. It has the layout of EVT_MAIN_MEMORY, so that the same rows
// can print it.
struct Suspect {
    uint8_t bSlot;
    uint8_t bModule;
    char cSerialNumber[kSerialNumberSize];
};
static_assert(offsetof(Suspect, bSlot) == offsetof(EVT_MAIN_MEMORY, bSlot) &&
              offsetof(Suspect, bModule) == offsetof(EVT_MAIN_MEMORY, bModule) &&
              offsetof(Suspect, cSerialNumber) == offsetof(EVT_MAIN_MEMORY, cSerialNumber));

// Splits `serials` at its commas and assigns the serial numbers to the suspects.
void SetSerialNumbers(Suspect (&suspects)[kMaxSuspects], std::string_view serials) {
    for (Suspect& suspect : suspects) {
        const size_t comma = serials.find(',');
        TextWriter serial(suspect.cSerialNumber, sizeof suspect.cSerialNumber);
        CopyAndReformat(serial, serials.substr(0, comma));
        if (comma == serials.npos) return;
        serials.remove_prefix(comma + 1);
    }
}

// Prints event 3: the modules that may have caused the error. Prints the first one even if the record's count
// is 0.
void TranslateSuspects(Bytes payload, TextWriter& out) {
    Suspect suspects[kMaxSuspects] = {};
    SetSerialNumbers(suspects, ReadText(payload, offsetof(EVT_MAIN_MEMORY_MULTI, cSerialNumber)));

    const auto count = ReadPaddedField<uint8_t>(payload, offsetof(EVT_MAIN_MEMORY_MULTI, bResolution));
    for (size_t i = 0; i < kMaxSuspects && (i == 0 || i < count); ++i) {
        const size_t single = offsetof(EVT_MAIN_MEMORY_MULTI, mm) + i * sizeof(EVT_MEM_SINGLE);
        suspects[i].bSlot = ReadPaddedField<uint8_t>(payload, single + offsetof(EVT_MEM_SINGLE, bSlot));
        suspects[i].bModule = ReadPaddedField<uint8_t>(payload, single + offsetof(EVT_MEM_SINGLE, bModule));

        const Bytes suspect = {reinterpret_cast<const uint8_t*>(&suspects[i]), sizeof(Suspect)};
        if (i == 0) {
            PrintEvent<kEvents>(2, suspect, out);
        } else {
            PrintEvent<kFurtherSuspects>(2, suspect, out);
        }
    }
}

}  // namespace

void TranslateClass03(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kEvents>(wEventCode, pEventData, out);
}

}  // namespace eventstr
