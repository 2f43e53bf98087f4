// Classes 17 to 19: network adapters, SCSI, drive arrays. Most of these events have one text for the server,
// whose chassis number is 0, and one for an external chassis. The texts don't depend on the chassis type.
#include "cli/eventstr/event_table.h"
#include "cli/eventstr/translators.h"
#include "include/event_adapters.h"

namespace eventstr {
namespace {

// In these classes EVT_CHASSIS also contains the port or bus number and, for a failed disk, the slot.
constexpr auto kPort = Field<&EVT_CHASSIS::bPort, Byte2Str>;  // port of a network adapter
constexpr auto kBus = Field<&EVT_CHASSIS::bPort, Byte2Str>;   // bus of a disk or its controller
constexpr auto kStorageSlot = kChassisNumber;

constexpr auto kNicSlot = Field<&EVT_NIC_ERROR::bSlot, Byte2Str>;
constexpr auto kNicChassis = Field<&EVT_NIC_ERROR::cChassisName, GetSysChassis>;
constexpr auto kNicExtra = Field<&EVT_NIC_ERROR::cChassisName, SecondExtraText>;

constexpr EventRow kNetworkEvents[] = {
    Row(1, When(kServerItself), "Network Adapter Fault (Slot %s, Port %s)", kNicSlot, kPort),
    Row(1, "Network Adapter Fault (Chassis %s, Slot %s, Port %s)", kNicChassis, kNicSlot, kPort),
    Row(2, When(kServerItself), "Network Adapter Link Down (Slot %s, Port %s)", kNicSlot, kPort),
    Row(2, "Network Adapter Link Down (Chassis %s, Slot %s, Port %s)", kNicChassis, kNicSlot, kPort),
    Row(3, When(kServerItself), "Network Adapter Transmit Timeout (Slot %s, Port %s)", kNicSlot, kPort),
    Row(3, "Network Adapter Transmit Timeout (Chassis %s, Slot %s, Port %s)", kNicChassis, kNicSlot, kPort),
    Row(4, When(kServerItself), "Network Adapters No Longer Redundant (Slot %s, Port %s)",
        Field<&EVT_NICS_NOT_REDUNDANT::bSlot, Byte2Str>, kPort),
    Row(4, "Network Adapters No Longer Redundant (Chassis %s, Slot %s, Port %s)",
        Field<&EVT_NICS_NOT_REDUNDANT::cChassisName, GetSysChassis>,
        Field<&EVT_NICS_NOT_REDUNDANT::bSlot, Byte2Str>, kPort),
    Row(5, When(kServerItself), "Network Adapters Redundancy Reduced (Slot %s, Port %s)", kNicSlot, kPort),
    Row(5, "Network Adapters Redundancy Reduced (Chassis %s, Slot %s, Port %s)", kNicChassis, kNicSlot,
        kPort),
    Row(6, When(kServerItself), "Network Adapter Link Down (Slot %s, Port %s)%s", kNicSlot, kPort, kNicExtra),
    Row(6, "Network Adapter Link Down (Chassis %s, Slot %s, Port %s)%s", kNicChassis, kNicSlot, kPort,
        kNicExtra),
    Row(7, When(kServerItself), "Network Adapters Redundancy Reduced (Slot %s, Port %s)%s", kNicSlot, kPort,
        kNicExtra),
    Row(7, "Network Adapters Redundancy Reduced (Chassis %s, Slot %s, Port %s)%s", kNicChassis, kNicSlot,
        kPort, kNicExtra),
};

constexpr EventRow kScsiEvents[] = {
    Row(1, When(kServerItself), "SCSI Controller Failure (Slot %s)",
        Field<&EVT_SCSI_CTRL_FAILURE::bSlot, Byte2Str>),
    Row(1, "SCSI Controller Failure (Chassis %s, Slot %s)",
        Field<&EVT_SCSI_CTRL_FAILURE::cChassisName, GetSysChassis>,
        Field<&EVT_SCSI_CTRL_FAILURE::bSlot, Byte2Str>),
    Row(2, "SCSI Device Failure (%sSlot %s, Bus %s, Bay %s)",
        Field<&EVT_SCSI_DEVICE_FAILURE::cChassisName, GetStorChassis>, kStorageSlot, kBus,
        Field<&EVT_SCSI_DEVICE_FAILURE::bBay, Byte2Str>),
    Row(3, When(kServerItself), "SCSI Controllers No Longer Redundant"),
    Row(3, "SCSI Controllers No Longer Redundant (Chassis %s)",
        Field<&EVT_SCSI_CTRLS_NOT_REDUNDANT::cChassisName, GetSysChassis>),
};

// The rows of the SAS events have the documented names of their translators.
constexpr EventRow TranslateDevFailureSAS =
    Row(7, "%s SAS Enclosure Device Failure (Bay %s, Box %s, Port %s, %s)",
        Field<&EVT_CHASSIS::bType, GetInternalExternal>, Field<&EVT_SAS_ARRAY_DEV_FAILURE::bBay, PlainByte>,
        Field<&EVT_SAS_ARRAY_DEV_FAILURE::bBox, PlainByte>,
        Field<&EVT_SAS_ARRAY_DEV_FAILURE::szPortID, GetSASPort>,
        Field<&EVT_SAS_ARRAY_DEV_FAILURE::szChassis_Sun, GetSlotChassisSun>);
constexpr EventRow TranslatePhyFailureSAS = Row(
    8, "%s SAS Enclosure PHY Link Error (PHY %s, Expander %s, Box %s, Port %s, %s)",
    Field<&EVT_CHASSIS::bType, GetInternalExternal>,
    Field<&EVT_SAS_ARRAY_PHY_ERROR::bExpanderPhyNumber, PlainByte>,
    Field<&EVT_SAS_ARRAY_PHY_ERROR::bExpanderNumber, PlainByte>,
    Field<&EVT_SAS_ARRAY_PHY_ERROR::bBox, PlainByte>, Field<&EVT_SAS_ARRAY_PHY_ERROR::szPortID, GetSASPort>,
    Field<&EVT_SAS_ARRAY_PHY_ERROR::szChassis_Sun, GetSlotChassisSun>);

constexpr EventRow kArrayEvents[] = {
    Row(1, When(kServerItself), "Drive Array Controller Failure (Slot %s)",
        Field<&EVT_ARRAY_CTRL_FAILURE::bSlot, Byte2Str>),
    Row(1, "Drive Array Controller Failure (Chassis %s, Slot %s)",
        Field<&EVT_ARRAY_CTRL_FAILURE::cChassisName, GetSysChassis>,
        Field<&EVT_ARRAY_CTRL_FAILURE::bSlot, Byte2Str>),
    Row(2, "Drive Array Device Failure (%sSlot %s, Bus %s, Bay %s)",
        Field<&EVT_ARRAY_DEV_FAILURE::cChassisName, GetStorChassis>, kStorageSlot, kBus,
        Field<&EVT_ARRAY_DEV_FAILURE::bBay, Byte2Str>),
    Row(3, When(kServerItself), "Drive Array Accelerator Battery Failure (Bus %s, Slot %s)", kBus,
        Field<&EVT_ARRAY_ACCEL_FAILURE::bSlot, Byte2Str>),
    Row(3, "Drive Array Accelerator Battery Failure (Chassis %s, Bus %s, Slot %s)",
        Field<&EVT_ARRAY_ACCEL_FAILURE::cChassisName, GetSysChassis>, kBus,
        Field<&EVT_ARRAY_ACCEL_FAILURE::bSlot, Byte2Str>),
    Row(4, When(kServerItself), "Drive Array Controllers No Longer Redundant"),
    Row(4, "Drive Array Controllers No Longer Redundant (Chassis %s)",
        Field<&EVT_ARRAY_CTRLS_NOT_REDUNDANT::cChassisName, GetSysChassis>),
    TranslateDevFailureSAS,
    TranslatePhyFailureSAS,
};

}  // namespace

void TranslateClass11(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kNetworkEvents>(wEventCode, pEventData, out);
}

void TranslateClass12(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kScsiEvents>(wEventCode, pEventData, out);
}

void TranslateClass13(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kArrayEvents>(wEventCode, pEventData, out);
}

}  // namespace eventstr
