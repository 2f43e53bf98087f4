#include "brantexport/events.h"

#include "brantexport/time.h"
#include "cli/eventstr/eventstr.h"
#include "cli/misc-commands/event_log.h"

namespace {

// Returns null if the time is invalid.
Value Time(const EVT_TIME_STAMP& time) {
    const std::optional<int64_t> number =
        TimeOf({time.bCentury, time.bYear, time.bMonth, time.bDay, time.bHour, time.bMinute});
    return number ? Value(Value::Kind::Time, *number) : Value();
}

void WriteEvent(Writer& writer, uint8_t* buffer, const EVT_HEADER& header) {
    char text[kEventTextSize] = "";
    if (writer.NeedsEventTexts()) TranslateEventLogMessage(EntryOf(buffer), text, sizeof text);
    writer.BeginObject();
    writer.Add("number", uint32_t{header.dwEvtNumber});
    writer.Add("class", uint16_t{header.wClass});
    writer.Add("class_name", Text(EventClassName(header.wClass)));
    writer.Add("code", uint16_t{header.wCode});
    writer.Add("severity", Word(SeverityWord(header.bSeverity)));
    writer.Add("first_time", Time(header.InitTime));
    writer.Add("last_time", Time(header.UpdateTime));
    writer.Add("text", Text(text));
    writer.EndObject();
}

}  // namespace

void WriteEvents(Writer& writer, Errors& errors) {
    constexpr char kFailed[] = "Failed to read the event log to its end.";
    EventRead read;
    int status = ReadEvent(read.bytes, sizeof read.bytes, 0);
    if (status != kEntryRead && status != kEndOfLog) return writer.Put(errors.Add(kFailed));
    writer.BeginList();
    while (status == kEntryRead) {
        const EVT_HEADER header = HeaderOf(read.bytes);
        WriteEvent(writer, read.bytes, header);
        const bool is_last = header.dwEvtNumber == UINT32_MAX;
        status = is_last ? kEndOfLog : ReadEvent(read.bytes, sizeof read.bytes, header.dwEvtNumber + 1);
    }
    writer.EndList();
    if (status != kEndOfLog) errors.Add(kFailed);
}
