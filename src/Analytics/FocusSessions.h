// Focus sessions: uninterrupted stretches of productive work of at least 25 minutes.
//
// Only productive records are looked at. A run goes on while each next productive record starts at
// most 300 seconds after the end of the one before; anything else in between (neutral work, social
// media, an away span) breaks the run only by leaving such a gap.
//
//   productive   [==15m==]            [==15m==]            [==10m==]
//   other                 [-4m-]                 [---6m---]
//   runs         [=========== 1800 s =========]            [==600==]
//   sessions     (start, end, 1800)                         (none: under 1500)
//
// A session's duration is the sum of its records, not end minus start: bridged pauses don't count.
#pragma once

#include <cstdint>
#include <vector>

#include "Analytics/EffectiveCategory.h"
#include "Platform/Clock.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan::analytics {

inline constexpr double kFocusGapSeconds = 300;             // a gap of exactly this still joins
inline constexpr std::int64_t kFocusMinimumSeconds = 1500;  // a run of exactly this counts

struct FocusSession {
    Date startTime = 0;
    Date endTime = 0;
    std::int64_t duration = 0;  // seconds of productive records in the session
    bool operator==(const FocusSession&) const = default;
};

// The focus sessions among `activities`, longest first; sessions of equal length in start order.
// Records that are not productive, or have a duration of 0 or less, or a start that is not a finite
// instant, take no part. A record's end is its `endTime`, or start plus duration while it is open.
// Within a run the end is replaced by each joining record's end, never the larger of the two.
std::vector<FocusSession> focusSessions(const std::vector<ActivityTotal>& activities,
                                        const CategoriesByID& catMap);

// The greatest duration among `sessions`; 0 when there are none.
std::int64_t longestFocusSession(const std::vector<FocusSession>& sessions);

}  // namespace larkspan::analytics
