#include "Timeline/TimelineLabels.h"

#include <optional>

namespace larkspan {

std::string formatDuration(std::int64_t seconds) {
    if (seconds < 60)
        return std::to_string(seconds) + "s";
    if (seconds < 3600)
        return std::to_string(seconds / 60) + "m " + std::to_string(seconds % 60) + "s";
    return std::to_string(seconds / 3600) + "h " + std::to_string(seconds % 3600 / 60) + "m";
}

std::string chapterTitle(const TimelineChapter& chapter) {
    return chapter.primaryActivity().displayTitle();
}

std::string chapterCanvasLine(const TimelineChapter& chapter) {
    const std::string engaged = formatDuration(chapter.engagedSeconds());
    if (!chapter.isMerged())
        return engaged;
    return std::to_string(chapter.activities.size()) + " visits \u00B7 " + engaged;
}

std::string chapterCaption(const TimelineChapter& chapter, const std::vector<Category>& categories) {
    const Category* cat = categoryWithID(categories, chapter.dominantCategoryID());
    if (!chapter.isMerged())
        return cat ? cat->name : "Uncategorized";
    return std::to_string(chapter.activities.size()) + " activities \u00B7 " + (cat ? cat->name : "Mixed");
}

}  // namespace larkspan
