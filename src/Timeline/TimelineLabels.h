// The texts that caption blocks and chapters: the duration form of the canvas, the panels and the
// summary line, and the lines a chapter shows on the canvas and in its detail panel.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Classification/Category.h"
#include "Timeline/TimelineGrouping.h"

namespace larkspan {

// "45s" below a minute, "3m 7s" below an hour, "2h 5m" from an hour on (integer division; a negative
// count reads as seconds).
std::string formatDuration(std::int64_t seconds);

// The title of the chapter's longest activity.
std::string chapterTitle(const TimelineChapter& chapter);

// The second line of a box on the canvas: "3 visits · 12m 0s" for a merged chapter, else the engaged
// time alone.
std::string chapterCanvasLine(const TimelineChapter& chapter);

// The caption in the detail panel, naming the dominant category found in `categories`: "3 activities
// · Coding" or "Mixed" for a merged chapter, the name or "Uncategorized" for a single activity.
std::string chapterCaption(const TimelineChapter& chapter, const std::vector<Category>& categories);

}  // namespace larkspan
