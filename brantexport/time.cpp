#include "brantexport/time.h"

#include <iterator>

#include "src/utils/utc.h"

namespace {

// The offsets of the two-digit numbers in a string such as "2006-03-15T14:07".
constexpr size_t kOffsets[] = {0, 2, 5, 8, 11, 14};
constexpr std::string_view kForm = "0000-00-00T00:00";

bool IsValid(const TimeParts& parts) {
    const auto [century, year, month, day, hour, minute] = parts;
    return century < 100 && year < 100 && month >= 1 && month <= 12 && day >= 1 &&
           day <= DaysOf(century * 100 + year, month) && hour < 24 && minute < 60;
}

}  // namespace

std::optional<int64_t> TimeOf(const TimeParts& parts) {
    if (!IsValid(parts)) return {};
    int64_t number = 0;
    for (const uint8_t part : parts) number = number * 100 + part;
    return number;
}

std::optional<int64_t> ParseTime(std::string_view text) {
    constexpr size_t kDateSize = 10;
    std::string form(text);
    if (form.size() == kDateSize) form += kForm.substr(kDateSize);
    if (form.size() != kForm.size()) return {};
    for (size_t i = 0; i < form.size(); ++i) {
        const bool is_digit = form[i] >= '0' && form[i] <= '9';
        if (kForm[i] == '0' ? !is_digit : form[i] != kForm[i]) return {};
    }
    TimeParts parts;
    for (size_t i = 0; i < parts.size(); ++i) {
        const char* digits = &form[kOffsets[i]];
        parts[i] = static_cast<uint8_t>((digits[0] - '0') * 10 + digits[1] - '0');
    }
    return TimeOf(parts);
}

void AssignTime(int64_t time, std::string& text) {
    text.assign(kForm);
    for (auto offset = std::rbegin(kOffsets); offset != std::rend(kOffsets); ++offset) {
        text[*offset] = static_cast<char>('0' + time / 10 % 10);
        text[*offset + 1] = static_cast<char>('0' + time % 10);
        time /= 100;
    }
}

time_t SecondsOf(int64_t time) {
    const auto part = [&](int64_t unit) { return static_cast<int>(time / unit % 100); };
    std::tm parts{};
    parts.tm_year = static_cast<int>(time / 100000000) - 1900;
    parts.tm_mon = part(1000000) - 1;
    parts.tm_mday = part(10000);
    parts.tm_hour = part(100);
    parts.tm_min = part(1);
    parts.tm_isdst = -1;  // mktime() finds out whether it is daylight saving time
    return std::mktime(&parts);
}

int64_t LocalTime(time_t seconds) {
    const time_t minute = seconds - seconds % 60;
    const time_t offset = minute - SecondsOf(UtcTime(minute));  // of the time zone
    return UtcTime(minute + offset);
}
