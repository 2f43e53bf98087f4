// Classes 10, 13, 14, 20, 32 and 33: POST, server recovery, the operating system, unrecoverable errors, ROM
// flashes and notes.
#include "cli/eventstr/catalogue.h"
#include "include/event_system.h"

namespace eventstr {
namespace {

// clang-format off
constexpr EventRow kPostEvents[] = {
    {1, {}, "POST Error: %s", {Field<&EVT_POST_MESSAGE::cMessage, ReformattedText>}},
};
static_assert(WellFormed<kPostEvents>());

constexpr EventRow kRecoveryEvents[] = {
    {1, {}, "ASR Detected by System ROM", {}},
    {2, {}, "ASR Lockup Detected: %s", {Field<&EVT_ASR_LOCKUP::cMessage, PlainText>}},
    {3, {}, "ASR Reset Limit Detected by System ROM", {}},
};
static_assert(WellFormed<kRecoveryEvents>());

constexpr Condition CauseIs(uint8_t cause) {
    return Is<&EVT_AUTO_SHUTDOWN::bCause>(cause);
}
constexpr Condition kShedComponent = Is<&EVT_OS_PWR_SHED::bZoneType>(kZoneNetworkSlot);
constexpr Condition kShedBlade     = Is<&EVT_OS_PWR_SHED::bZoneType>(kZoneBladeSlot);
constexpr Argument kShedSlot       = Field<&EVT_OS_PWR_SHED::bZoneId, Byte2Str>;

constexpr EventRow kSystemEvents[] = {
    {1, {}, "Kernel Panic (%s)", {Field<&EVT_OS_CRASH::cMessage, PlainText>}},

    {2, {CauseIs(0x01)}, "Automatic Operating System Shutdown Initiated Due to Fan Failure", {}},
    {2, {CauseIs(0x02)}, "Automatic Operating System Shutdown Initiated Due to Overheat Condition", {}},
    {2, {CauseIs(0x03)}, "Automatic Operating System Shutdown Initiated Due to VRM Failure", {}},
    {2, {CauseIs(0x81)}, "Automatic Operating System Shutdown Aborted", {}},
    {2, {CauseIs(0x82)}, "Automatic Operating System Shutdown Due to Fan Failure Aborted", {}},
    {2, {CauseIs(0x83)}, "Automatic Operating System Shutdown Due to Overheat Aborted", {}},
    {2, {CauseIs(0x84)}, "Automatic Operating System Shutdown Due to VRM Failure Aborted", {}},
    {2, {CauseIs(0x85)}, "Automatic Operating System Shutdown Initiated by a Soft Power Down", {}},
    {2, {CauseIs(0x86)},
     "Automatic Operating System Shutdown Initiated by Software Automatic Server Recovery", {}},

    {3, {}, "Fatal Exception (Number %s, Cause %s)",
     {Field<&EVT_OS_FATAL_EXCEPTION::bException, Byte2Str>,
      Field<&EVT_OS_FATAL_EXCEPTION::cCause, PlainText>}},

    {4, {}, "User Initiated Kernel Panic", {}},

    {5, {kShedComponent},
     "Server Blade Enclosure Network Component Shutdown Via Power Management Software (Slot %s)",
     {kShedSlot}},
    {5, {kShedBlade}, "Server Blade Enclosure Blade Shutdown Via Power Management Software (Slot %s)",
     {kShedSlot}},

    {6, {}, "Remotely Initiated Kernel Panic", {}},
};
static_assert(WellFormed<kSystemEvents>());

constexpr EventRow kUnrecoverableEvents[] = {
    {1, {}, "An Unrecoverable System Error (NMI) has occurred", {}},
    {2, {}, "An Unrecoverable System Error (BINIT) has occurred", {}},
    {3, {}, "An Unrecoverable System Error has occurred (Error code %s, %s)",
     {Field<&EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA::ulDataLow, Dword2HexStr>,
      Field<&EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA::ulDataHigh, Dword2HexStr>}},
};
static_assert(WellFormed<kUnrecoverableEvents>());

constexpr EventRow kRevisionEvents[] = {
    {1, {}, "ROM flashed (%s)", {Field<&EVT_ROM_FLASH_OCCURRED::cText, PlainText>}},
};
static_assert(WellFormed<kRevisionEvents>());

constexpr EventRow kNotes[] = {
    {1, {}, "HLOG Cleared (%s)", {Field<&EVT_MAINTENANCE_INFO::cText, PlainText>}},
    {2, {}, "%s", {Field<&EVT_MAINTENANCE_INFO::cText, PlainText>}},
};
static_assert(WellFormed<kNotes>());
// clang-format on

}  // namespace

void TranslateClass0A(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kPostEvents, wEventCode, pEventData, out);
}

void TranslateClass0D(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kRecoveryEvents, wEventCode, pEventData, out);
}

void TranslateClass0E(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kSystemEvents, wEventCode, pEventData, out);
}

void TranslateClass14(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kUnrecoverableEvents, wEventCode, pEventData, out);
}

void TranslateClass20(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kRevisionEvents, wEventCode, pEventData, out);
}

void TranslateClass21(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kNotes, wEventCode, pEventData, out);
}

}  // namespace eventstr
