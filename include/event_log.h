// The request block of the cevt device (the event log), and the header of the log's entries. Both are
// little-endian. event_payloads.h describes the payloads that follow the header. The struct tags such as
// _evtLogHdr are part of the interface for other programs.
#pragma once

#include <cstddef>
#include <cstdint>

constexpr int kEventLogRequest = 81;  // the only request code of the cevt device

enum EventLogChoice : int32_t { kReadEvent = 2, kClearEvents = 5 };  // values of LOG_INFO::choice

// The status of a read request. kEndOfLog: no entry has the requested number or a higher one.
// kBufferTooSmall: the entry doesn't fit into the buffer after the request block.
enum EventLogStatus : int { kEntryRead = 0, kEndOfLog = 1, kBufferTooSmall = 3 };

// The block at the start of every request buffer. It has natural alignment, unlike the entries.
struct _frontioctlEntry {
    uint32_t length;     // size of the request buffer in bytes, including this block
    int32_t choice;      // an EventLogChoice
    int32_t match_code;  // always 0
    int32_t EvtNumber;   // number to read: the entry with this number or the next higher one is returned
};
using LOG_INFO = _frontioctlEntry;
using PLOG_INFO = LOG_INFO*;
static_assert(sizeof(LOG_INFO) == 16, "as the driver has it");

// The values of EVT_HEADER::bSeverity.
enum EventSeverity : uint8_t { kInformational = 2, kNotice = 3, kRepaired = 6, kCaution = 9, kCritical = 15 };

#pragma pack(push, 1)

struct _evtTimeStamp {  // binary numbers, not BCD
    uint8_t bCentury;   // first two digits of the year: 20 for 2006
    uint8_t bYear;      // last two digits of the year
    uint8_t bMonth;     // 1 to 12
    uint8_t bDay;
    uint8_t bHour;  // 0 to 23
    uint8_t bMinute;
};
using EVT_TIME_STAMP = _evtTimeStamp;
using PEVT_TIME_STAMP = EVT_TIME_STAMP*;
static_assert(sizeof(EVT_TIME_STAMP) == 6, "as the firmware has it");

struct _evtLogHdr {
    uint16_t wEvtLength;   // size of the entry in bytes, including this header
    uint32_t dwEvtNumber;  // not aligned: read it as a member, never through a uint32_t*
    uint8_t bHdrRev;
    uint8_t bSeverity;  // an EventSeverity
    uint16_t wClass;    // event class, 0 to 34
    uint16_t wCode;     // event code within the class
    EVT_TIME_STAMP InitTime;
    EVT_TIME_STAMP UpdateTime;
    uint32_t dwCount;
};
using EVT_HEADER = _evtLogHdr;
using PEVT_HEADER = EVT_HEADER*;
static_assert(sizeof(EVT_HEADER) == 28 && offsetof(EVT_HEADER, dwEvtNumber) == 2 &&
                  offsetof(EVT_HEADER, bSeverity) == 7 && offsetof(EVT_HEADER, wClass) == 8 &&
                  offsetof(EVT_HEADER, UpdateTime) == 18,
              "as the firmware has it");

#pragma pack(pop)

// The location of an event: the first three bytes of most payloads.

enum EventChassisType : uint8_t {
    kChassisServer = 1,  // the server itself (bId is 0) or an external chassis
    kChassisExternalStorage = 2,
    kChassisInternalStorage = 3,
    kChassisBladeEnclosure = 4,
    kChassisPowerEnclosure = 5,
};

#pragma pack(push, 1)

struct _evtChassis {
    uint8_t bType;  // an EventChassisType
    uint8_t bId;    // server: 0, or the number of an external chassis; storage: slot; enclosure: high byte of
                    // its address
    uint8_t bPort;  // enclosure: low byte of its address; classes 17 to 19: port or bus
};
using EVT_CHASSIS = _evtChassis;
using PEVT_CHASSIS = EVT_CHASSIS*;
static_assert(sizeof(EVT_CHASSIS) == 3 && offsetof(EVT_CHASSIS, bPort) == 2);

#pragma pack(pop)

// The values of the fields bZoneType, bFanZoneType and bDoorZoneType.
enum EventZoneType : uint8_t {
    kZoneSystem = 0,
    kZoneSystemBoard = 1,
    kZoneIoBoard = 2,
    kZoneCpu = 3,
    kZoneMemory = 4,
    kZoneStorage = 5,
    kZoneRemovableMedia = 6,
    kZonePowerSupply = 7,
    kZoneAmbient = 8,
    kZoneChassis = 9,
    kZoneBridgeBoard = 10,
    kZoneManagementBoard = 11,
    kZoneBackplane = 12,
    kZoneNetworkSlot = 13,
    kZoneBladeSlot = 14,
    kZoneVirtual = 15,
};
