// The translators, one for each event class: the two digits of a name are the class in hexadecimal.
#pragma once

#include "src/utils/bytes.h"
#include "src/utils/text.h"

namespace eventstr {

// Each writes the text of the event with the code `wEventCode` to `out`, which is empty. It writes nothing if
// the class has no such event, or if no text applies to the payload. `pEventData` is the payload; it may be
// shorter than its record.
void TranslateClass02(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // machine environment
void TranslateClass03(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // main memory
void TranslateClass04(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // cache memory
void TranslateClass05(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // CPU
void TranslateClass06(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // host bus
void TranslateClass07(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // EISA bus
void TranslateClass08(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // PCI bus
void TranslateClass09(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // expansion slots
void TranslateClass0A(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // POST messages
void TranslateClass0B(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // power subsystem
void TranslateClass0D(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // server recovery
void TranslateClass0E(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // operating system
void TranslateClass11(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // network adapters
void TranslateClass12(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // SCSI
void TranslateClass13(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // drive arrays
void TranslateClass14(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // unrecoverable errors
void TranslateClass20(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // system revision
void TranslateClass21(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // maintenance notes
void TranslateClass22(unsigned short wEventCode, Bytes pEventData, TextWriter& out);  // blade enclosures

}  // namespace eventstr
