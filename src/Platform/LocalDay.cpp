#include "Platform/LocalDay.h"

#include <cmath>
#include <cstdio>
#include <ctime>
#include <limits>

namespace larkspan {
namespace {

// About 30,000 years either side of 1970: wide enough for any clock, narrow enough for struct tm.
constexpr double kTimeLimit = 1e12;

std::time_t toTimeT(Date instant) {
    if (std::isnan(instant))
        return 0;
    const double clamped = std::fmax(-kTimeLimit, std::fmin(kTimeLimit, std::floor(instant)));
    return static_cast<std::time_t>(clamped);
}

// Local midnight of the day `dayOffset` days after the one in `fields`.
Date midnightOf(std::tm fields, int dayOffset, Date fallback) {
    fields.tm_mday += dayOffset;
    fields.tm_hour = 0;
    fields.tm_min = 0;
    fields.tm_sec = 0;
    fields.tm_isdst = -1;
    const std::time_t t = mktime(&fields);
    return t == static_cast<std::time_t>(-1) ? fallback : static_cast<Date>(t);
}

}  // namespace

std::optional<std::tm> localFields(Date instant) {
    const std::time_t t = toTimeT(instant);
    std::tm fields{};
    if (localtime_r(&t, &fields) == nullptr)
        return std::nullopt;
    return fields;
}

Date startOfLocalDay(Date instant) {
    const auto fields = localFields(instant);
    return fields ? midnightOf(*fields, 0, instant) : instant;
}

Date startOfNextLocalDay(Date instant) {
    const auto fields = localFields(instant);
    return fields ? midnightOf(*fields, 1, instant + 86400) : instant + 86400;
}

std::string localDayString(Date instant) {
    const auto fields = localFields(instant);
    if (!fields)
        return "1970-01-01";
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", fields->tm_year + 1900, fields->tm_mon + 1,
                  fields->tm_mday);
    return text;
}

std::optional<Date> localMidnight(int year, int month, int day) {
    if (day < 1 || day > daysInMonth(year, month))
        return std::nullopt;
    if (year < std::numeric_limits<int>::min() + 1900)
        return std::nullopt;
    std::tm fields{};
    fields.tm_year = year - 1900;
    fields.tm_mon = month - 1;
    fields.tm_mday = day;
    fields.tm_isdst = -1;
    const std::time_t t = mktime(&fields);
    if (t == static_cast<std::time_t>(-1))
        return std::nullopt;
    return static_cast<Date>(t);
}

int daysInMonth(int year, int month) {
    static constexpr int kLengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12)
        return 0;
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : kLengths[month - 1];
}

}  // namespace larkspan
