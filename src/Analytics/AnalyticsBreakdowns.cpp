#include "Analytics/AnalyticsBreakdowns.h"

#include "Classification/Palette.h"

#include <algorithm>
#include <unordered_map>

namespace larkspan::analytics {

namespace {

const char* const kUnknownCategoryName = "Other";
const char* const kUnknownCategoryIcon = "❓";
const char* const kUnknownAppIcon = "📦";

double fractionOf(std::int64_t part, std::int64_t whole) {
    return whole > 0 ? static_cast<double>(part) / static_cast<double>(whole) : 0.0;
}

}  // namespace

std::vector<CategoryFigure> categoryFigures(const std::vector<ActivityTotal>& records,
                                            const CategoriesByID& catMap) {
    std::unordered_map<std::int64_t, std::int64_t> secondsByCategory;
    for (const ActivityTotal& record : records) {
        secondsByCategory[effectiveCategoryID(record)] += record.durationSeconds;
    }
    std::vector<CategoryFigure> figures;
    std::int64_t grandTotal = 0;
    for (const auto& [id, seconds] : secondsByCategory) {
        grandTotal += seconds;
        CategoryFigure& figure = figures.emplace_back();
        figure.categoryID = id;
        figure.seconds = seconds;
    }
    std::sort(figures.begin(), figures.end(), [](const CategoryFigure& a, const CategoryFigure& b) {
        return a.seconds != b.seconds ? a.seconds > b.seconds : a.categoryID < b.categoryID;
    });
    if (figures.size() > kCategoryRows)
        figures.resize(kCategoryRows);
    for (CategoryFigure& figure : figures) {
        figure.fraction = fractionOf(figure.seconds, grandTotal);
        const auto found = catMap.find(figure.categoryID);
        if (found != catMap.end()) {
            figure.name = found->second.name;
            figure.icon = found->second.icon;
            figure.color = found->second.color();
        } else {
            figure.name = kUnknownCategoryName;
            figure.icon = kUnknownCategoryIcon;
            figure.color = Palette::grey;
        }
    }
    return figures;
}

std::vector<AppFigure> appFigures(const std::vector<ActivityTotal>& records, const CategoriesByID& catMap) {
    std::vector<AppFigure> figures;
    std::unordered_map<std::string, std::size_t> indexByApp;
    for (const ActivityTotal& record : records) {
        auto [entry, added] = indexByApp.try_emplace(record.appName, figures.size());
        if (added) {
            const auto category = catMap.find(effectiveCategoryID(record));
            AppFigure& figure = figures.emplace_back();
            figure.app = record.appName;
            figure.icon = category != catMap.end() ? category->second.icon : kUnknownAppIcon;
        }
        figures[entry->second].seconds += record.durationSeconds;
    }
    std::sort(figures.begin(), figures.end(), [](const AppFigure& a, const AppFigure& b) {
        return a.seconds != b.seconds ? a.seconds > b.seconds : a.app < b.app;
    });
    const std::int64_t maxApp = figures.empty() ? 1 : figures.front().seconds;
    if (figures.size() > kApplicationRows)
        figures.resize(kApplicationRows);
    for (AppFigure& figure : figures)
        figure.fraction = fractionOf(figure.seconds, maxApp);
    return figures;
}

std::vector<WebsiteFigure> websiteFigures(const std::vector<DomainTotal>& topDomains) {
    const std::int64_t maxDomain = topDomains.empty() ? 1 : topDomains.front().seconds;
    std::vector<WebsiteFigure> figures;
    for (const DomainTotal& total : topDomains) {
        if (figures.size() == kWebsiteRows)
            break;
        WebsiteFigure& figure = figures.emplace_back();
        figure.domain = total.domain;
        figure.seconds = total.seconds;
        figure.fraction = fractionOf(total.seconds, maxDomain);
    }
    return figures;
}

}  // namespace larkspan::analytics
