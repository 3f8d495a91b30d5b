#include "Analytics/TimeRange.h"

#include <gtest/gtest.h>

#include "Analytics/LocalDayCache.h"
#include "LocalInstant.h"
#include "ScopedTimeZone.h"

namespace larkspan::analytics {
namespace {

using namespace test;

LocalDay dayOf(Date instant) {
    return LocalDayCache().dayOf(instant);
}

TEST(TimeRange, PeriodsAndPomodoroDaysOfEveryRangeAndClockChangeDays) {
    ScopedTimeZone zone{"America/New_York"};
    // Wednesday 18 November 2026, 15:00; summer time ended on 1 November.
    const Date now = localInstant(2026, 11, 18, 15);
    const Date pastDay = localInstant(2026, 11, 10, 9, 30);
    struct Case {
        TimeRange range;
        Date selectedDay;
        Date from;
        Date to;
        LocalDay firstPomodoroDay;
        LocalDay lastPomodoroDay;
    };
    const Case cases[] = {
        // Today's `day` ends now; a past `day` ends at its next midnight yet counts its own pomodoros only.
        {TimeRange::day, now, localInstant(2026, 11, 18), now, {2026, 11, 18}, {2026, 11, 18}},
        {TimeRange::day,
         pastDay,
         localInstant(2026, 11, 10),
         localInstant(2026, 11, 11),
         {2026, 11, 10},
         {2026, 11, 10}},
        // `today` ignores the selected day.
        {TimeRange::today, pastDay, localInstant(2026, 11, 18), now, {2026, 11, 18}, {2026, 11, 18}},
        // Rolling windows reach back exact seconds (so the wall clock shows 16:00 across the change
        // of 1 November), while their pomodoros cover 8, 31 and 91 whole local days.
        {TimeRange::week, now, localInstant(2026, 11, 11, 15), now, {2026, 11, 11}, {2026, 11, 18}},
        {TimeRange::month, now, localInstant(2026, 10, 19, 16), now, {2026, 10, 19}, {2026, 11, 18}},
        {TimeRange::threeMonths, now, localInstant(2026, 8, 20, 16), now, {2026, 8, 20}, {2026, 11, 18}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(rawValue(c.range));
        const DateInterval period = dateRange(c.range, c.selectedDay, now);
        EXPECT_EQ(period, (DateInterval{c.from, c.to}));
        const DateInterval pomodoros = pomodoroDays(c.range, c.selectedDay, period);
        EXPECT_EQ(dayOf(pomodoros.from), c.firstPomodoroDay);
        EXPECT_EQ(dayOf(pomodoros.to), c.lastPomodoroDay);
    }
    // Clocks went forward at 02:00 on 8 March 2026 and back at 02:00 on 1 November.
    const DateInterval spring = dateRange(TimeRange::day, localInstant(2026, 3, 8, 12), now);
    EXPECT_EQ(spring.from, localInstant(2026, 3, 8));
    EXPECT_EQ(spring.to - spring.from, 23 * 3600);
    const DateInterval autumn = dateRange(TimeRange::day, localInstant(2026, 11, 1, 23, 59), now);
    EXPECT_EQ(autumn.to - autumn.from, 25 * 3600);
}

}  // namespace
}  // namespace larkspan::analytics
