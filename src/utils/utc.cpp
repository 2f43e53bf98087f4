#include "src/utils/utc.h"

#include <sys/time.h>

#include <algorithm>
#include <cstdio>

namespace {

int DaysOfYear(int64_t year) {
    return 365 + DaysOf(year, 2) - 28;
}

// Parts of a time, as in UtcTime().
int YearOf(int64_t time) {
    return static_cast<int>(time / 100000000);
}

// `unit` is the value of the part's last digit.
int PartOf(int64_t time, int64_t unit) {
    return static_cast<int>(time / unit % 100);
}

constexpr int64_t kMonth = 1000000;
constexpr int64_t kDay = 10000;
constexpr int64_t kHour = 100;
constexpr int64_t kMinute = 1;

}  // namespace

int64_t Milliseconds() {
    timeval now{};
    gettimeofday(&now, nullptr);
    return std::max(int64_t{now.tv_sec} * 1000 + now.tv_usec / 1000, int64_t{0});
}

int DaysOf(int64_t year, int month) {
    constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return kDays[month - 1] + (month == 2 && leap ? 1 : 0);
}

int64_t UtcTime(time_t seconds) {
    auto day = static_cast<int>(seconds / kSecondsOfDay);
    int64_t year = 1970;
    for (; day >= DaysOfYear(year); ++year) day -= DaysOfYear(year);
    int month = 1;
    for (; day >= DaysOf(year, month); ++month) day -= DaysOf(year, month);
    const auto minute = static_cast<int>(seconds % kSecondsOfDay / 60);
    return (((year * 100 + month) * 100 + day + 1) * 100 + minute / 60) * 100 + minute % 60;
}

std::string UtcText(int64_t seconds) {
    const int64_t time = UtcTime(static_cast<time_t>(seconds));
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02dT%02d:%02d:%02dZ", YearOf(time), PartOf(time, kMonth),
                  PartOf(time, kDay), PartOf(time, kHour), PartOf(time, kMinute),
                  static_cast<int>(seconds % 60));
    return text;
}

std::string HttpDate(int64_t seconds) {
    constexpr const char* kDays[] = {"Thu", "Fri", "Sat", "Sun",
                                     "Mon", "Tue", "Wed"};  // 1970 began on a Thursday
    constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const int64_t time = UtcTime(static_cast<time_t>(seconds));
    char text[32];
    std::snprintf(text, sizeof text, "%s, %02d %s %04d %02d:%02d:%02d GMT",
                  kDays[seconds / kSecondsOfDay % 7], PartOf(time, kDay), kMonths[PartOf(time, kMonth) - 1],
                  YearOf(time), PartOf(time, kHour), PartOf(time, kMinute), static_cast<int>(seconds % 60));
    return text;
}
