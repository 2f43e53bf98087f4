// The health driver: its four devices, open from start-up to the end of the run, and its data tables, record
// by record.
#pragma once

#include <cstdlib>
#include <type_traits>

#include "cli/command/state.h"
#include "include/data_tables.h"

// The devices' files. Not const: the request library takes a char*.
extern char cdt_path[];
extern char cevt_path[];
extern char casr_path[];
extern char crom_path[];

// Opens cdt, cevt, casr and crom, in this order. False, with a message, when one of them doesn't open; those
// before it are closed again, the last one first.
bool OpenDevices();

// Opens those that open, for programs that do without the others: the descriptor of one that doesn't is below
// 0, and requests on it fail. Prints nothing.
void OpenWhatOpens();

// Close all four: in the order in which they were opened, or the last one first.
void CloseDevices();
void CloseDevicesLastFirst();

// Reads a record of `size` bytes from the table dt_type. The request has a byte for each index, so the driver
// is asked for 255 where index is -1. fd: the cdt device.
// Result: the record in a buffer that the caller frees; bytes that the driver doesn't write are zero. Null
// when the request fails, which the caller reports, or when memory runs out, which is reported here.
void* generic_dtioctl(short dt_type, int index, int index2, int size, int fd);

// A record for the length of a scope.
template <typename Record>
class Reply {
  public:
    // Reads it from the cdt device.
    Reply(DataTableType table, int index, int index2 = 0)
        : record_(static_cast<Record*>(generic_dtioctl(static_cast<short>(table), index, index2,
                                                       static_cast<int>(sizeof(Record)), cdt_fd))) {}
    ~Reply() { std::free(record_); }
    Reply(const Reply&) = delete;
    Reply& operator=(const Reply&) = delete;

    explicit operator bool() const { return record_ != nullptr; }  // false: there is no record to look at
    const Record* operator->() const { return record_; }
    const Record& operator*() const { return *record_; }

  private:
    static_assert(std::is_trivially_copyable_v<Record>, "a reply is plain bytes");
    Record* record_;
};
