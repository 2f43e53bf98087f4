// Functions that print the fields of a payload: numbers, characters, strings, the location of an event.
#pragma once

#include <cstdint>

#include "include/event_log.h"
#include "src/utils/bytes.h"
#include "src/utils/text.h"

namespace eventstr {

// Functions that print a value. The first five print "Unknown" for a value whose bits are all set.
void Byte2Str(uint8_t bValue, TextWriter& out);        // decimal
void Char2Str(uint8_t bValue, TextWriter& out);        // the character; nothing for 0
void GetTemp(uint8_t bTemp, TextWriter& out);          // degrees Celsius, "42C"
void Dword2Str(uint32_t dwValue, TextWriter& out);     // decimal
void Dword2HexStr(uint32_t dwValue, TextWriter& out);  // "0x0000001F"
void PlainByte(uint8_t value, TextWriter& out);        // decimal; 255 isn't "Unknown"
void PlainHexByte(uint8_t value, TextWriter& out);     // two hexadecimal digits, upper case
void GetBCDString(uint8_t bBCD, TextWriter& out);      // two digits, the low one first: 0x12 is "21"
void PlainWord(uint16_t value, TextWriter& out);       // decimal
void BoardPrefix(uint8_t bBoard, TextWriter& out);     // "Board 2, "; nothing for 0

// Functions that print the string at `offset` of the payload, or the next string after it. They print nothing
// if the string is empty.
void PlainText(Bytes payload, size_t offset, TextWriter& out);        // the string without changes
void ReformattedText(Bytes payload, size_t offset, TextWriter& out);  // the string, by CopyAndReformat()
void SerialNumber(Bytes payload, size_t offset, TextWriter& out);  // ", Serial Number S1"; nothing if empty
void SpareNumber(Bytes payload, size_t offset, TextWriter& out);   // ", Spare Number P1": the next string
void ExtraText(Bytes payload, size_t offset, TextWriter& out);     // ", Replace soon"; nothing if empty
void SecondExtraText(Bytes payload, size_t offset, TextWriter& out);  // like ExtraText(): the next string
void GetSASPort(Bytes payload, size_t offset, TextWriter& out);       // szPortID, at most two characters

// Functions that print the location of an event: from the payload's EVT_CHASSIS and the chassis name, the
// string at `offset`.
void GetSysChassis(Bytes payload, size_t offset, TextWriter& out);  // the name; the number if it is empty
void GetStorChassis(Bytes payload, size_t offset,
                    TextWriter& out);                              // "Chassis NAME, "; nothing if it is empty
void GetChassisEx(Bytes payload, size_t offset, TextWriter& out);  // an enclosure's serial number or address

// Prints the chassis according to its type: "Chassis RACK7", "Chassis SHELF, Slot 3" or "Enclosure Address
// 0012".
void GetChassis(Bytes payload, size_t offset, TextWriter& out);

// Prints the location in a SAS enclosure: GetStorChassis(), then the string that follows the name, or "Slot
// 3" if that string is empty.
void GetSlotChassisSun(Bytes payload, size_t offset, TextWriter& out);

// Returns the payload's EVT_CHASSIS. If the payload is too short, the missing fields are 0.
EVT_CHASSIS ChassisOf(Bytes payload);

// Returns the string that follows the string at `offset`, starting after that string's NUL terminator.
std::string_view SecondText(Bytes payload, size_t offset);

// Copies `source` without leading and trailing white space; each run of white space inside becomes one space.
void CopyAndReformat(TextWriter& out, std::string_view source);

}  // namespace eventstr
