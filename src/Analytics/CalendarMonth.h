// The month grid of the calendar tab: which month is on show and how it moves, the cells of its grid
// (Sunday first, whatever the locale's first weekday), and what each day cell draws — the circle's
// colour, the hours, the pomodoro count — and says to a screen reader. Plain values in and out: the
// present moment and the selected day are passed in, and local days follow the TZ variable.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Classification/Category.h"
#include "Data/Database.h"

namespace larkspan::analytics {

// The heads of the grid's columns, fixed whatever the locale's first day of the week.
inline constexpr std::array<const char*, 7> kWeekdays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

// A calendar month.
struct YearMonth {
    int year = 1970;
    int month = 1;  // 1 to 12

    auto operator<=>(const YearMonth&) const = default;
};

// The local month of `instant`.
YearMonth monthOf(Date instant);
// The month `months` calendar months later (earlier when negative). Moves months, never days, so the
// month after one seen through its 31st is the next month, not the one after.
YearMonth addMonths(YearMonth month, int months);
// `month` lies after the present one; the present month itself is not in the future.
bool isFutureMonth(YearMonth month, Date now);

// The grid's cells in reading order, seven to a row: one empty cell per weekday before the 1st
// (none when it is a Sunday), then the local midnight of every day. No empty cells trail the last
// day. Empty when the month cannot be formed.
std::vector<std::optional<Date>> gridDates(YearMonth month);

// A day of the grid and what the store knows of it.
struct DayCell {
    Date date = 0;                      // local midnight
    int day = 1;                        // 1 to 31
    std::optional<DaySummary> summary;  // absent until the month has loaded
    int pomoCount = 0;
    bool isSelected = false;
    bool isToday = false;
    bool isFuture = false;  // later than now; today is not

    // Tracked hours, 0 without a summary.
    double hoursTracked() const;
};

// The grid of `month` as cells: empty ones, then the days with their summaries (by local day of
// their `date`; none before the month has loaded) and pomodoro counts ("yyyy-MM-dd" keys; a day
// without a key counts 0).
std::vector<std::optional<DayCell>> dayCells(YearMonth month, const std::vector<DaySummary>& summaries,
                                             const std::map<std::string, int>& pomoCounts, Date selectedDate,
                                             Date now);

// A colour at an opacity, 0 to 1.
struct Tint {
    Color color;
    double opacity = 1;
    bool operator==(const Tint&) const = default;
};

// The day's circle: none up to 10 tracked minutes; then green deepening with the productive share
// above 0.6, orange above 0.3, red otherwise (the limits are strict).
std::optional<Tint> productivityColor(const DayCell& cell);
// "4h" over the circle, rounded; empty when nothing was tracked (a day of a few minutes reads "0h").
std::string hoursText(const DayCell& cell);
// "🍅3", empty without a finished pomodoro.
std::string pomodoroText(const DayCell& cell);
// The day's figures for a screen reader, after its date: "4h 12m, 68 % productive, 3 pomodoros",
// "nothing tracked", and "in the future" for days to come.
std::string dayFigures(const DayCell& cell);

}  // namespace larkspan::analytics
