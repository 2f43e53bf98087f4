// Where an event happened, as text. Every record that has a chassis begins with it.
#pragma once

#include "include/event_chassis.h"
#include "src/utils/bytes.h"
#include "src/utils/text_writer.h"

namespace eventstr {

// The payload's chassis, with zeros for what is missing.
EVT_CHASSIS ChassisOf(Bytes payload);

// Each prints from the payload's chassis and the text at an offset, the chassis name.
void GetSysChassis(Bytes payload, size_t offset, TextWriter& out);   // the name, or else the number
void GetStorChassis(Bytes payload, size_t offset, TextWriter& out);  // "Chassis NAME, ", or nothing
void GetChassisEx(Bytes payload, size_t offset, TextWriter& out);  // an enclosure's serial number or address

// A SAS enclosure: as GetStorChassis, then the text that follows the name or, when that is empty, "Slot 3".
void GetSlotChassisSun(Bytes payload, size_t offset, TextWriter& out);

// The two characters of a SAS port at an offset; a zero ends them.
void GetSASPort(Bytes payload, size_t offset, TextWriter& out);

}  // namespace eventstr
