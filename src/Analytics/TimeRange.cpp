#include "Analytics/TimeRange.h"

#include <algorithm>

#include "Platform/LocalDay.h"

namespace larkspan::analytics {

namespace {

constexpr double kWeekSeconds = 604800;
constexpr double kMonthSeconds = 2592000;
constexpr double kThreeMonthsSeconds = 7776000;

}  // namespace

const char* rawValue(TimeRange range) {
    switch (range) {
        case TimeRange::day:
            return "Day";
        case TimeRange::today:
            return "Today";
        case TimeRange::week:
            return "Week";
        case TimeRange::month:
            return "Month";
        case TimeRange::threeMonths:
            break;
    }
    return "3 Months";
}

DateInterval dateRange(TimeRange range, Date selectedDay, Date now) {
    switch (range) {
        case TimeRange::day:
            return {startOfLocalDay(selectedDay), std::min(startOfNextLocalDay(selectedDay), now)};
        case TimeRange::today:
            return {startOfLocalDay(now), now};
        case TimeRange::week:
            return {now - kWeekSeconds, now};
        case TimeRange::month:
            return {now - kMonthSeconds, now};
        case TimeRange::threeMonths:
            break;
    }
    return {now - kThreeMonthsSeconds, now};
}

DateInterval pomodoroDays(TimeRange range, Date selectedDay, const DateInterval& period) {
    if (range == TimeRange::day)
        return {selectedDay, selectedDay};
    return period;
}

}  // namespace larkspan::analytics
