// The health driver: opens and closes its four devices, and requests records of its data tables.
#pragma once

#include <cstdlib>
#include <type_traits>

#include "cli/command/state.h"
#include "include/data_tables.h"

// The paths of the devices. They aren't const, because the request library takes a char*.
extern char cdt_path[];
extern char cevt_path[];
extern char casr_path[];
extern char crom_path[];

struct HealthDevice {
    char name[5];
    char* path;
    int* descriptor;    // negative if the device isn't open
    const char* error;  // start of the message if the device can't be opened; a hint and `after_hint` follow
    const char* after_hint;
};

enum HealthDeviceIndex { kCdtDevice, kCevtDevice, kCasrDevice, kCromDevice, kDeviceCount };
extern const HealthDevice kHealthDevices[kDeviceCount];

// Opens the devices in the order of kHealthDevices. If a device can't be opened, prints a message, closes the
// devices that are open, the last one first, and returns false.
bool OpenDevices();

// Opens every device that is available, for programs that can work without some of them. An unavailable
// device keeps a negative descriptor, and requests on it fail. Prints nothing.
void OpenAvailableDevices();

// Close all devices: in the order in which they were opened, or in the reverse order.
void CloseDevices();
void CloseDevicesLastFirst();

// Reads a record of `size` bytes from table `dt_type`. `fd` is the cdt device. The request contains each
// index in one byte, so -1 is sent as 255. Returns the record in a buffer that the caller frees; bytes that
// the driver doesn't write are 0. Returns null if the request fails. If memory runs out, prints a message and
// returns null.
void* generic_dtioctl(short dt_type, int index, int index2, int size, int fd);

// Reads a record of the cdt device and frees it at the end of the scope.
template <typename Record>
class Reply {
  public:
    Reply(DataTableType table, int index, int index2 = 0)
        : record_(static_cast<Record*>(generic_dtioctl(static_cast<short>(table), index, index2,
                                                       static_cast<int>(sizeof(Record)), cdt_fd))) {}
    ~Reply() { std::free(record_); }
    Reply(const Reply&) = delete;
    Reply& operator=(const Reply&) = delete;

    explicit operator bool() const { return record_ != nullptr; }  // false if the request has failed
    const Record* operator->() const { return record_; }
    const Record& operator*() const { return *record_; }

  private:
    static_assert(std::is_trivially_copyable_v<Record>, "a record is plain bytes");
    Record* record_;
};
