// Classes 4 to 9: cache, processors, buses, expansion slots. An event with an EVT_CHASSIS has one text for
// the server, whose chassis number is 0, and one for an external chassis. The texts don't depend on the
// chassis type.
#include "cli/eventstr/event_table.h"
#include "cli/eventstr/translators.h"
#include "include/event_hardware.h"

namespace eventstr {
namespace {

constexpr EventRow kCacheEvents[] = {
    Row(1, "Accelerator Cache Memory Parity Error (Socket %s)",
        Field<&EVT_CACHE_ACCEL_PARITY_ERROR::bSocket, Byte2Str>),
};

constexpr EventRow kProcessorEvents[] = {
    Row(1, "Processor Correctable error threshold exceeded (Board %s, Processor %s)",
        Field<&EVT_CPU_CORRECTABLE::bSlot, Byte2Str>, Field<&EVT_CPU_CORRECTABLE::bSocket, Byte2Str>),
    Row(2, "Processor Uncorrectable internal error (Board %s, Processor %s)",
        Field<&EVT_CPU_UNCORRECTABLE::bSlot, Byte2Str>, Field<&EVT_CPU_UNCORRECTABLE::bSocket, Byte2Str>),
};

constexpr auto ErrorIs(uint8_t error) {
    return Is<&EVT_HOST_BUS_UNCORRECTABLE::bError>(error);
}

constexpr EventRow kHostBusEvents[] = {
    Row(1, When(ErrorIs(0)), "Unrecoverable Host Bus Address Parity error"),
    Row(1, When(ErrorIs(1)), "Unrecoverable Host Bus Data Parity error"),
    Row(2, "Unrecoverable Intermodule Bus error (Error code %s)",
        Field<&EVT_INTERMODULE_BUS_UNCORRECTABLE::ulError, Dword2HexStr>),
};

constexpr auto kEisaSlot = Field<&EVT_EISA_BUS::bSlot, Byte2Str>;

constexpr EventRow kEisaBusEvents[] = {
    Row(1, "EISA Expansion Bus Master Timeout (Slot %s)", kEisaSlot),
    Row(2, "EISA Expansion Bus Slave Timeout"),
    Row(3, "EISA Expansion Board Error (Slot %s)", kEisaSlot),
    Row(4, "EISA Expansion Bus Arbitration Error"),
};

constexpr auto kPciSlot = Field<&EVT_PCI_BUS::bSlot, Byte2Str>;
constexpr auto kPciBus = Field<&EVT_PCI_BUS::bBus, Byte2Str>;
constexpr auto kPciDevice = Field<&EVT_PCI_BUS::bDevice, Byte2Str>;
constexpr auto kPciFunction = Field<&EVT_PCI_BUS::bFunction, Byte2Str>;

constexpr EventRow kPciBusEvents[] = {
    Row(1, When(kServerItself), "PCI Bus Error (Slot %s, Bus %s, Device %s, Function %s)", kPciSlot, kPciBus,
        kPciDevice, kPciFunction),
    Row(1, "PCI Bus Error (Chassis %s, Slot %s, Bus %s, Device %s, Function %s)", kChassisNumber, kPciSlot,
        kPciBus, kPciDevice, kPciFunction),
};

constexpr auto kSlot = Field<&EVT_EXPANSION_SLOT::bSlot, Byte2Str>;

constexpr EventRow kSlotEvents[] = {
    Row(1, When(kServerItself), "Slot Release Lever Opened (Slot %s)", kSlot),
    Row(1, "Slot Release Lever Opened (Chassis %s, Slot %s)", kChassisNumber, kSlot),
    Row(2, When(kServerItself), "Slot Release Lever Closed (Slot %s)", kSlot),
    Row(2, "Slot Release Lever Closed (Chassis %s, Slot %s)", kChassisNumber, kSlot),
    Row(3, When(kServerItself), "Slot Power On (Slot %s)", kSlot),
    Row(3, "Slot Power On (Chassis %s, Slot %s)", kChassisNumber, kSlot),
    Row(4, When(kServerItself), "Slot Power Off (Slot %s)", kSlot),
    Row(4, "Slot Power Off (Chassis %s, Slot %s)", kChassisNumber, kSlot),
    Row(5, When(kServerItself), "Slot Power Fault (Slot %s)", kSlot),
    Row(5, "Slot Power Fault (Chassis %s, Slot %s)", kChassisNumber, kSlot),
    Row(6, When(kServerItself), "Slot Power Up Fault (Slot %s)", kSlot),
    Row(6, "Slot Power Up Fault (Chassis %s, Slot %s)", kChassisNumber, kSlot),
    Row(7, When(kServerItself), "Unexpected Slot Power Loss (Slot %s)", kSlot),
    Row(7, "Unexpected Slot Power Loss (Chassis %s, Slot %s)", kChassisNumber, kSlot),
    Row(8, When(kServerItself), "Adapter Initialization Failure (Slot %s)", kSlot),
    Row(8, "Adapter Initialization Failure (Chassis %s, Slot %s)", kChassisNumber, kSlot),
    Row(9, When(kServerItself), "Adapter Failure (Slot %s)", kSlot),
    Row(9, "Adapter Failure (Chassis %s, Slot %s)", kChassisNumber, kSlot),
};

}  // namespace

void TranslateClass04(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kCacheEvents>(wEventCode, pEventData, out);
}

void TranslateClass05(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kProcessorEvents>(wEventCode, pEventData, out);
}

void TranslateClass06(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kHostBusEvents>(wEventCode, pEventData, out);
}

void TranslateClass07(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kEisaBusEvents>(wEventCode, pEventData, out);
}

void TranslateClass08(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kPciBusEvents>(wEventCode, pEventData, out);
}

void TranslateClass09(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kSlotEvents>(wEventCode, pEventData, out);
}

}  // namespace eventstr
