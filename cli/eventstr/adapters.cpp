// Classes 17 to 19: network adapters, SCSI and drive arrays. Most of their events tell the server, whose
// chassis number is 0, from an external chassis, whatever the chassis type.
#include "cli/eventstr/catalogue.h"
#include "include/event_adapters.h"

namespace eventstr {
namespace {

// clang-format off
// In these classes the chassis also carries the port or bus number and, for a failed disk, the slot.
constexpr Argument kPort = Field<&EVT_CHASSIS::bPort, Byte2Str>;    // of a network adapter
constexpr Argument kBus  = Field<&EVT_CHASSIS::bPort, Byte2Str>;    // of a disk or its controller
constexpr Argument kStorageSlot = kChassisNumber;

constexpr Argument kNicSlot    = Field<&EVT_NIC_ERROR::bSlot, Byte2Str>;
constexpr Argument kNicChassis = Field<&EVT_NIC_ERROR::cChassisName, GetSysChassis>;
constexpr Argument kNicExtra   = Field<&EVT_NIC_ERROR::cChassisName, SecondExtraText>;

constexpr EventRow kNetworkEvents[] = {
    {1, {kServerItself}, "Network Adapter Fault (Slot %s, Port %s)", {kNicSlot, kPort}},
    {1, {},              "Network Adapter Fault (Chassis %s, Slot %s, Port %s)",
     {kNicChassis, kNicSlot, kPort}},
    {2, {kServerItself}, "Network Adapter Link Down (Slot %s, Port %s)", {kNicSlot, kPort}},
    {2, {},              "Network Adapter Link Down (Chassis %s, Slot %s, Port %s)",
     {kNicChassis, kNicSlot, kPort}},
    {3, {kServerItself}, "Network Adapter Transmit Timeout (Slot %s, Port %s)", {kNicSlot, kPort}},
    {3, {},              "Network Adapter Transmit Timeout (Chassis %s, Slot %s, Port %s)",
     {kNicChassis, kNicSlot, kPort}},
    {4, {kServerItself}, "Network Adapters No Longer Redundant (Slot %s, Port %s)",
     {Field<&EVT_NICS_NOT_REDUNDANT::bSlot, Byte2Str>, kPort}},
    {4, {},              "Network Adapters No Longer Redundant (Chassis %s, Slot %s, Port %s)",
     {Field<&EVT_NICS_NOT_REDUNDANT::cChassisName, GetSysChassis>,
      Field<&EVT_NICS_NOT_REDUNDANT::bSlot, Byte2Str>, kPort}},
    {5, {kServerItself}, "Network Adapters Redundancy Reduced (Slot %s, Port %s)", {kNicSlot, kPort}},
    {5, {},              "Network Adapters Redundancy Reduced (Chassis %s, Slot %s, Port %s)",
     {kNicChassis, kNicSlot, kPort}},
    {6, {kServerItself}, "Network Adapter Link Down (Slot %s, Port %s)%s",
     {kNicSlot, kPort, kNicExtra}},
    {6, {},              "Network Adapter Link Down (Chassis %s, Slot %s, Port %s)%s",
     {kNicChassis, kNicSlot, kPort, kNicExtra}},
    {7, {kServerItself}, "Network Adapters Redundancy Reduced (Slot %s, Port %s)%s",
     {kNicSlot, kPort, kNicExtra}},
    {7, {},              "Network Adapters Redundancy Reduced (Chassis %s, Slot %s, Port %s)%s",
     {kNicChassis, kNicSlot, kPort, kNicExtra}},
};
static_assert(WellFormed<kNetworkEvents>());

constexpr EventRow kScsiEvents[] = {
    {1, {kServerItself}, "SCSI Controller Failure (Slot %s)",
     {Field<&EVT_SCSI_CTRL_FAILURE::bSlot, Byte2Str>}},
    {1, {},              "SCSI Controller Failure (Chassis %s, Slot %s)",
     {Field<&EVT_SCSI_CTRL_FAILURE::cChassisName, GetSysChassis>,
      Field<&EVT_SCSI_CTRL_FAILURE::bSlot, Byte2Str>}},
    {2, {}, "SCSI Device Failure (%sSlot %s, Bus %s, Bay %s)",
     {Field<&EVT_SCSI_DEVICE_FAILURE::cChassisName, GetStorChassis>, kStorageSlot, kBus,
      Field<&EVT_SCSI_DEVICE_FAILURE::bBay, Byte2Str>}},
    {3, {kServerItself}, "SCSI Controllers No Longer Redundant", {}},
    {3, {},              "SCSI Controllers No Longer Redundant (Chassis %s)",
     {Field<&EVT_SCSI_CTRLS_NOT_REDUNDANT::cChassisName, GetSysChassis>}},
};
static_assert(WellFormed<kScsiEvents>());

void TranslateDevFailureSAS(Bytes pEventData, TextWriter& out) {
    static constexpr EventRow kEvent[] = {
        {7, {}, "%s SAS Enclosure Device Failure (Bay %s, Box %s, Port %s, %s)",
         {Field<&EVT_CHASSIS::bType,                       GetInternalExternal>,
          Field<&EVT_SAS_ARRAY_DEV_FAILURE::bBay,          PlainByte>,
          Field<&EVT_SAS_ARRAY_DEV_FAILURE::bBox,          PlainByte>,
          Field<&EVT_SAS_ARRAY_DEV_FAILURE::szPortID,      GetSASPort>,
          Field<&EVT_SAS_ARRAY_DEV_FAILURE::szChassis_Sun, GetSlotChassisSun>}},
    };
    static_assert(WellFormed<kEvent>());
    PrintEvent(kEvent, 7, pEventData, out);
}

void TranslatePhyFailureSAS(Bytes pEventData, TextWriter& out) {
    static constexpr EventRow kEvent[] = {
        {8, {}, "%s SAS Enclosure PHY Link Error (PHY %s, Expander %s, Box %s, Port %s, %s)",
         {Field<&EVT_CHASSIS::bType,                          GetInternalExternal>,
          Field<&EVT_SAS_ARRAY_PHY_ERROR::bExpanderPhyNumber, PlainByte>,
          Field<&EVT_SAS_ARRAY_PHY_ERROR::bExpanderNumber,    PlainByte>,
          Field<&EVT_SAS_ARRAY_PHY_ERROR::bBox,               PlainByte>,
          Field<&EVT_SAS_ARRAY_PHY_ERROR::szPortID,           GetSASPort>,
          Field<&EVT_SAS_ARRAY_PHY_ERROR::szChassis_Sun,      GetSlotChassisSun>}},
    };
    static_assert(WellFormed<kEvent>());
    PrintEvent(kEvent, 8, pEventData, out);
}

constexpr EventRow kArrayEvents[] = {
    {1, {kServerItself}, "Drive Array Controller Failure (Slot %s)",
     {Field<&EVT_ARRAY_CTRL_FAILURE::bSlot, Byte2Str>}},
    {1, {},              "Drive Array Controller Failure (Chassis %s, Slot %s)",
     {Field<&EVT_ARRAY_CTRL_FAILURE::cChassisName, GetSysChassis>,
      Field<&EVT_ARRAY_CTRL_FAILURE::bSlot, Byte2Str>}},
    {2, {}, "Drive Array Device Failure (%sSlot %s, Bus %s, Bay %s)",
     {Field<&EVT_ARRAY_DEV_FAILURE::cChassisName, GetStorChassis>, kStorageSlot, kBus,
      Field<&EVT_ARRAY_DEV_FAILURE::bBay, Byte2Str>}},
    {3, {kServerItself}, "Drive Array Accelerator Battery Failure (Bus %s, Slot %s)",
     {kBus, Field<&EVT_ARRAY_ACCEL_FAILURE::bSlot, Byte2Str>}},
    {3, {},              "Drive Array Accelerator Battery Failure (Chassis %s, Bus %s, Slot %s)",
     {Field<&EVT_ARRAY_ACCEL_FAILURE::cChassisName, GetSysChassis>, kBus,
      Field<&EVT_ARRAY_ACCEL_FAILURE::bSlot, Byte2Str>}},
    {4, {kServerItself}, "Drive Array Controllers No Longer Redundant", {}},
    {4, {},              "Drive Array Controllers No Longer Redundant (Chassis %s)",
     {Field<&EVT_ARRAY_CTRLS_NOT_REDUNDANT::cChassisName, GetSysChassis>}},
    {7, {}, "%s", {Whole(TranslateDevFailureSAS)}},
    {8, {}, "%s", {Whole(TranslatePhyFailureSAS)}},
};
static_assert(WellFormed<kArrayEvents>());
// clang-format on

}  // namespace

void TranslateClass11(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kNetworkEvents, wEventCode, pEventData, out);
}

void TranslateClass12(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kScsiEvents, wEventCode, pEventData, out);
}

void TranslateClass13(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kArrayEvents, wEventCode, pEventData, out);
}

}  // namespace eventstr
