// How the fields of a payload print: numbers, letters, texts, and where an event happened. A value that
// stands for "not known" prints as "Unknown".
#pragma once

#include <cstdint>

#include "include/event_log.h"
#include "src/utils/bytes.h"
#include "src/utils/text.h"

namespace eventstr {

// By value. The first five know 255 or 0xFFFFFFFF as "not known".
void Byte2Str(uint8_t bValue, TextWriter& out);               // decimal
void Char2Str(uint8_t bValue, TextWriter& out);               // the character; nothing for 0
void GetTemp(uint8_t bTemp, TextWriter& out);                 // degrees Celsius, "42C"
void Dword2Str(uint32_t dwValue, TextWriter& out);            // decimal
void Dword2HexStr(uint32_t dwValue, TextWriter& out);         // "0x0000001F"
void PlainByte(uint8_t value, TextWriter& out);               // decimal, 255 too
void PlainHexByte(uint8_t value, TextWriter& out);            // two digits, upper case
void GetBCDString(uint8_t bBCD, TextWriter& out);             // two digits, the low one first: 0x12 is "21"
void PlainWord(uint16_t value, TextWriter& out);              // decimal
void BoardPrefix(uint8_t bBoard, TextWriter& out);            // "Board 2, "; nothing for 0
void GetSASPort(const char (&szPortID)[2], TextWriter& out);  // two letters; a NUL ends them

// By place: the text at an offset of the payload.
void PlainText(Bytes payload, size_t offset, TextWriter& out);        // a text as it stands
void ReformattedText(Bytes payload, size_t offset, TextWriter& out);  // by CopyAndReformat
void SerialNumber(Bytes payload, size_t offset, TextWriter& out);  // ", Serial Number S1"; nothing for none
void SpareNumber(Bytes payload, size_t offset, TextWriter& out);   // ", Spare Number P1", the second text
void ExtraText(Bytes payload, size_t offset, TextWriter& out);     // ", Replace soon"; nothing for none
void SecondExtraText(Bytes payload, size_t offset, TextWriter& out);  // the same with the second text

// Where an event happened: the payload's chassis, and the chassis name at an offset.
void GetSysChassis(Bytes payload, size_t offset, TextWriter& out);   // the name, or else the number
void GetStorChassis(Bytes payload, size_t offset, TextWriter& out);  // "Chassis NAME, ", or nothing
void GetChassisEx(Bytes payload, size_t offset, TextWriter& out);  // an enclosure's serial number or address

// By the chassis type: "Chassis RACK7", "Chassis SHELF, Slot 3" or "Enclosure Address 0012".
void GetChassis(Bytes payload, size_t offset, TextWriter& out);

// A SAS enclosure: as GetStorChassis, then the text that follows the name or, when that is empty, "Slot 3".
void GetSlotChassisSun(Bytes payload, size_t offset, TextWriter& out);

// The payload's chassis, with zeros for what is missing.
EVT_CHASSIS ChassisOf(Bytes payload);

// The text that follows the one at an offset, right behind its terminating zero.
std::string_view SecondText(Bytes payload, size_t offset);

// Copies a text with its white space normalised: none at either end, one blank for each run inside.
void CopyAndReformat(TextWriter& out, std::string_view source);

// The words that stand for a byte of a payload (words.cpp). Each gives a constant text; "Unknown" for a byte
// that no word stands for, unless said otherwise.

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
