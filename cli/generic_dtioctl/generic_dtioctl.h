// Reads records of the health driver's data tables.
#pragma once

#include <cstdlib>
#include <type_traits>

#include "cli/generic_dtioctl/devices.h"
#include "include/data_tables.h"

// Reads one record. dt_type: the table. index, index2: narrowed to bytes, so -1 arrives as 255. size: bytes
// of the record. fd: the cdt device.
// Result: a buffer of size bytes, zero where the driver wrote nothing; the caller frees it. Null when the
// request failed (nothing printed) or there was no memory (which is reported).
void* generic_dtioctl(short dt_type, int index, int index2, int size, int fd);

// One record of the driver, as a handler wants it: typed, and freed when the scope ends.
template <typename Record>
class Reply {
  public:
    // Asks the cdt device for it; the arguments are generic_dtioctl's.
    Reply(DataTableType table, int index, int index2 = 0)
        : record_(static_cast<Record*>(generic_dtioctl(static_cast<short>(table), index, index2,
                                                       static_cast<int>(sizeof(Record)), cdt_fd))) {}
    ~Reply() { std::free(record_); }
    Reply(const Reply&) = delete;
    Reply& operator=(const Reply&) = delete;

    explicit operator bool() const { return record_ != nullptr; }  // false: the request failed
    const Record* operator->() const { return record_; }           // only when it did not
    const Record& operator*() const { return *record_; }

  private:
    static_assert(std::is_trivially_copyable_v<Record>, "a reply is plain bytes");
    Record* record_;
};
