#include "Classification/Category.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>

namespace larkspan {
namespace {

// The catalogue's shape, and the entries whose change a user would see in every figure.
TEST(Category, SeededCatalogueIsTheTwentyOneCategoriesInOrder) {
    using P = Productivity;
    const auto& seeded = Category::seeded();
    ASSERT_EQ(seeded.size(), 21u);
    std::set<std::string> names;
    int productive = 0, unproductive = 0;
    for (std::size_t i = 0; i < seeded.size(); ++i) {
        const Category& c = seeded[i];
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.id, static_cast<std::int64_t>(i + 1));
        EXPECT_EQ(c.sortOrder, c.id);
        EXPECT_TRUE(c.isSystem);
        EXPECT_EQ(c.parentID, std::nullopt);
        productive += c.productivity == P::productive;
        unproductive += c.productivity == P::unproductive;
        names.insert(c.name);
    }
    EXPECT_EQ(names.size(), seeded.size());
    EXPECT_EQ(productive, 11);
    EXPECT_EQ(unproductive, 5);
    struct Row {
        std::int64_t id;
        const char *name, *colorHex, *icon;
        P productivity;
    };
    for (const Row& row : {Row{2, "Terminal", "#30B0C7", "\xE2\x8C\xA8\xEF\xB8\x8F", P::productive},
                           Row{category_id::awayBreak, "Away / Break", "#8E8E93", "\xE2\x98\x95", P::neutral},
                           Row{category_id::other, "Other", "#AEAEB2", "\xE2\x9D\x93", P::neutral}}) {
        const Category& c = seeded[static_cast<std::size_t>(row.id - 1)];
        EXPECT_EQ(c.name, row.name);
        EXPECT_EQ(c.colorHex, row.colorHex);
        EXPECT_EQ(c.icon, row.icon);  // byte for byte, variation selector included
        EXPECT_EQ(c.productivity, row.productivity) << row.name;
    }
}

TEST(Productivity, RawValuesAndLabels) {
    EXPECT_EQ(productivityFromRaw(1), Productivity::productive);
    EXPECT_EQ(productivityFromRaw(-1), Productivity::unproductive);
    for (std::int64_t raw : {std::int64_t{2}, std::int64_t{-2}, INT64_MIN})
        EXPECT_EQ(productivityFromRaw(raw), std::nullopt) << raw;
    for (Productivity p : {Productivity::productive, Productivity::neutral, Productivity::unproductive})
        EXPECT_EQ(productivityFromRaw(rawValue(p)), p);
}

Color rgb(int r, int g, int b) {
    return Color{r / 255.0, g / 255.0, b / 255.0};
}

TEST(Color, ParsesHexLeniently) {
    const Color green = rgb(0x34, 0xC7, 0x59);
    const std::pair<std::string, Color> cases[] = {
        {"#34C759", green},
        {"34C759", green},
        {"\t\r\n#34c759 \v\f", green},
        {"\u00A0#34C759\u3000", green},  // Unicode blanks are trimmed too
        {"#34C759zz", green},            // reading stops at the first non-hex character
        {std::string("#34C759\0FF", 10), green},
        {"#FF", rgb(0, 0, 0xFF)},                        // two digits: only blue
        {"#12345678", rgb(0x34, 0x56, 0x78)},            // bits above the low 24 are dropped
        {"#FFFFFFFFFFFFFFFFFF", rgb(0xFF, 0xFF, 0xFF)},  // past 64 bits the scan saturates
        {"", rgb(0, 0, 0)},
        {"##34C759", rgb(0, 0, 0)},  // only one "#" is dropped
        {"# 34C759", rgb(0, 0, 0)},  // a blank after the "#" is not a digit
        {"\xFF\xFE", rgb(0, 0, 0)},
        {std::string(100000, 'F'), rgb(0xFF, 0xFF, 0xFF)},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Color::fromHex(text), expected) << '"' << text << '"';
    }
}

}  // namespace
}  // namespace larkspan
