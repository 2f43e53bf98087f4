// What the driver tells of power supplies, the unit identification light, the recovery timer, memory modules
// and the event log: read here, shown by the SHOW commands of misc_commands.h. These functions print nothing,
// except that generic_dtioctl reports when memory runs out.
#pragma once

#include <cstdint>

#include "cli/generic_dtioctl/generic_dtioctl.h"
#include "cli/health-table/health_table.h"
#include "include/event_payloads.h"
#include "include/health_records.h"
#include "include/memory_records.h"
#include "src/utils/bytes.h"

// Power supplies, bay by bay.

struct SupplyStatus {
    bool installed;  // false: the bay is empty, and nothing else is known of it
    bool present;    // by the common feature record, which may differ from what the older one says
    bool redundant;
    const char* condition;  // "Ok", "DEGRADED" or "FAILED"; null
    bool hot_pluggable;
};

class SupplyBays {
  public:
    enum class Found { Refused, NoData, Bays };

    SupplyBays();  // reads the header
    Found What() const { return found_; }
    int Count() const { return num_ps; }  // 0 unless bays were found

    // Reads a bay, index from 0, in ascending order. False when the driver refuses a record of it.
    bool Read(int index, SupplyStatus& supply);

  private:
    Found found_ = Found::Refused;
    int num_ps = 0;
    OlderRecords<POWERSUPPLYNUMBERS> older_records_{kSupplyNumbersTable};
};

// The unit identification light.

enum class LightRead { Done, NoMemory, Failed };

// Reads what the light does. state: set to "on", "off", "blinking" or "in an unknown state" when it is done.
LightRead ReadLight(const char*& state);

// The automatic server recovery timer.

struct AsrTimer {
    bool enabled;
    int minutes;
};

enum class AsrRead { Done, StateFailed, TimeoutFailed };

AsrRead ReadAsrTimer(AsrTimer& timer);

// Memory modules, in the order of the driver's cartridges and their sockets.

struct ModuleStatus {
    int cartridge;  // as they are labelled
    int module;
    bool present;  // false: there is something in the socket, but not a module that the driver takes for one
    uint32_t form_factor;  // as SMBIOS numbers them
    uint32_t memory_type;
    int size;                 // megabytes
    int speed;                // MHz
    uint32_t status;          // the driver's number
    const char* status_text;  // null when the number isn't known
};

// The ranges that a walk of the memory modules covers; a count of 0 or below covers none.
struct MemoryCounts {
    int dimms;  // sockets of each cartridge
    int carts;  // cartridges
};

// Returns the counts of `memory`, limited to what a request's index bytes can name. If `memory` is null,
// because the driver has no such record, returns counts that are high enough for any server.
MemoryCounts CountsOf(const RESMEM_CONFIG* memory);

class MemoryModules {
  public:
    enum class Next { Module, End, Failed };

    MemoryModules();  // reads the counts, and whether the memory is on the system board

    // Reads the next socket that isn't empty. Returns End if there is none or the request for a socket
    // failed, and Failed if the request for the module's status failed. After either, further calls return
    // End and send no request.
    Next ReadNext(ModuleStatus& module);

  private:
    int dimms;       // sockets of each cartridge
    int carts;       // the walk ends before this cartridge
    int cartridge_;  // the socket that is read next
    int socket_ = 0;
};

// The event log.

constexpr int kEventTextSize = 256;  // bytes of an event's text in a listing, the terminating zero included

// The buffer of a read: a LOG_INFO, then the entry. An entry with its strings is longer than EVT_LOG_ENTRY,
// so it is kept as bytes.
struct EventRead {
    alignas(LOG_INFO) uint8_t bytes[kEventReadSize];
};
static_assert(sizeof(EventRead) == 312, "as the driver takes it");

// Returned by ReadEvent if the driver returned an entry that is numbered below the requested one. A listing
// that continued from there would never end.
constexpr int kEntryFromBefore = -1;

// Reads the first entry whose number is `number` or higher into `buffer` of `size` bytes, kEventReadSize or
// more, aligned as a LOG_INFO. Returns an EventLogStatus, kEntryFromBefore, or a status that isn't known. If
// the call itself fails, returns its errno, which counts as the status of that number: EPERM ends a listing
// as the log's end does, and after ESRCH the same entry is requested again.
int ReadEvent(uint8_t* buffer, size_t size, uint32_t number);

// Returns the header of the entry in a read's buffer.
inline EVT_HEADER HeaderOf(const uint8_t* buffer) {
    return CopyOf<EVT_HEADER>(buffer + sizeof(LOG_INFO));
}

// Returns the entry in a read's buffer as TranslateEventLogMessage takes it.
inline PEVT_LOG_ENTRY EntryOf(uint8_t* buffer) {
    return reinterpret_cast<PEVT_LOG_ENTRY>(buffer + sizeof(LOG_INFO));
}

// "INFO", "REPAIRED", "CAUTION", "CRITICAL" or "UNKNOWN".
const char* SeverityWord(uint8_t bSeverity);

// What the listing calls a class of events; "Not defined" for one that it doesn't know.
const char* EventClassName(uint16_t wClass);
