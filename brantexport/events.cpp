#include "brantexport/events.h"

#include <cstdio>
#include <memory>

#include "cli/eventstr/eventstr.h"
#include "cli/misc-commands/event_log.h"

namespace {

// Returns the number of days in the month of `time`, whose bMonth is 1 to 12.
int DaysOf(const EVT_TIME_STAMP& time) {
    constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const int year = time.bCentury * 100 + time.bYear;
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return kDays[time.bMonth - 1] + (time.bMonth == 2 && leap ? 1 : 0);
}

// Converts a time to ISO 8601 format, without a time zone because the firmware stores none. Returns null if
// the time is invalid.
Json Time(const EVT_TIME_STAMP& time) {
    const bool valid = time.bCentury < 100 && time.bYear < 100 && time.bMonth >= 1 && time.bMonth <= 12 &&
                       time.bDay >= 1 && time.bDay <= DaysOf(time) && time.bHour < 24 && time.bMinute < 60;
    if (!valid) return nullptr;
    char text[32];
    std::snprintf(text, sizeof text, "%02d%02d-%02d-%02dT%02d:%02d", time.bCentury, time.bYear, time.bMonth,
                  time.bDay, time.bHour, time.bMinute);
    return text;
}

Json EventOf(uint8_t* buffer, const EVT_HEADER& header) {
    char text[kEventTextSize];
    TranslateEventLogMessage(EntryOf(buffer), text, sizeof text);
    return {
        {"number", uint32_t{header.dwEvtNumber}},
        {"class", uint16_t{header.wClass}},
        {"class_name", Text(EventClassName(header.wClass))},
        {"code", uint16_t{header.wCode}},
        {"severity", Word(SeverityWord(header.bSeverity))},
        {"first_time", Time(header.InitTime)},
        {"last_time", Time(header.UpdateTime)},
        {"text", Text(text)},
    };
}

}  // namespace

Json ExportEvents(Errors& errors) {
    const auto buffer = std::make_unique<EventRead>();
    Json events = Json::array();
    for (uint32_t wanted = 0;;) {
        const int status = ReadEvent(buffer->bytes, sizeof buffer->bytes, wanted);
        if (status == kEndOfLog) return events;
        if (status != kEntryRead) break;
        const EVT_HEADER header = HeaderOf(buffer->bytes);
        events.push_back(EventOf(buffer->bytes, header));
        if (header.dwEvtNumber == UINT32_MAX) return events;
        wanted = header.dwEvtNumber + 1;
    }
    errors.Add("Failed to read the event log to its end.");
    return events.empty() ? Json() : events;
}
