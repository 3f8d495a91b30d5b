#include "Analytics/AnalyticsBreakdowns.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "CategorizedRecord.h"

namespace larkspan::analytics {
namespace {

ActivityTotal record(std::string app, std::int64_t seconds, std::optional<std::int64_t> category) {
    return test::record(0, seconds, category, std::move(app));
}

TEST(CategoryFigures, EightLongestWithFractionsOfEveryCategory) {
    const CategoriesByID catMap = categoriesByID(Category::seeded());
    // Nine categories: 1 to 8 with 100 to 800 seconds, one with 50 that drops out of the list but
    // stays in the total of 3650. No category counts under 21; two ids tie at 300.
    std::vector<ActivityTotal> records;
    for (std::int64_t id = 1; id <= 7; ++id)
        records.push_back(record("App", id * 100, id));
    records.push_back(record("App", 500, std::nullopt));
    records.push_back(record("App", 300, 21));
    records.push_back(record("App", 50, 99));
    const auto figures = categoryFigures(records, catMap);
    ASSERT_EQ(figures.size(), 8u);
    std::vector<std::pair<std::int64_t, std::int64_t>> rows;
    for (const CategoryFigure& f : figures)
        rows.emplace_back(f.categoryID, f.seconds);
    EXPECT_EQ(rows, (std::vector<std::pair<std::int64_t, std::int64_t>>{
                        {21, 800}, {7, 700}, {6, 600}, {5, 500}, {4, 400}, {3, 300}, {2, 200}, {1, 100}}));
    EXPECT_DOUBLE_EQ(figures[0].fraction, 800.0 / 3650.0);
    EXPECT_EQ(figures[1].color, Color::fromHex(catMap.at(7).colorHex));

    // An unknown id keeps its own row, as Other.
    const auto unknown = categoryFigures({record("App", 60, 99), record("App", 0, 1)}, categoriesByID({}));
    ASSERT_EQ(unknown.size(), 2u);
    EXPECT_EQ(unknown[0], (CategoryFigure{99, 60, 1.0, "Other", "❓", Color::fromHex("#8E8E93")}));
    EXPECT_EQ(unknown[1].fraction, 0.0);
    EXPECT_TRUE(categoryFigures({}, categoriesByID({})).empty());
}

TEST(AppFigures, OneRowPerNameWithItsFirstIconScaledToTheLongest) {
    const CategoriesByID catMap = categoriesByID(Category::seeded());
    std::vector<ActivityTotal> records = {record("Browser", 100, 17), record("Browser", 500, 1),
                                          record("Away", 300, 15), record("Away", 100, 15),
                                          record("Mystery", 200, 99)};
    for (int i = 0; i < 10; ++i)
        records.push_back(record("Tool " + std::to_string(i), 10, 1));
    const auto figures = appFigures(records, catMap);
    ASSERT_EQ(figures.size(), 10u);
    EXPECT_EQ(figures[0].app, "Browser");
    EXPECT_EQ(figures[0].seconds, 600);
    EXPECT_EQ(figures[0].icon, catMap.at(17).icon);  // its first record's category, not its largest
    EXPECT_EQ(figures[0].fraction, 1.0);
    EXPECT_EQ(figures[1].app, "Away");
    EXPECT_DOUBLE_EQ(figures[1].fraction, 400.0 / 600.0);
    // Equal seconds fall in name order; the last three tools drop out.
    EXPECT_EQ(figures[3].app, "Tool 0");
    EXPECT_EQ(figures[9].app, "Tool 6");
    // A longest application of 0 seconds leaves every bar empty rather than dividing by zero.
    EXPECT_EQ(appFigures({record("Idle", 0, 1)}, catMap)[0].fraction, 0.0);
}

TEST(WebsiteFigures, FirstEightInTheStoreOrderScaledToTheFirst) {
    std::vector<DomainTotal> loaded;
    for (int i = 0; i < 10; ++i)
        loaded.push_back({"site" + std::to_string(i) + ".example", 400 - 20 * i});
    const auto figures = websiteFigures(loaded);
    ASSERT_EQ(figures.size(), 8u);
    EXPECT_EQ(figures[0], (WebsiteFigure{"site0.example", 400, 1.0}));
    EXPECT_EQ(figures[7], (WebsiteFigure{"site7.example", 260, 0.65}));
    EXPECT_TRUE(websiteFigures({}).empty());
    EXPECT_EQ(websiteFigures({{"blank.example", 0}})[0].fraction, 0.0);
}

}  // namespace
}  // namespace larkspan::analytics
