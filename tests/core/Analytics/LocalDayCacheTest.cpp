#include "Analytics/LocalDayCache.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>

#include "LocalInstant.h"
#include "ScopedTimeZone.h"

namespace larkspan::analytics {
namespace {

using namespace test;

TEST(LocalDayCache, AgreesWithTheZoneAcrossAYearOfClockChanges) {
    // New York changes at 02:00; Havana and Santiago skip midnight itself, and Santiago repeats the
    // hour before it; Lord Howe moves by half an hour. Walked forwards and backwards (entering each
    // day at its end), in steps that are no multiple of an hour.
    for (const char* zoneName :
         {"America/New_York", "America/Havana", "America/Santiago", "Australia/Lord_Howe"}) {
        SCOPED_TRACE(zoneName);
        ScopedTimeZone zone{zoneName};
        const Date first = localInstant(2026, 1, 1);
        const Date last = localInstant(2027, 1, 1);
        LocalDayCache forward;
        LocalDayCache backward;
        int mismatches = 0;
        const auto agrees = [](LocalDayCache& cache, Date t) {
            const time_t whole = static_cast<time_t>(t);
            std::tm parts{};
            localtime_r(&whole, &parts);
            return cache.dayOf(t) == LocalDay{parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday} &&
                   cache.hourOf(t) == parts.tm_hour;
        };
        for (Date t = first; t < last; t += 599) {
            if (!agrees(forward, t) || !agrees(backward, last - (t - first)))
                ++mismatches;
        }
        EXPECT_EQ(mismatches, 0);
    }
}

TEST(LocalDayCache, InstantsThatAreNoTimeDoNotBreakIt) {
    ScopedTimeZone zone{"UTC"};
    LocalDayCache cache;
    EXPECT_EQ(cache.dayOf(std::numeric_limits<double>::quiet_NaN()), (LocalDay{1970, 1, 1}));
    EXPECT_EQ(cache.hourOf(std::numeric_limits<double>::infinity()), cache.hourOf(1e300));
    EXPECT_GT(cache.dayOf(1e300).year, 5000);
    EXPECT_LT(cache.dayOf(-1e300).year, -1000);
}

}  // namespace
}  // namespace larkspan::analytics
