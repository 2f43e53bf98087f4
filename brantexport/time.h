// Times of the event log, which have no time zone because the firmware stores none. A time is a number that
// consists of the digits of year, month, day, hour and minute: 200603151407. So a later time is a higher
// number.
#pragma once

#include <array>
#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>

// Century, year of the century, month, day, hour and minute.
using TimeParts = std::array<uint8_t, 6>;

// Converts the parts to a time. Returns nullopt if the time is invalid, such as February 30.
std::optional<int64_t> TimeOf(const TimeParts& parts);

// Parses a time such as "2006-03-15T14:07", or a date, which is that day at 00:00. Returns nullopt if `text`
// has another form or the time is invalid.
std::optional<int64_t> ParseTime(std::string_view text);

// Stores a time in `text` in the format of ISO 8601: "2006-03-15T14:07".
void AssignTime(int64_t time, std::string& text);

// Converts a time in the server's time zone to seconds since 1970. Returns -1 if a time_t can't hold them.
time_t SecondsOf(int64_t time);

// Converts seconds since 1970 to a time in the server's time zone. Is wrong during the hours before and after
// a change of the time zone's offset.
int64_t LocalTime(time_t seconds);
