// Names for the code bytes in event payloads.
#pragma once

#include <cstdint>

namespace eventstr {

extern const char szUnknown[];

// Each returns the name of a byte's value, a constant string. A value without a name is "Unknown", unless
// stated otherwise.
const char* GetLocation(uint8_t bLocation);  // `bLocation` is an EventZoneType
const char* GetRedundancy(uint8_t bRedundancy);
const char* GetACProblem(uint8_t bACProblem);
const char* GetInadequatePowerReason(uint8_t bReason);
const char* GetImproperPowerReason(uint8_t bReason);
const char* GetRackSide(uint8_t bLocation);  // "Unknown Location" for other values
const char* GetEthSwErr(uint8_t bError);
const char* GetPwrBus(uint8_t bLocation);
const char* GetPSError(uint8_t bPSError);         // "Unknown Failure" for other values
const char* GetFailedPowerModule(uint8_t bType);  // a whole sentence; `bType` is a converter type
const char* GetInfMainLocation(uint8_t bLocation);
const char* GetInfSubLocation(uint8_t bLocation);
const char* GetInfErrString(uint8_t bErr);
const char* GetInternalExternal(uint8_t bType);  // `bType` is an EventChassisType; "" for other types
const char* GetEnclosureType(uint8_t bType);     // `bType` is an EventChassisType; "" for other types

}  // namespace eventstr
