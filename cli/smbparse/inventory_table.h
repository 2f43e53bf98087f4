// How an inventory table grows.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <iterator>

// Adds a zeroed record to an inventory table. Null, with nothing added, when the table is full or there is no
// memory for one.
template <typename Record, size_t kEntries>
Record* AppendRecord(Record* (&table)[kEntries]) {
    Record** place = std::find(std::begin(table), std::end(table), nullptr);
    if (place == std::end(table)) return nullptr;
    *place = static_cast<Record*>(std::calloc(1, sizeof(Record)));
    return *place;
}
