// The names of the values that payloads contain.
#pragma once

#include <cstdint>

namespace eventstr {

extern const char szUnknown[];

// Return the name of a byte's value, a constant string: "Unknown" for a value without a name unless stated
// otherwise.
const char* GetLocation(uint8_t bLocation);  // of an EventZoneType
const char* GetRedundancy(uint8_t bRedundancy);
const char* GetACProblem(uint8_t bACProblem);
const char* GetInadequatePowerReason(uint8_t bReason);
const char* GetImproperPowerReason(uint8_t bReason);
const char* GetRackSide(uint8_t bLocation);  // "Unknown Location" for other values
const char* GetEthSwErr(uint8_t bError);
const char* GetPwrBus(uint8_t bLocation);
const char* GetPSError(uint8_t bPSError);         // "Unknown Failure" for other values
const char* GetFailedPowerModule(uint8_t bType);  // a whole sentence, by converter type
const char* GetInfMainLocation(uint8_t bLocation);
const char* GetInfSubLocation(uint8_t bLocation);
const char* GetInfErrString(uint8_t bErr);
const char* GetInternalExternal(uint8_t bType);  // of an EventChassisType; "" for other types
const char* GetEnclosureType(uint8_t bType);     // of an EventChassisType; "" for other types

}  // namespace eventstr
