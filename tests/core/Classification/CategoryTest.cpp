#include "Classification/Category.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>

namespace larkspan {
namespace {

TEST(Category, SeededCatalogueIsTheTwentyOneCategoriesInOrder) {
    struct Row {
        const char* name;
        const char* colorHex;
        const char* icon;
        Productivity productivity;
    };
    using P = Productivity;
    const Row expected[] = {
        {"Coding", "#34C759", "\xF0\x9F\x92\xBB", P::productive},
        {"Terminal", "#30B0C7", "\xE2\x8C\xA8\xEF\xB8\x8F", P::productive},
        {"Writing", "#AF52DE", "\xE2\x9C\x8D\xEF\xB8\x8F", P::productive},
        {"Learning", "#FF9F0A", "\xF0\x9F\x93\x9A", P::productive},
        {"Email", "#007AFF", "\xF0\x9F\x93\xA7", P::productive},
        {"Communication", "#FFD60A", "\xF0\x9F\x92\xAC", P::productive},
        {"Planning", "#32ADE6", "\xF0\x9F\x93\x8B", P::productive},
        {"Design", "#FF375F", "\xF0\x9F\x8E\xA8", P::productive},
        {"AI Tools", "#5E5CE6", "\xF0\x9F\xA4\x96", P::productive},
        {"Reading", "#A2845E", "\xF0\x9F\x93\x96", P::productive},
        {"Research", "#6C6C70", "\xF0\x9F\x94\x8D", P::productive},
        {"Music", "#FF2D55", "\xF0\x9F\x8E\xB5", P::neutral},
        {"System", "#8E8E93", "\xE2\x9A\x99\xEF\xB8\x8F", P::neutral},
        {"Files", "#FF9500", "\xF0\x9F\x93\x81", P::neutral},
        {"Away / Break", "#8E8E93", "\xE2\x98\x95", P::neutral},
        {"Entertainment", "#FF3B30", "\xF0\x9F\x8E\xAC", P::unproductive},
        {"Social Media", "#FF6B35", "\xF0\x9F\x93\xB1", P::unproductive},
        {"Shopping", "#FF3B30", "\xF0\x9F\x9B\x8D\xEF\xB8\x8F", P::unproductive},
        {"Gaming", "#BF5AF2", "\xF0\x9F\x8E\xAE", P::unproductive},
        {"Timepass", "#C7C7CC", "\xF0\x9F\x98\xB4", P::unproductive},
        {"Other", "#AEAEB2", "\xE2\x9D\x93", P::neutral},
    };
    const auto& seeded = Category::seeded();
    ASSERT_EQ(seeded.size(), std::size(expected));
    std::set<std::string> names;
    for (std::size_t i = 0; i < seeded.size(); ++i) {
        const Category& c = seeded[i];
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.id, static_cast<std::int64_t>(i + 1));
        EXPECT_EQ(c.name, expected[i].name);
        EXPECT_EQ(c.colorHex, expected[i].colorHex);
        EXPECT_EQ(c.icon, expected[i].icon);  // byte for byte, variation selectors included
        EXPECT_EQ(c.productivity, expected[i].productivity);
        EXPECT_EQ(c.sortOrder, c.id);
        EXPECT_TRUE(c.isSystem);
        EXPECT_EQ(c.parentID, std::nullopt);
        names.insert(c.name);
    }
    EXPECT_EQ(names.size(), seeded.size());
    EXPECT_EQ(seeded[category_id::awayBreak - 1].name, "Away / Break");
    EXPECT_EQ(seeded[category_id::other - 1].name, "Other");
}

TEST(Category, ExactlyFourIconsCarryTheVariationSelector) {
    const std::string selector = "\xEF\xB8\x8F";  // U+FE0F
    std::set<std::int64_t> withSelector;
    for (const Category& c : Category::seeded()) {
        if (c.icon.find(selector) != std::string::npos) {
            withSelector.insert(c.id);
            EXPECT_TRUE(c.icon.ends_with(selector)) << c.name;
        }
    }
    EXPECT_EQ(withSelector, (std::set<std::int64_t>{2, 3, 13, 18}));
}

TEST(Productivity, RawValuesAndLabels) {
    EXPECT_EQ(productivityFromRaw(1), Productivity::productive);
    EXPECT_EQ(productivityFromRaw(0), Productivity::neutral);
    EXPECT_EQ(productivityFromRaw(-1), Productivity::unproductive);
    for (std::int64_t raw : {std::int64_t{2}, std::int64_t{-2}, std::int64_t{100}, INT64_MIN, INT64_MAX}) {
        EXPECT_EQ(productivityFromRaw(raw), std::nullopt) << raw;
    }
    EXPECT_EQ(rawValue(Productivity::productive), 1);
    EXPECT_EQ(rawValue(Productivity::neutral), 0);
    EXPECT_EQ(rawValue(Productivity::unproductive), -1);
    EXPECT_STREQ(label(Productivity::productive), "Productive");
    EXPECT_STREQ(label(Productivity::neutral), "Neutral");
    EXPECT_STREQ(label(Productivity::unproductive), "Unproductive");
}

Color rgb(int r, int g, int b) {
    return Color{r / 255.0, g / 255.0, b / 255.0};
}

TEST(Color, ParsesHexLeniently) {
    const Color green = rgb(0x34, 0xC7, 0x59);
    const std::pair<std::string, Color> cases[] = {
        {"#34C759", green},
        {"34C759", green},
        {"#34c759", green},
        {"  #34C759\n", green},
        {"\t\r\n34C759 \v\f", green},
        {"\u00A0#34C759\u3000", green},  // Unicode blanks are trimmed too
        {"\u2028#34C759\u2029", green},
        {"#34C759zz", green},  // reading stops at the first non-hex character
        {"#34C759 #FFFFFF", green},
        {std::string("#34C759\0FF", 10), green},
        {"#FF", rgb(0, 0, 0xFF)},                        // two digits: only blue
        {"#12345678", rgb(0x34, 0x56, 0x78)},            // bits above the low 24 are dropped
        {"#FFFFFFFFFFFFFFFFFF", rgb(0xFF, 0xFF, 0xFF)},  // past 64 bits the scan saturates
        {"#1000000000000000000", rgb(0xFF, 0xFF, 0xFF)},
        {"", rgb(0, 0, 0)},
        {"#", rgb(0, 0, 0)},
        {"##34C759", rgb(0, 0, 0)},  // only one "#" is dropped
        {"# 34C759", rgb(0, 0, 0)},  // a blank after the "#" is not a digit
        {"zz34C759", rgb(0, 0, 0)},
        {"\xFF\xFE", rgb(0, 0, 0)},
        {"\U0001F3A8", rgb(0, 0, 0)},
        {std::string(100000, 'F'), rgb(0xFF, 0xFF, 0xFF)},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Color::fromHex(text), expected) << '"' << text << '"';
    }
}

TEST(Category, ColorComesFromItsHex) {
    const Category& coding = Category::seeded().front();
    EXPECT_EQ(coding.color(), rgb(0x34, 0xC7, 0x59));
    Category custom = coding;
    custom.colorHex = "not a colour";
    EXPECT_EQ(custom.color(), rgb(0, 0, 0));
}

}  // namespace
}  // namespace larkspan
