#include "Analytics/FocusSessions.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace larkspan::analytics {

std::vector<FocusSession> focusSessions(const std::vector<ActivityTotal>& activities,
                                        const CategoriesByID& catMap) {
    struct Span {
        Date start;
        Date end;
        std::int64_t seconds;
    };
    std::vector<Span> spans;
    for (const ActivityTotal& record : activities) {
        if (record.durationSeconds <= 0 || !std::isfinite(record.startTime) ||
            !isProductive(record, catMap)) {
            continue;
        }
        spans.push_back(
            {record.startTime,
             record.endTime.value_or(record.startTime + static_cast<double>(record.durationSeconds)),
             record.durationSeconds});
    }
    // A load gives them oldest first already.
    const auto byStart = [](const Span& a, const Span& b) { return a.start < b.start; };
    if (!std::is_sorted(spans.begin(), spans.end(), byStart))
        std::stable_sort(spans.begin(), spans.end(), byStart);

    std::vector<FocusSession> sessions;
    std::optional<FocusSession> run;
    const auto close = [&] {
        if (run && run->duration >= kFocusMinimumSeconds)
            sessions.push_back(*run);
        run.reset();
    };
    for (const Span& span : spans) {
        if (run && span.start - run->endTime <= kFocusGapSeconds) {
            run->endTime = span.end;
            run->duration += span.seconds;
            continue;
        }
        close();
        run = FocusSession{span.start, span.end, span.seconds};
    }
    close();

    std::stable_sort(sessions.begin(), sessions.end(),
                     [](const FocusSession& a, const FocusSession& b) { return a.duration > b.duration; });
    return sessions;
}

std::int64_t longestFocusSession(const std::vector<FocusSession>& sessions) {
    std::int64_t longest = 0;
    for (const FocusSession& session : sessions)
        longest = std::max(longest, session.duration);
    return longest;
}

}  // namespace larkspan::analytics
