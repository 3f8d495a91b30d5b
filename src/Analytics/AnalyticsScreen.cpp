#include "Analytics/AnalyticsScreen.h"

#include <algorithm>
#include <cmath>

#include "Platform/LocalDay.h"

namespace larkspan::analytics {

namespace {

std::string percent(double fraction) {
    return std::to_string(static_cast<int>(drawnFraction(fraction) * 100)) + " %";
}

}  // namespace

double drawnFraction(double fraction) {
    return std::isnan(fraction) ? 0 : std::clamp(fraction, 0.0, 1.0);
}

std::array<StatTile, 5> statTiles(const AnalyticsSummary& summary) {
    const std::string total = formatTime(summary.totalSeconds);
    const std::string productive = formatTime(summary.productiveSeconds);
    const std::string score = std::to_string(summary.score);
    const std::string pomodoros = std::to_string(summary.pomodoros);
    const std::string sessions = std::to_string(summary.focusCount);
    const std::string days = std::to_string(summary.activeDays);
    return {{
        {"Total Tracked", total, "clock", TileTone::blue, "Total Tracked: " + total},
        {"Productive", productive + " · " + score + "%", "checkmark.circle", TileTone::green,
         "Productive: " + productive + ", " + score + " %"},
        {"Pomodoros", "🍅 " + pomodoros, "timer", TileTone::red, "Pomodoros: " + pomodoros},
        {"Focus Sessions", sessions, "brain.head.profile", TileTone::purple, "Focus Sessions: " + sessions},
        {"Active Days", days, "calendar", TileTone::orange, "Active Days: " + days},
    }};
}

AnalyticsSections analyticsSections(const AnalyticsPage& page, TimeRange range) {
    const bool oneDay = range == TimeRange::day || range == TimeRange::today;
    AnalyticsSections sections;
    sections.dayBar = range == TimeRange::day;
    sections.dailyChart = !oneDay;
    sections.dailyEmpty = page.dailyBars.empty();
    sections.patternSubtitle = oneDay ? analytics_text::patternOneDay : analytics_text::patternAverage;
    sections.patternEmpty = page.hourlyMinutes.empty();
    const std::size_t sessions = page.focusSessions.size();
    sections.sessionsEmpty = sessions == 0;
    if (sessions > 0) {
        sections.sessionCount = std::to_string(sessions) + " sessions";
        sections.longest = "Longest: " + formatTime(page.longestFocusSession);
    }
    if (sessions > kShownFocusSessions)
        sections.moreSessions = "+ " + std::to_string(sessions - kShownFocusSessions) + " more sessions";
    sections.categoriesEmpty = page.categories.empty();
    sections.websites = !page.websites.empty();
    sections.applicationsEmpty = page.applications.empty();
    return sections;
}

std::string dailyBarFigure(const DailyBar& bar) {
    const double share = bar.totalSeconds > 0 ? static_cast<double>(bar.productiveSeconds) /
                                                    static_cast<double>(bar.totalSeconds)
                                              : 0;
    return formatTime(std::max<std::int64_t>(bar.totalSeconds, 0)) + ", " + percent(share) + " productive";
}

std::string hourlyColumnFigure(const HourlyColumn& column) {
    return column.label + ": " + std::to_string(static_cast<std::int64_t>(std::max(column.value, 0.0))) +
           " productive minutes";
}

std::string shareFigure(std::int64_t seconds, double fraction) {
    return formatTime(std::max<std::int64_t>(seconds, 0)) + ", " + percent(fraction);
}

bool canStepForward(Date selectedDay, Date now) {
    return startOfLocalDay(selectedDay) < startOfLocalDay(now);
}

Date stepDay(Date selectedDay, int days, Date now) {
    Date day = startOfLocalDay(selectedDay);
    for (; days < 0; ++days)
        day = startOfLocalDay(day - 1);
    for (; days > 0 && canStepForward(day, now); --days)
        day = startOfNextLocalDay(day);
    return day;
}

}  // namespace larkspan::analytics
