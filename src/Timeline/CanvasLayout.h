// The geometry of the day canvas: a day drawn to scale at 100 points to the hour, y growing down
// from the start of the day. Chapters get a box of at least 22 points, away spans a bar of 28 to 50
// points at their true time; boxes that would collide move down past bars and share two lanes.
//
// Pure functions of their inputs: the chapters, the start of the selected day and, where needed, the
// present moment. Nothing is kept between two layouts. The scale counts elapsed seconds, so on a day
// with a clock change it does not follow the change, and time beyond 86400 seconds is cut off.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Clock.h"
#include "Timeline/TimelineGrouping.h"

namespace larkspan {

namespace canvas {
inline constexpr double hourHeight = 100;
inline constexpr double timeColumnWidth = 48;
inline constexpr double dayLengthSeconds = 86400;
inline constexpr double minimumChapterHeight = 22;
inline constexpr double minimumAwayBarHeight = 28;
inline constexpr double maximumAwayBarHeight = 50;
inline constexpr double leftEdge = 8;     // x of lane 0 and of away bars
inline constexpr double laneWidth = 145;  // x step of a lane; width of a box that shares its rows
inline constexpr double fullWidth = 290;  // width of an away bar and of a box alone at its rows
inline constexpr double nowLineX = timeColumnWidth + 8;
}  // namespace canvas

// A rectangle in canvas points, before the time column's offset.
struct CanvasRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const CanvasRect&) const = default;
};

struct PositionedChapter {
    TimelineChapter chapter;
    CanvasRect frame;
    bool operator==(const PositionedChapter&) const = default;
};

// Where a chapter falls on the day's scale before any adjustment.
struct NaturalSpan {
    double y = 0;
    double height = 0;
};

// Natural y and height of a chapter: its time inside [dayStart, dayStart + 86400] at hourHeight
// points per hour. Absent when no time of it lies inside the day (including a chapter without
// length and one that starts exactly at the next midnight).
std::optional<NaturalSpan> naturalSpan(const TimelineChapter& chapter, Date dayStart);

// An away bar as the placing pass sees it.
struct IdleBarInfo {
    double nY = 0;  // natural y
    double h = 0;   // natural height held to 28...50
    double bottom() const { return nY + h; }
};

// One chapter after placing: final y and height, its lane (0 or 1; 0 for an away chapter), and the
// position of the chapter in the list given to placeChapters.
struct PrePlaced {
    std::size_t index = 0;
    double y = 0;
    double h = 0;
    int lane = 0;
    bool isIdle = false;
};

// Passes 1 and 2 of the layout, in chapter order, leaving out chapters with no time in the day.
// Away bars stay at their true time; any other box is pushed below every bar it would overlap, then
// takes the first lane whose bottom is at most 4 points below its top, or else the emptier lane
// further down.
std::vector<PrePlaced> placeChapters(const std::vector<TimelineChapter>& chapters, Date dayStart);

// Pass 3: the width of each placed record, in order. An away bar is full width; any other box is a
// lane wide when a box of the other lane overlaps its rows by more than 2 points, else full width.
std::vector<double> chapterWidths(const std::vector<PrePlaced>& placed);

// The frames of the chapters of one day, in chapter order, without those that have no time in it.
std::vector<PositionedChapter> layoutChapters(const std::vector<TimelineChapter>& chapters, Date dayStart);

// The canvas height: 24 hours, or more when the last frame of the list (not the lowest) reaches
// within 40 points of the end.
double canvasHeight(const std::vector<PositionedChapter>& positioned);

// The label of a grid row: "12a", "1a" ... "11a", "12p", "1p" ... "11p". Hours outside 0...23 are
// taken modulo 24.
std::string hourLabel(int hour);

// The identifier of a grid row, the target of scrolling: "hour-" and the hour.
std::string hourAnchor(int hour);

// The grid row scrolled to the top when the canvas appears: the local hour of `now`, less one, at
// least 0, whichever day is shown. Honours TZ.
int scrollAnchorHour(Date now);

// The y of the line that marks the present: elapsed seconds since the day start at hourHeight per hour.
double nowLineY(Date dayStart, Date now);

}  // namespace larkspan
