// The clock and the calendar in UTC. These functions don't call gmtime(): linking a C function costs 1,000
// instructions at each start of a program, and gmtime() also reads the file of the time zone.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>

constexpr int kSecondsOfDay = 24 * 60 * 60;

// Returns the milliseconds since the start of 1970, or 0 if the clock shows an earlier time.
int64_t Milliseconds();

// Returns the number of days of a month (1 to 12) in the Gregorian calendar.
int DaysOf(int64_t year, int month);

// Converts seconds since 1970, at least 0, to a number that consists of the digits of year, month, day, hour
// and minute: 200603151407.
int64_t UtcTime(time_t seconds);

// Formats seconds since 1970, at least 0, as in ISO 8601: "2026-11-25T12:30:00Z".
std::string UtcText(int64_t seconds);

// Formats them as in HTTP: "Wed, 25 Nov 2026 12:30:00 GMT".
std::string HttpDate(int64_t seconds);
