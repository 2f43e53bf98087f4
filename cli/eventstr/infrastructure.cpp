// Class 34: the enclosures of blade servers. Most texts begin with the type of the enclosure. If the chassis
// isn't an enclosure, that type is empty, and the text begins with a space.
#include "cli/eventstr/event_table.h"
#include "cli/eventstr/translators.h"
#include "include/event_infrastructure.h"

namespace eventstr {
namespace {

// The bits of EVT_INF_ENV_FUSE_OPEN::bZoneId.
constexpr uint8_t kFuseNumber = 0x0F;  // number of the slot or the side
constexpr uint8_t kFuseB = 0x10;       // set for fuse B, clear for fuse A

void FuseSlot(uint8_t zone, TextWriter& out) {
    Byte2Str(zone & kFuseNumber, out);
}

const char* FuseSide(uint8_t zone) {
    return GetRackSide(zone & kFuseNumber);
}

const char* FuseLetter(uint8_t zone) {
    return (zone & kFuseB) != 0 ? "B" : "A";
}

constexpr auto kFuseOfComponent = Is<&EVT_INF_ENV_FUSE_OPEN::bZoneType>(kZoneNetworkSlot);
constexpr auto kFuseOfBlade = Is<&EVT_INF_ENV_FUSE_OPEN::bZoneType>(kZoneBladeSlot);
constexpr auto kFuseEnclosure = Field<&EVT_INF_ENV_FUSE_OPEN::cChassisName, GetChassisEx>;
constexpr auto kFuseSlot = Field<&EVT_INF_ENV_FUSE_OPEN::bZoneId, FuseSlot>;
constexpr auto kFuseSide = Field<&EVT_INF_ENV_FUSE_OPEN::bZoneId, FuseSide>;
constexpr auto kFuseLetter = Field<&EVT_INF_ENV_FUSE_OPEN::bZoneId, FuseLetter>;

constexpr auto kInsRemEnclosure = Field<&EVT_INF_ENV_BLADE_INS_REM::cChassisName, GetChassisEx>;
constexpr auto kInsRemBlade = Field<&EVT_INF_ENV_BLADE_INS_REM::bBlade, Byte2Str>;

constexpr auto kBalanceEnclosure = Field<&EVT_INF_ENV_PWR_LOAD_BALANCING::cChassisName, GetChassisEx>;
constexpr auto kDcEnclosure = Field<&EVT_INF_ENV_DC_PWR_PROBLEM::cChassisName, GetChassisEx>;
constexpr auto kDcVoltage = Field<&EVT_INF_ENV_DC_PWR_PROBLEM::wVoltage, PlainWord>;

constexpr auto ChangeIs(uint8_t change) {
    return Is<&EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG::bType>(change);
}
constexpr auto kRackChange = Field<&EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG::bType, PlainHexByte>;
constexpr auto kRackEnclosure = Field<&EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG::cChassisName, GetChassisEx>;

constexpr auto kMisconfigSide = Field<&EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED::bLocation, GetRackSide>;
constexpr auto kMisconfigReason =
    Field<&EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED::bError, GetImproperPowerReason>;
constexpr auto kMisconfigEnclosure = Field<&EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED::cChassisName, GetChassisEx>;

constexpr auto kPartIsComponent = Is<&EVT_INF_ENV_BLADE_INS_REM_2::bZoneType>(kZoneNetworkSlot);
constexpr auto kPartIsBlade = Is<&EVT_INF_ENV_BLADE_INS_REM_2::bZoneType>(kZoneBladeSlot);
constexpr auto kPartSlot = Field<&EVT_INF_ENV_BLADE_INS_REM_2::bZoneId, Byte2Str>;
constexpr auto kPartSide = Field<&EVT_INF_ENV_BLADE_INS_REM_2::bZoneId, GetRackSide>;
constexpr auto kPartEnclosure = Field<&EVT_INF_ENV_BLADE_INS_REM_2::cChassisName, GetChassisEx>;

constexpr EventRow kEvents[] = {
    Row(1, "%s Inadequate Power To Power On: %s (%s, Slot %s)", kEnclosureType,
        Field<&EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON::bReason, GetInadequatePowerReason>,
        Field<&EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON::cChassisName, GetChassisEx>,
        Field<&EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON::bBlade, Byte2Str>),
    Row(2, "%s Blade Manual Power On (%s, Slot %s)", kEnclosureType,
        Field<&EVT_INF_ENV_MANUAL_OVERRIDE::cChassisName, GetChassisEx>,
        Field<&EVT_INF_ENV_MANUAL_OVERRIDE::bBlade, Byte2Str>),
    Row(3, When(kFuseOfComponent), "%s Network Component Fuse or Breaker Tripped (%s, %s, Fuse %s)",
        kEnclosureType, kFuseEnclosure, kFuseSide, kFuseLetter),
    Row(3, When(kFuseOfBlade), "%s Blade Fuse or Breaker Tripped (%s, Slot %s, Fuse %s)", kEnclosureType,
        kFuseEnclosure, kFuseSlot, kFuseLetter),
    Row(4, "%s Blade I2C Bus Fault (%s, Bus %s)", kEnclosureType,
        Field<&EVT_INF_ENV_I2C_FAULT::cChassisName, GetChassisEx>,
        Field<&EVT_INF_ENV_I2C_FAULT::bBus, Byte2Str>),
    Row(5, When(Is<&EVT_INF_ENV_BLADE_INS_REM::bPresent>(0)), "%s Blade Removed (%s, Slot %s)",
        kEnclosureType, kInsRemEnclosure, kInsRemBlade),
    Row(5, "%s Blade Inserted (%s, Slot %s)", kEnclosureType, kInsRemEnclosure, kInsRemBlade),
    // In this event bus A has the number 1, in the next event 0.
    Row(6, When(Is<&EVT_INF_ENV_PWR_LOAD_BALANCING::cSide>(1)), "%s Power Not Balanced (%s, Power Bus A)",
        kEnclosureType, kBalanceEnclosure),
    Row(6, "%s Power Not Balanced (%s, Power Bus B)", kEnclosureType, kBalanceEnclosure),
    Row(7, When(Is<&EVT_INF_ENV_DC_PWR_PROBLEM::cSide>(0)),
        "%s DC Power Out Of Tolerance (%s, Power Bus A, %s mV)", kEnclosureType, kDcEnclosure, kDcVoltage),
    Row(7, "%s DC Power Out Of Tolerance (%s, Power Bus B, %s mV)", kEnclosureType, kDcEnclosure, kDcVoltage),
    Row(8, "%s AC Facility Input Power Exceeded (%s)", kEnclosureType,
        Field<&EVT_INF_ENV_AC_INPUT_PWR_EXCEEDED::cChassisName, GetChassisEx>),
    Row(9, "Loss Of Chassis Connectivity (%s)",
        Field<&EVT_INF_ENV_LOSS_OF_CHASSIS_CONNECTIVITY::cChassisName, GetChassisEx>),
    Row(10, "New Chassis Connected (%s)",
        Field<&EVT_INF_ENV_NEW_CHASSIS_CONNECTIVITY::cChassisName, GetChassisEx>),
    Row(11, When(ChangeIs(1)), "%s Rack Name Changed (%s)", kEnclosureType, kRackEnclosure),
    Row(11, When(ChangeIs(2)), "%s Name Changed (%s)", kEnclosureType, kRackEnclosure),
    Row(11, When(ChangeIs(3)), "%s Service Change (%s)", kEnclosureType, kRackEnclosure),
    Row(11, When(ChangeIs(4)), "%s Rack Name Conflict (%s)", kEnclosureType, kRackEnclosure),
    Row(11, When(ChangeIs(5)), "%s Rack Unique ID Changed (%s)", kEnclosureType, kRackEnclosure),
    Row(11, When(ChangeIs(7)), "%s LAN Settings Changed (%s)", kEnclosureType, kRackEnclosure),
    Row(11, When(ChangeIs(8)), "%s UID LED State Changed (%s)", kEnclosureType, kRackEnclosure),
    Row(11, "%s Rack Infrastructure Changed (%s, Type 0x%s)", kEnclosureType, kRackEnclosure, kRackChange),
    Row(12, "%s Unknown Power Consumption (%s)", kEnclosureType,
        Field<&EVT_INF_ENV_UNKNOWN_PWR_CONSUMPTION::cChassisName, GetChassisEx>),
    Row(13, When(Is<&EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED::bLocation>(0)),
        "%s Power Subsystem Misconfigured: %s (%s)", kEnclosureType, kMisconfigReason, kMisconfigEnclosure),
    Row(13, "%s Power Subsystem Misconfigured: %s (%s, %s)", kEnclosureType, kMisconfigReason, kMisconfigSide,
        kMisconfigEnclosure),
    Row(14, "%s Status Change (%s)", kEnclosureType,
        Field<&EVT_INF_ENV_ENCLOSURE_MGR_STATUS::cChassisName, GetChassisEx>),
    // In this record, bProblem contains the number of the blower.
    Row(15, "%s Blower Fault (%s, Blower %s, %s)", kEnclosureType,
        Field<&EVT_INF_ENV_BLOWER_FAULT::bSide, GetRackSide>,
        Field<&EVT_INF_ENV_BLOWER_FAULT::bProblem, Byte2Str>,
        Field<&EVT_INF_ENV_BLOWER_FAULT::cChassisName, GetChassisEx>),
    Row(16, "%s Blower Removed (%s, Blower %s, %s)", kEnclosureType,
        Field<&EVT_INF_ENV_BLOWER_REMOVED::bSide, GetRackSide>,
        Field<&EVT_INF_ENV_BLOWER_REMOVED::bProblem, Byte2Str>,
        Field<&EVT_INF_ENV_BLOWER_REMOVED::cChassisName, GetChassisEx>),
    Row(17, "%s Ethernet Switch Error - %s (%s, %s)", kEnclosureType,
        Field<&EVT_INF_ENV_ETHERNET_SWITCH_FAULT::bProblem, GetEthSwErr>,
        Field<&EVT_INF_ENV_ETHERNET_SWITCH_FAULT::bSide, GetRackSide>,
        Field<&EVT_INF_ENV_ETHERNET_SWITCH_FAULT::cChassisName, GetChassisEx>),
    Row(18, "%s Power Feed Missing (%s, %s)", kEnclosureType,
        Field<&EVT_INF_ENV_INPUT_PWR_SENSE_ERR::bSide, GetPwrBus>,
        Field<&EVT_INF_ENV_INPUT_PWR_SENSE_ERR::cChassisName, GetChassisEx>),
    Row(19, When(kPartIsComponent), "%s Network Component Inserted (%s, %s)", kEnclosureType, kPartSide,
        kPartEnclosure),
    Row(19, When(kPartIsBlade), "%s Server Blade Inserted (Slot %s, %s)", kEnclosureType, kPartSlot,
        kPartEnclosure),
    Row(20, When(kPartIsComponent), "%s Network Component Removed (%s, %s)", kEnclosureType, kPartSide,
        kPartEnclosure),
    Row(20, When(kPartIsBlade), "%s Server Blade Removed (Slot %s, %s)", kEnclosureType, kPartSlot,
        kPartEnclosure),
    Row(21, "%s Invalid Topology - Check Cabling", kEnclosureType),
    Row(24, "Infrastructure Fault, %s at %s, %s", Field<&EVT_INF_ENV_CHASSIS_ERR::bError, GetInfErrString>,
        Field<&EVT_INF_ENV_CHASSIS_ERR::bLocation, GetInfMainLocation>,
        Field<&EVT_INF_ENV_CHASSIS_ERR::bSubLocation, GetInfSubLocation>),
    Row(25, "Chassis %s requires minimum firmware revision %s.%s. It is currently %s.%s.",
        Field<&EVT_INF_FIRMWARE_MISMATCH::cChassisName, GetChassisEx>,
        Field<&EVT_INF_FIRMWARE_MISMATCH::bRequiredMajor, Byte2Str>,
        Field<&EVT_INF_FIRMWARE_MISMATCH::bRequiredMinor, GetBCDString>,
        Field<&EVT_INF_FIRMWARE_MISMATCH::bCurrentMajor, Byte2Str>,
        Field<&EVT_INF_FIRMWARE_MISMATCH::bCurrentMinor, GetBCDString>),
};

}  // namespace

void TranslateClass22(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent<kEvents>(wEventCode, pEventData, out);
}

}  // namespace eventstr
