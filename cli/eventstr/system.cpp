// Classes 10, 13, 14, 20, 32 and 33: POST, server recovery, operating system, unrecoverable errors, ROM
// flashes, maintenance notes.
#include "cli/eventstr/event_table.h"
#include "cli/eventstr/translators.h"
#include "include/event_system.h"

namespace eventstr {
namespace {

constexpr EventRow kPostEvents[] = {
    Row(1, "POST Error: %s", Field<&EVT_POST_MESSAGE::cMessage, ReformattedText>),
};

constexpr EventRow kRecoveryEvents[] = {
    Row(1, "ASR Detected by System ROM"),
    Row(2, "ASR Lockup Detected: %s", Field<&EVT_ASR_LOCKUP::cMessage, PlainText>),
    Row(3, "ASR Reset Limit Detected by System ROM"),
};

constexpr auto CauseIs(uint8_t cause) {
    return Is<&EVT_AUTO_SHUTDOWN::bCause>(cause);
}
constexpr auto kShedComponent = Is<&EVT_OS_PWR_SHED::bZoneType>(kZoneNetworkSlot);
constexpr auto kShedBlade = Is<&EVT_OS_PWR_SHED::bZoneType>(kZoneBladeSlot);
constexpr auto kShedSlot = Field<&EVT_OS_PWR_SHED::bZoneId, Byte2Str>;

constexpr EventRow kSystemEvents[] = {
    Row(1, "Kernel Panic (%s)", Field<&EVT_OS_CRASH::cMessage, PlainText>),

    Row(2, When(CauseIs(0x01)), "Automatic Operating System Shutdown Initiated Due to Fan Failure"),
    Row(2, When(CauseIs(0x02)), "Automatic Operating System Shutdown Initiated Due to Overheat Condition"),
    Row(2, When(CauseIs(0x03)), "Automatic Operating System Shutdown Initiated Due to VRM Failure"),
    Row(2, When(CauseIs(0x81)), "Automatic Operating System Shutdown Aborted"),
    Row(2, When(CauseIs(0x82)), "Automatic Operating System Shutdown Due to Fan Failure Aborted"),
    Row(2, When(CauseIs(0x83)), "Automatic Operating System Shutdown Due to Overheat Aborted"),
    Row(2, When(CauseIs(0x84)), "Automatic Operating System Shutdown Due to VRM Failure Aborted"),
    Row(2, When(CauseIs(0x85)), "Automatic Operating System Shutdown Initiated by a Soft Power Down"),
    Row(2, When(CauseIs(0x86)),
        "Automatic Operating System Shutdown Initiated by Software Automatic Server Recovery"),

    Row(3, "Fatal Exception (Number %s, Cause %s)", Field<&EVT_OS_FATAL_EXCEPTION::bException, Byte2Str>,
        Field<&EVT_OS_FATAL_EXCEPTION::cCause, PlainText>),

    Row(4, "User Initiated Kernel Panic"),

    Row(5, When(kShedComponent),
        "Server Blade Enclosure Network Component Shutdown Via Power Management Software (Slot %s)",
        kShedSlot),
    Row(5, When(kShedBlade), "Server Blade Enclosure Blade Shutdown Via Power Management Software (Slot %s)",
        kShedSlot),

    Row(6, "Remotely Initiated Kernel Panic"),
};

constexpr EventRow kUnrecoverableEvents[] = {
    Row(1, "An Unrecoverable System Error (NMI) has occurred"),
    Row(2, "An Unrecoverable System Error (BINIT) has occurred"),
    Row(3, "An Unrecoverable System Error has occurred (Error code %s, %s)",
        Field<&EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA::ulDataLow, Dword2HexStr>,
        Field<&EVT_UNRECOV_NMI_OR_BINIT_PLUS_DATA::ulDataHigh, Dword2HexStr>),
};

constexpr EventRow kRevisionEvents[] = {
    Row(1, "ROM flashed (%s)", Field<&EVT_ROM_FLASH_OCCURRED::cText, PlainText>),
};

constexpr EventRow kNotes[] = {
    Row(1, "HLOG Cleared (%s)", Field<&EVT_MAINTENANCE_INFO::cText, PlainText>),
    Row(2, "%s", Field<&EVT_MAINTENANCE_INFO::cText, PlainText>),
};

}  // namespace

void TranslateClass0A(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kPostEvents>(wEventCode, pEventData, out);
}

void TranslateClass0D(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kRecoveryEvents>(wEventCode, pEventData, out);
}

void TranslateClass0E(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kSystemEvents>(wEventCode, pEventData, out);
}

void TranslateClass14(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kUnrecoverableEvents>(wEventCode, pEventData, out);
}

void TranslateClass20(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kRevisionEvents>(wEventCode, pEventData, out);
}

void TranslateClass21(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kNotes>(wEventCode, pEventData, out);
}

}  // namespace eventstr
