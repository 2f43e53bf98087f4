// Classes 4 to 9: cache, processors, buses and expansion slots. The events that have a chassis tell the
// server, whose chassis number is 0, from an external one, whatever the chassis type.
#include "cli/eventstr/catalogue.h"
#include "include/event_hardware.h"

namespace eventstr {
namespace {

// clang-format off
constexpr EventRow kCacheEvents[] = {
    {1, {}, "Accelerator Cache Memory Parity Error (Socket %s)",
     {Field<&EVT_CACHE_ACCEL_PARITY_ERROR::bSocket, Byte2Str>}},
};
static_assert(WellFormed<kCacheEvents>());

constexpr EventRow kProcessorEvents[] = {
    {1, {}, "Processor Correctable error threshold exceeded (Board %s, Processor %s)",
     {Field<&EVT_CPU_CORRECTABLE::bSlot,   Byte2Str>,
      Field<&EVT_CPU_CORRECTABLE::bSocket, Byte2Str>}},
    {2, {}, "Processor Uncorrectable internal error (Board %s, Processor %s)",
     {Field<&EVT_CPU_UNCORRECTABLE::bSlot,   Byte2Str>,
      Field<&EVT_CPU_UNCORRECTABLE::bSocket, Byte2Str>}},
};
static_assert(WellFormed<kProcessorEvents>());

constexpr Condition ErrorIs(uint8_t error) {
    return Is<&EVT_HOST_BUS_UNCORRECTABLE::bError>(error);
}

constexpr EventRow kHostBusEvents[] = {
    {1, {ErrorIs(0)}, "Unrecoverable Host Bus Address Parity error", {}},
    {1, {ErrorIs(1)}, "Unrecoverable Host Bus Data Parity error", {}},
    {2, {}, "Unrecoverable Intermodule Bus error (Error code %s)",
     {Field<&EVT_INTERMODULE_BUS_UNCORRECTABLE::ulError, Dword2HexStr>}},
};
static_assert(WellFormed<kHostBusEvents>());

constexpr Argument kEisaSlot = Field<&EVT_EISA_BUS::bSlot, Byte2Str>;

constexpr EventRow kEisaBusEvents[] = {
    {1, {}, "EISA Expansion Bus Master Timeout (Slot %s)", {kEisaSlot}},
    {2, {}, "EISA Expansion Bus Slave Timeout", {}},
    {3, {}, "EISA Expansion Board Error (Slot %s)", {kEisaSlot}},
    {4, {}, "EISA Expansion Bus Arbitration Error", {}},
};
static_assert(WellFormed<kEisaBusEvents>());

constexpr Argument kPciSlot     = Field<&EVT_PCI_BUS::bSlot, Byte2Str>;
constexpr Argument kPciBus      = Field<&EVT_PCI_BUS::bBus, Byte2Str>;
constexpr Argument kPciDevice   = Field<&EVT_PCI_BUS::bDevice, Byte2Str>;
constexpr Argument kPciFunction = Field<&EVT_PCI_BUS::bFunction, Byte2Str>;

constexpr EventRow kPciBusEvents[] = {
    {1, {kServerItself}, "PCI Bus Error (Slot %s, Bus %s, Device %s, Function %s)",
     {kPciSlot, kPciBus, kPciDevice, kPciFunction}},
    {1, {}, "PCI Bus Error (Chassis %s, Slot %s, Bus %s, Device %s, Function %s)",
     {kChassisNumber, kPciSlot, kPciBus, kPciDevice, kPciFunction}},
};
static_assert(WellFormed<kPciBusEvents>());

constexpr Argument kSlot = Field<&EVT_EXPANSION_SLOT::bSlot, Byte2Str>;

constexpr EventRow kSlotEvents[] = {
    {1, {kServerItself}, "Slot Release Lever Opened (Slot %s)", {kSlot}},
    {1, {},              "Slot Release Lever Opened (Chassis %s, Slot %s)", {kChassisNumber, kSlot}},
    {2, {kServerItself}, "Slot Release Lever Closed (Slot %s)", {kSlot}},
    {2, {},              "Slot Release Lever Closed (Chassis %s, Slot %s)", {kChassisNumber, kSlot}},
    {3, {kServerItself}, "Slot Power On (Slot %s)", {kSlot}},
    {3, {},              "Slot Power On (Chassis %s, Slot %s)", {kChassisNumber, kSlot}},
    {4, {kServerItself}, "Slot Power Off (Slot %s)", {kSlot}},
    {4, {},              "Slot Power Off (Chassis %s, Slot %s)", {kChassisNumber, kSlot}},
    {5, {kServerItself}, "Slot Power Fault (Slot %s)", {kSlot}},
    {5, {},              "Slot Power Fault (Chassis %s, Slot %s)", {kChassisNumber, kSlot}},
    {6, {kServerItself}, "Slot Power Up Fault (Slot %s)", {kSlot}},
    {6, {},              "Slot Power Up Fault (Chassis %s, Slot %s)", {kChassisNumber, kSlot}},
    {7, {kServerItself}, "Unexpected Slot Power Loss (Slot %s)", {kSlot}},
    {7, {},              "Unexpected Slot Power Loss (Chassis %s, Slot %s)", {kChassisNumber, kSlot}},
    {8, {kServerItself}, "Adapter Initialization Failure (Slot %s)", {kSlot}},
    {8, {},              "Adapter Initialization Failure (Chassis %s, Slot %s)", {kChassisNumber, kSlot}},
    {9, {kServerItself}, "Adapter Failure (Slot %s)", {kSlot}},
    {9, {},              "Adapter Failure (Chassis %s, Slot %s)", {kChassisNumber, kSlot}},
};
static_assert(WellFormed<kSlotEvents>());
// clang-format on

}  // namespace

void TranslateClass04(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kCacheEvents, wEventCode, pEventData, out);
}

void TranslateClass05(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kProcessorEvents, wEventCode, pEventData, out);
}

void TranslateClass06(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kHostBusEvents, wEventCode, pEventData, out);
}

void TranslateClass07(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kEisaBusEvents, wEventCode, pEventData, out);
}

void TranslateClass08(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kPciBusEvents, wEventCode, pEventData, out);
}

void TranslateClass09(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kSlotEvents, wEventCode, pEventData, out);
}

}  // namespace eventstr
