// Class 34, the infrastructure that blade servers live in. Most of its texts begin with the kind of
// enclosure; where the chassis isn't an enclosure, they begin with a blank.
#include "cli/eventstr/catalogue.h"
#include "include/event_infrastructure.h"

namespace eventstr {
namespace {

// A fuse's byte packs two things.
constexpr uint8_t kFuseNumber = 0x0F;  // the slot or the side
constexpr uint8_t kFuseB = 0x10;       // set: fuse B, clear: fuse A

void FuseSlot(uint8_t zone, TextWriter& out) {
    Byte2Str(zone & kFuseNumber, out);
}

const char* FuseSide(uint8_t zone) {
    return GetRackSide(zone & kFuseNumber);
}

const char* FuseLetter(uint8_t zone) {
    return (zone & kFuseB) != 0 ? "B" : "A";
}

// clang-format off
constexpr Condition kFuseOfComponent = Is<&EVT_INF_ENV_FUSE_OPEN::bZoneType>(kZoneNetworkSlot);
constexpr Condition kFuseOfBlade     = Is<&EVT_INF_ENV_FUSE_OPEN::bZoneType>(kZoneBladeSlot);
constexpr Argument kFuseEnclosure    = Field<&EVT_INF_ENV_FUSE_OPEN::cChassisName, GetChassisEx>;
constexpr Argument kFuseSlot         = Field<&EVT_INF_ENV_FUSE_OPEN::bZoneId, FuseSlot>;
constexpr Argument kFuseSide         = Field<&EVT_INF_ENV_FUSE_OPEN::bZoneId, FuseSide>;
constexpr Argument kFuseLetter       = Field<&EVT_INF_ENV_FUSE_OPEN::bZoneId, FuseLetter>;

constexpr Argument kInsRemEnclosure = Field<&EVT_INF_ENV_BLADE_INS_REM::cChassisName, GetChassisEx>;
constexpr Argument kInsRemBlade     = Field<&EVT_INF_ENV_BLADE_INS_REM::bBlade, Byte2Str>;

constexpr Argument kBalanceEnclosure = Field<&EVT_INF_ENV_PWR_LOAD_BALANCING::cChassisName, GetChassisEx>;
constexpr Argument kDcEnclosure      = Field<&EVT_INF_ENV_DC_PWR_PROBLEM::cChassisName, GetChassisEx>;
constexpr Argument kDcVoltage        = Field<&EVT_INF_ENV_DC_PWR_PROBLEM::wVoltage, PlainWord>;

constexpr Condition ChangeIs(uint8_t change) {
    return Is<&EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG::bType>(change);
}
constexpr Argument kRackChange    = Field<&EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG::bType, PlainHexByte>;
constexpr Argument kRackEnclosure =
    Field<&EVT_INF_ENV_RACK_INFRASTRUCTURE_CHG::cChassisName, GetChassisEx>;

constexpr Argument kMisconfigSide = Field<&EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED::bLocation, GetRackSide>;
constexpr Argument kMisconfigReason =
    Field<&EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED::bError, GetImproperPowerReason>;
constexpr Argument kMisconfigEnclosure =
    Field<&EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED::cChassisName, GetChassisEx>;

constexpr Condition kPartIsComponent = Is<&EVT_INF_ENV_BLADE_INS_REM_2::bZoneType>(kZoneNetworkSlot);
constexpr Condition kPartIsBlade     = Is<&EVT_INF_ENV_BLADE_INS_REM_2::bZoneType>(kZoneBladeSlot);
constexpr Argument kPartSlot         = Field<&EVT_INF_ENV_BLADE_INS_REM_2::bZoneId, Byte2Str>;
constexpr Argument kPartSide         = Field<&EVT_INF_ENV_BLADE_INS_REM_2::bZoneId, GetRackSide>;
constexpr Argument kPartEnclosure    = Field<&EVT_INF_ENV_BLADE_INS_REM_2::cChassisName, GetChassisEx>;

constexpr EventRow kEvents[] = {
    {1, {}, "%s Inadequate Power To Power On: %s (%s, Slot %s)",
     {kEnclosureType,
      Field<&EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON::bReason, GetInadequatePowerReason>,
      Field<&EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON::cChassisName, GetChassisEx>,
      Field<&EVT_INF_ENV_INADEQUATE_PWR_TO_PWR_ON::bBlade, Byte2Str>}},
    {2, {}, "%s Blade Manual Power On (%s, Slot %s)",
     {kEnclosureType,
      Field<&EVT_INF_ENV_MANUAL_OVERRIDE::cChassisName, GetChassisEx>,
      Field<&EVT_INF_ENV_MANUAL_OVERRIDE::bBlade, Byte2Str>}},
    {3, {kFuseOfComponent}, "%s Network Component Fuse or Breaker Tripped (%s, %s, Fuse %s)",
     {kEnclosureType, kFuseEnclosure, kFuseSide, kFuseLetter}},
    {3, {kFuseOfBlade}, "%s Blade Fuse or Breaker Tripped (%s, Slot %s, Fuse %s)",
     {kEnclosureType, kFuseEnclosure, kFuseSlot, kFuseLetter}},
    {4, {}, "%s Blade I2C Bus Fault (%s, Bus %s)",
     {kEnclosureType,
      Field<&EVT_INF_ENV_I2C_FAULT::cChassisName, GetChassisEx>,
      Field<&EVT_INF_ENV_I2C_FAULT::bBus, Byte2Str>}},
    {5, {Is<&EVT_INF_ENV_BLADE_INS_REM::bPresent>(0)}, "%s Blade Removed (%s, Slot %s)",
     {kEnclosureType, kInsRemEnclosure, kInsRemBlade}},
    {5, {}, "%s Blade Inserted (%s, Slot %s)", {kEnclosureType, kInsRemEnclosure, kInsRemBlade}},
    // Here 1 is bus A, in the next event 0 is.
    {6, {Is<&EVT_INF_ENV_PWR_LOAD_BALANCING::cSide>(1)}, "%s Power Not Balanced (%s, Power Bus A)",
     {kEnclosureType, kBalanceEnclosure}},
    {6, {}, "%s Power Not Balanced (%s, Power Bus B)", {kEnclosureType, kBalanceEnclosure}},
    {7, {Is<&EVT_INF_ENV_DC_PWR_PROBLEM::cSide>(0)},
     "%s DC Power Out Of Tolerance (%s, Power Bus A, %s mV)",
     {kEnclosureType, kDcEnclosure, kDcVoltage}},
    {7, {}, "%s DC Power Out Of Tolerance (%s, Power Bus B, %s mV)",
     {kEnclosureType, kDcEnclosure, kDcVoltage}},
    {8, {}, "%s AC Facility Input Power Exceeded (%s)",
     {kEnclosureType, Field<&EVT_INF_ENV_AC_INPUT_PWR_EXCEEDED::cChassisName, GetChassisEx>}},
    {9, {}, "Loss Of Chassis Connectivity (%s)",
     {Field<&EVT_INF_ENV_LOSS_OF_CHASSIS_CONNECTIVITY::cChassisName, GetChassisEx>}},
    {10, {}, "New Chassis Connected (%s)",
     {Field<&EVT_INF_ENV_NEW_CHASSIS_CONNECTIVITY::cChassisName, GetChassisEx>}},
    {11, {ChangeIs(1)}, "%s Rack Name Changed (%s)", {kEnclosureType, kRackEnclosure}},
    {11, {ChangeIs(2)}, "%s Name Changed (%s)", {kEnclosureType, kRackEnclosure}},
    {11, {ChangeIs(3)}, "%s Service Change (%s)", {kEnclosureType, kRackEnclosure}},
    {11, {ChangeIs(4)}, "%s Rack Name Conflict (%s)", {kEnclosureType, kRackEnclosure}},
    {11, {ChangeIs(5)}, "%s Rack Unique ID Changed (%s)", {kEnclosureType, kRackEnclosure}},
    {11, {ChangeIs(7)}, "%s LAN Settings Changed (%s)", {kEnclosureType, kRackEnclosure}},
    {11, {ChangeIs(8)}, "%s UID LED State Changed (%s)", {kEnclosureType, kRackEnclosure}},
    {11, {}, "%s Rack Infrastructure Changed (%s, Type 0x%s)", {kEnclosureType, kRackEnclosure, kRackChange}},
    {12, {}, "%s Unknown Power Consumption (%s)",
     {kEnclosureType, Field<&EVT_INF_ENV_UNKNOWN_PWR_CONSUMPTION::cChassisName, GetChassisEx>}},
    {13, {Is<&EVT_INF_ENV_PWR_SUBSYS_MISCONFIGURED::bLocation>(0)},
     "%s Power Subsystem Misconfigured: %s (%s)", {kEnclosureType, kMisconfigReason, kMisconfigEnclosure}},
    {13, {}, "%s Power Subsystem Misconfigured: %s (%s, %s)",
     {kEnclosureType, kMisconfigReason, kMisconfigSide, kMisconfigEnclosure}},
    {14, {}, "%s Status Change (%s)",
     {kEnclosureType, Field<&EVT_INF_ENV_ENCLOSURE_MGR_STATUS::cChassisName, GetChassisEx>}},
    // A blower's number is what the record calls its problem.
    {15, {}, "%s Blower Fault (%s, Blower %s, %s)",
     {kEnclosureType,
      Field<&EVT_INF_ENV_BLOWER_FAULT::bSide, GetRackSide>,
      Field<&EVT_INF_ENV_BLOWER_FAULT::bProblem, Byte2Str>,
      Field<&EVT_INF_ENV_BLOWER_FAULT::cChassisName, GetChassisEx>}},
    {16, {}, "%s Blower Removed (%s, Blower %s, %s)",
     {kEnclosureType,
      Field<&EVT_INF_ENV_BLOWER_REMOVED::bSide, GetRackSide>,
      Field<&EVT_INF_ENV_BLOWER_REMOVED::bProblem, Byte2Str>,
      Field<&EVT_INF_ENV_BLOWER_REMOVED::cChassisName, GetChassisEx>}},
    {17, {}, "%s Ethernet Switch Error - %s (%s, %s)",
     {kEnclosureType,
      Field<&EVT_INF_ENV_ETHERNET_SWITCH_FAULT::bProblem, GetEthSwErr>,
      Field<&EVT_INF_ENV_ETHERNET_SWITCH_FAULT::bSide, GetRackSide>,
      Field<&EVT_INF_ENV_ETHERNET_SWITCH_FAULT::cChassisName, GetChassisEx>}},
    {18, {}, "%s Power Feed Missing (%s, %s)",
     {kEnclosureType,
      Field<&EVT_INF_ENV_INPUT_PWR_SENSE_ERR::bSide, GetPwrBus>,
      Field<&EVT_INF_ENV_INPUT_PWR_SENSE_ERR::cChassisName, GetChassisEx>}},
    {19, {kPartIsComponent}, "%s Network Component Inserted (%s, %s)",
     {kEnclosureType, kPartSide, kPartEnclosure}},
    {19, {kPartIsBlade}, "%s Server Blade Inserted (Slot %s, %s)",
     {kEnclosureType, kPartSlot, kPartEnclosure}},
    {20, {kPartIsComponent}, "%s Network Component Removed (%s, %s)",
     {kEnclosureType, kPartSide, kPartEnclosure}},
    {20, {kPartIsBlade}, "%s Server Blade Removed (Slot %s, %s)",
     {kEnclosureType, kPartSlot, kPartEnclosure}},
    {21, {}, "%s Invalid Topology - Check Cabling", {kEnclosureType}},
    {24, {}, "Infrastructure Fault, %s at %s, %s",
     {Field<&EVT_INF_ENV_CHASSIS_ERR::bError, GetInfErrString>,
      Field<&EVT_INF_ENV_CHASSIS_ERR::bLocation, GetInfMainLocation>,
      Field<&EVT_INF_ENV_CHASSIS_ERR::bSubLocation, GetInfSubLocation>}},
    {25, {}, "Chassis %s requires minimum firmware revision %s.%s. It is currently %s.%s.",
     {Field<&EVT_INF_FIRMWARE_MISMATCH::cChassisName, GetChassisEx>,
      Field<&EVT_INF_FIRMWARE_MISMATCH::bRequiredMajor, Byte2Str>,
      Field<&EVT_INF_FIRMWARE_MISMATCH::bRequiredMinor, GetBCDString>,
      Field<&EVT_INF_FIRMWARE_MISMATCH::bCurrentMajor, Byte2Str>,
      Field<&EVT_INF_FIRMWARE_MISMATCH::bCurrentMinor, GetBCDString>}},
};
static_assert(WellFormed<kEvents>());
// clang-format on

}  // namespace

void TranslateClass22(unsigned short wEventCode, Bytes pEventData, TextWriter& out) {
    PrintEvent(kEvents, wEventCode, pEventData, out);
}

}  // namespace eventstr
