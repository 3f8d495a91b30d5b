#include "BrowserHost/BridgeProtocol.h"

#include <gtest/gtest.h>

namespace larkspan {
namespace {

using Frame = FrameReader::Frame;

TEST(BridgeProtocol, FramesSurviveAnySplitAndOversizedOnesAreSkipped) {
    const std::string two = encodeFrame(R"({"a":1})") + encodeFrame("");
    struct Case {
        const char* what;
        std::vector<std::string> reads;
        std::vector<Frame> frames;
        bool midFrame;
    };
    const std::vector<Case> cases = {
        {"two messages in one read", {two}, {{R"({"a":1})"}, {""}}, false},
        {"a header cut in two", {two.substr(0, 2), two.substr(2)}, {{R"({"a":1})"}, {""}}, false},
        {"a truncated message", {two.substr(0, 9)}, {}, true},
        {"over the limit, then a good one",
         {encodeFrame(std::string(17, 'x')).substr(0, 4), std::string(10, 'y'),
          std::string(7, 'y') + encodeFrame("ok")},
         {{"", true}, {"ok"}},
         false},
    };
    for (const auto& c : cases) {
        FrameReader reader(16);
        std::vector<Frame> frames;
        for (const auto& read : c.reads)
            reader.feed(read, frames);
        EXPECT_EQ(frames, c.frames) << c.what;
        EXPECT_EQ(reader.midFrame(), c.midFrame) << c.what;
    }
}

TEST(BridgeProtocol, OnlyWellFormedTabsPass) {
    const std::string longTitle(100'000, 'T');
    struct Case {
        std::string body;
        std::optional<TabMessage> tab;
    };
    const std::vector<Case> cases = {
        {R"({"private":false,"url":"https://github.com/","title":"Hi \"you\" 🚀","extra":[1]})",
         TabMessage{false, "https://github.com/", "Hi \"you\" 🚀"}},
        {R"({"private":true,"url":"https://secret.example/","title":"Secret"})", TabMessage{true, "", ""}},
        {R"({"private":false,"url":"a","title":")" + longTitle + "\"}", TabMessage{false, "a", longTitle}},
        {R"({"url":"a","title":"b"})", std::nullopt},
        {R"({"private":"no","url":"a","title":"b"})", std::nullopt},
        {"{\"private\":false,\"url\":\"a\",\"title\":\"\xC3\x28\"}", std::nullopt},
        {R"({"private":false,"url":"a","title":"\ud800"})", std::nullopt},
        {R"({"private":false,"url":"a","title":"b"} trailing)", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(parseExtensionMessage(c.body), c.tab) << c.body.substr(0, 80);
}

TEST(BridgeProtocol, ForwardedReportsCarryAPositivePid) {
    const ForwardedReport report{4242, {false, "https://x.org/", "X"}};
    EXPECT_EQ(parseForwardedMessage(forwardedMessage(report)), report);
    for (const char* body : {R"({"private":true})", R"({"pid":0,"private":true})",
                             R"({"pid":-3,"private":true})", R"({"pid":"12","private":true})",
                             R"({"pid":18446744073709551615,"private":true})", R"({"pid":12})"}) {
        EXPECT_FALSE(parseForwardedMessage(body)) << body;
    }
}

}  // namespace
}  // namespace larkspan
