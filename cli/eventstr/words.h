// The words that stand for a byte of a payload. Each gives a constant text; "Unknown" for a byte that no word
// stands for, unless said otherwise.
#pragma once

#include <cstdint>

namespace eventstr {

extern const char szUnknown[];

const char* GetLocation(uint8_t bLocation);  // the zone of a fan, a temperature or a fuse
const char* GetRedundancy(uint8_t bRedundancy);
const char* GetACProblem(uint8_t bACProblem);
const char* GetInadequatePowerReason(uint8_t bReason);
const char* GetImproperPowerReason(uint8_t bReason);
const char* GetRackSide(uint8_t bLocation);  // else "Unknown Location"
const char* GetEthSwErr(uint8_t bError);
const char* GetPwrBus(uint8_t bLocation);
const char* GetPSError(uint8_t bPSError);         // else "Unknown Failure"
const char* GetFailedPowerModule(uint8_t bType);  // a whole sentence, by converter type
const char* GetInfMainLocation(uint8_t bLocation);
const char* GetInfSubLocation(uint8_t bLocation);
const char* GetInfErrString(uint8_t bErr);
const char* GetInternalExternal(uint8_t bType);  // of a chassis type; else ""
const char* GetEnclosureType(uint8_t bType);     // of a chassis type; else ""

}  // namespace eventstr
