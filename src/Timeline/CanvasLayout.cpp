#include "Timeline/CanvasLayout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <ctime>

namespace larkspan {

namespace {

// A lane accepts a box whose top is up to this far above the lane's bottom.
constexpr double kLaneTolerance = 4;
// Boxes overlapping by no more than this do not share their rows.
constexpr double kOverlapTolerance = 2;
// Space left between a box and what it was moved below.
constexpr double kPushGap = 2;

double awayBarHeight(double naturalHeight) {
    return std::clamp(naturalHeight, canvas::minimumAwayBarHeight, canvas::maximumAwayBarHeight);
}

}  // namespace

std::optional<NaturalSpan> naturalSpan(const TimelineChapter& chapter, Date dayStart) {
    const double fromStart = chapter.startTime - dayStart;
    const double toEnd = chapter.endTime - dayStart;
    if (std::isnan(fromStart) || std::isnan(toEnd))
        return std::nullopt;
    const double startSec = std::max(0.0, fromStart);
    const double endSec = std::min(canvas::dayLengthSeconds, toEnd);
    if (startSec >= endSec)
        return std::nullopt;
    return NaturalSpan{startSec / 3600 * canvas::hourHeight, (endSec - startSec) / 3600 * canvas::hourHeight};
}

std::vector<PrePlaced> placeChapters(const std::vector<TimelineChapter>& chapters, Date dayStart) {
    std::vector<std::optional<NaturalSpan>> spans;
    std::vector<bool> idle;
    spans.reserve(chapters.size());
    idle.reserve(chapters.size());
    for (const TimelineChapter& chapter : chapters) {
        spans.push_back(naturalSpan(chapter, dayStart));
        idle.push_back(isIdleChapter(chapter));
    }

    // Pass 1: every away bar of the day, so that a box can be pushed past bars that come after it.
    std::vector<IdleBarInfo> bars;
    for (std::size_t i = 0; i < chapters.size(); ++i) {
        if (idle[i] && spans[i])
            bars.push_back({spans[i]->y, awayBarHeight(spans[i]->height)});
    }

    // Pass 2.
    std::array<double, 2> laneBottoms = {0, 0};
    std::vector<PrePlaced> placed;
    placed.reserve(chapters.size());
    for (std::size_t i = 0; i < chapters.size(); ++i) {
        if (!spans[i])
            continue;
        if (idle[i]) {
            const double y = spans[i]->y;
            const double h = awayBarHeight(spans[i]->height);
            placed.push_back({i, y, h, 0, true});
            for (double& bottom : laneBottoms)
                bottom = std::max(bottom, y + h + 1);
            continue;
        }

        const double h = std::max(canvas::minimumChapterHeight, spans[i]->height);
        double y = spans[i]->y;
        for (const IdleBarInfo& bar : bars) {
            if (y < bar.bottom() && bar.nY < y + h)
                y = bar.bottom() + kPushGap;
        }
        int lane = 0;
        if (laneBottoms[0] <= y + kLaneTolerance) {
            lane = 0;
        } else if (laneBottoms[1] <= y + kLaneTolerance) {
            lane = 1;
        } else {
            lane = laneBottoms[1] < laneBottoms[0] ? 1 : 0;
            y = std::max(y, laneBottoms[lane] + kPushGap);
        }
        placed.push_back({i, y, h, lane, false});
        laneBottoms[lane] = y + h;
    }
    return placed;
}

std::vector<double> chapterWidths(const std::vector<PrePlaced>& placed) {
    std::vector<double> widths;
    widths.reserve(placed.size());
    for (const PrePlaced& p : placed) {
        // p overlaps itself, so its rows use two lanes exactly when a box of the other lane overlaps
        // them. A plain pairwise scan: a few milliseconds at most for 2,000 boxes (bench/TimelineBench).
        bool shared = false;
        if (!p.isIdle) {
            for (const PrePlaced& q : placed) {
                if (!q.isIdle && q.lane != p.lane && q.y < p.y + p.h - kOverlapTolerance &&
                    p.y + kOverlapTolerance < q.y + q.h) {
                    shared = true;
                    break;
                }
            }
        }
        widths.push_back(shared ? canvas::laneWidth : canvas::fullWidth);
    }
    return widths;
}

std::vector<PositionedChapter> layoutChapters(const std::vector<TimelineChapter>& chapters, Date dayStart) {
    const std::vector<PrePlaced> placed = placeChapters(chapters, dayStart);
    const std::vector<double> widths = chapterWidths(placed);
    std::vector<PositionedChapter> positioned;
    positioned.reserve(placed.size());
    for (std::size_t k = 0; k < placed.size(); ++k) {
        const PrePlaced& p = placed[k];
        const double x = p.lane * canvas::laneWidth + canvas::leftEdge;
        positioned.push_back({chapters[p.index], CanvasRect{x, p.y, widths[k], p.h}});
    }
    return positioned;
}

double canvasHeight(const std::vector<PositionedChapter>& positioned) {
    const double day = canvas::hourHeight * 24;
    if (positioned.empty())
        return day;
    const CanvasRect& last = positioned.back().frame;
    return std::max(day, last.y + last.height + 40);
}

std::string hourLabel(int hour) {
    const int h = (hour % 24 + 24) % 24;
    if (h == 0)
        return "12a";
    if (h < 12)
        return std::to_string(h) + "a";
    if (h == 12)
        return "12p";
    return std::to_string(h - 12) + "p";
}

std::string hourAnchor(int hour) {
    return "hour-" + std::to_string(hour);
}

int scrollAnchorHour(Date now) {
    // A clock absurdly far off (or NaN) has no local hour; it scrolls to the top.
    if (!(std::fabs(now) < 9e15))
        return 0;
    const auto seconds = static_cast<std::time_t>(std::floor(now));
    std::tm local{};
    if (localtime_r(&seconds, &local) == nullptr)
        return 0;
    return std::max(0, local.tm_hour - 1);
}

double nowLineY(Date dayStart, Date now) {
    return (now - dayStart) / 3600 * canvas::hourHeight;
}

}  // namespace larkspan
