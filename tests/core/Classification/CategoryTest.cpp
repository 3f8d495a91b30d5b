#include "Classification/Category.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>

namespace larkspan {
namespace {

// Ids index the catalogue: seeded()[id - 1] is the category with that id.
TEST(Category, SeededCatalogueIsInIdOrder) {
    const auto& seeded = Category::seeded();
    std::set<std::string> names;
    for (std::size_t i = 0; i < seeded.size(); ++i) {
        const Category& c = seeded[i];
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.id, static_cast<std::int64_t>(i + 1));
        EXPECT_EQ(c.sortOrder, c.id);
        EXPECT_TRUE(c.isSystem);
        names.insert(c.name);
    }
    EXPECT_EQ(names.size(), seeded.size());
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
        {"#FFFFFFFFFFFFFFFFFF", rgb(0xFF, 0xFF, 0xFF)},  // past 64 bits the scan saturates
        {"", rgb(0, 0, 0)},
        {"\xFF\xFE", rgb(0, 0, 0)},
        {std::string(100000, 'F'), rgb(0xFF, 0xFF, 0xFF)},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(Color::fromHex(text), expected) << '"' << text << '"';
    }
}

}  // namespace
}  // namespace larkspan
