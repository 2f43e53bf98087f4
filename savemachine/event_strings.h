// The offset of the strings in an event's payload, for the option --redact.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "src/utils/bytes.h"

// Returns the offset of the strings in an event's payload, which may be shorter. The bytes before it are
// numbers, which SHOW HLOG prints. All others may belong to strings with names and serial numbers, also after
// a record without strings. Returns nullopt if the event has no row in the table: SHOW HLOG prints nothing of
// its payload, and each byte may be private.
std::optional<size_t> OffsetOfStrings(uint16_t event_class, uint16_t code, Bytes payload);
