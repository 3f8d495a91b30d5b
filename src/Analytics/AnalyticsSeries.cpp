#include "Analytics/AnalyticsSeries.h"

#include <algorithm>
#include <climits>

#include "Analytics/AnalyticsCalculations.h"
#include "Analytics/LocalDayCache.h"
#include "Timeline/CanvasLayout.h"

namespace larkspan::analytics {

std::vector<DailyBar> dailySeries(const std::vector<ActivityTotal>& records, const CategoriesByID& catMap,
                                  double chartHeight) {
    struct Day {
        int ordinal;  // the oldest date in the group; orders groups across a change of year
        DailyBar bar;
    };
    LocalDayCache days;
    std::vector<Day> series;
    for (const auto& [key, group] : groupByDay(records)) {
        Day day{INT_MAX, {}};
        day.bar.key = key;
        day.bar.label = dayLabel(key);
        for (const ActivityTotal* record : group) {
            day.ordinal = std::min(day.ordinal, days.dayOf(record->startTime).ordinal());
            day.bar.totalSeconds += record->durationSeconds;
            if (isProductive(*record, catMap))
                day.bar.productiveSeconds += record->durationSeconds;
        }
        series.push_back(std::move(day));
    }
    std::sort(series.begin(), series.end(), [](const Day& a, const Day& b) { return a.ordinal < b.ordinal; });

    // Totals of 0 or less cannot scale the chart; the largest then counts as 1 second.
    std::int64_t maxDay = 1;
    for (const Day& day : series)
        maxDay = std::max(maxDay, day.bar.totalSeconds);

    std::vector<DailyBar> bars;
    bars.reserve(series.size());
    for (Day& day : series) {
        DailyBar& bar = day.bar;
        bar.height = std::max(kMinimumBarHeight, chartHeight * static_cast<double>(bar.totalSeconds) /
                                                     static_cast<double>(maxDay));
        const double share = bar.totalSeconds > 0 ? static_cast<double>(bar.productiveSeconds) /
                                                        static_cast<double>(bar.totalSeconds)
                                                  : 0.0;
        bar.productiveHeight = bar.height * share;
        bars.push_back(std::move(bar));
    }
    return bars;
}

HourlyMinutes hourlyProductiveMinutes(const std::vector<ActivityTotal>& records,
                                      const CategoriesByID& catMap) {
    const double days = static_cast<double>(std::max<std::int64_t>(1, uniqueDays(records)));
    LocalDayCache hours;
    HourlyMinutes minutes;
    for (const ActivityTotal& record : records) {
        if (record.durationSeconds <= 0 || !isProductive(record, catMap))
            continue;
        minutes[hours.hourOf(record.startTime)] += static_cast<double>(record.durationSeconds) / 60;
    }
    for (auto& [hour, value] : minutes)
        value /= days;
    return minutes;
}

std::vector<HourlyColumn> hourlyChart(const HourlyMinutes& minutes, double chartHeight) {
    std::vector<HourlyColumn> columns;
    double maxHour = 0;
    for (int hour = kFirstChartHour; hour <= kLastChartHour; ++hour) {
        const auto found = minutes.find(hour);
        const double value = found == minutes.end() ? 0.0 : found->second;
        HourlyColumn& column = columns.emplace_back();
        column.hour = hour;
        column.label = hourLabel(hour);
        column.value = value;
        maxHour = std::max(maxHour, value);
    }
    for (HourlyColumn& column : columns) {
        if (maxHour > 0) {
            column.height = std::max(kMinimumBarHeight, chartHeight * column.value / maxHour);
            column.intensity = column.value / maxHour;
        } else {
            column.height = kMinimumBarHeight;
        }
        column.opacity = 0.2 + 0.7 * column.intensity;
    }
    return columns;
}

}  // namespace larkspan::analytics
