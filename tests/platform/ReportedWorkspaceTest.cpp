#include "Platform/Linux/ReportedWorkspace.h"

#include <gtest/gtest.h>

#include "ManualMainQueue.h"
#include "RecordingNotifier.h"

namespace larkspan {
namespace {

const std::filesystem::path kData = LARKSPAN_PLATFORM_TEST_DATA;

struct ReportedWorkspaceTest : ::testing::Test {
    std::shared_ptr<test::ManualMainQueue> mainQueue = std::make_shared<test::ManualMainQueue>();
    std::shared_ptr<test::RecordingNotifier> notifier = std::make_shared<test::RecordingNotifier>();
    ReportedWorkspace workspace{
        std::make_shared<AppIdentity>(std::make_shared<DesktopEntries>(
            std::vector<std::filesystem::path>{kData / "system/applications"}, std::vector<std::string>{})),
        mainQueue,
        notifier,
        {"access", "Access", "How to"},
        {"lost", "Lost", "Comes back"}};
    int activations = 0;

    ReportedWorkspaceTest() {
        workspace.sourceConnected(true);
        workspace.setApplicationActivatedHandler([this] { ++activations; });
    }
    int activationsAfter(ReportedWindow window, bool active) {
        workspace.windowChanged(std::move(window), active);
        activations = 0;
        mainQueue->drain();
        return activations;
    }
};

TEST_F(ReportedWorkspaceTest, AnnouncesEachApplicationChangeAndIdentifiesLikeX11) {
    EXPECT_EQ(activationsAfter({.id = 1, .appID = "code", .title = "main.cpp"}, true), 1);
    const auto front = workspace.frontmostApplication();
    ASSERT_TRUE(front);
    EXPECT_EQ(front->bundleID, "com.microsoft.VSCode");
    // A new title or a second window of the same application is no switch.
    EXPECT_EQ(activationsAfter({.id = 1, .appID = "code", .title = "util.cpp"}, true), 0);
    EXPECT_EQ(activationsAfter({.id = 2, .appID = "code", .title = "Settings"}, true), 0);
    EXPECT_EQ(activationsAfter({.id = 3, .appID = "unknown.App", .title = "x"}, true), 1);
    // Focus on nothing: no application in front, and coming back to the same one is no switch.
    EXPECT_EQ(activationsAfter({.id = 3, .appID = "unknown.App", .title = "x"}, false), 0);
    EXPECT_FALSE(workspace.frontmostApplication());
    EXPECT_EQ(activationsAfter({.id = 3, .appID = "unknown.App", .title = "x"}, true), 0);
    workspace.windowClosed(3);
    EXPECT_FALSE(workspace.frontmostApplication());
    EXPECT_EQ(workspace.runningApplications().size(), 1u);
    EXPECT_EQ(workspace.frontWindowTitle("com.microsoft.VSCode"), "Settings");
}

TEST_F(ReportedWorkspaceTest, OddTextIsCleanedAndVeryLongTitlesAreCut) {
    const std::string invalid = "caf\xC3 \xFF\xFE";
    workspace.windowChanged({.id = 1, .appID = invalid, .title = std::string(300'000, 'x')}, true);
    EXPECT_EQ(workspace.focusedWindowTitle(0)->size(), 256u * 1024u);
    workspace.windowChanged({.id = 1, .appID = invalid, .title = invalid + "\U0001F680"}, true);
    EXPECT_EQ(workspace.focusedWindowTitle(0), "caf\uFFFD \uFFFD\uFFFD\U0001F680");
    EXPECT_EQ(workspace.frontmostApplication()->bundleID, "caf\uFFFD \uFFFD\uFFFD");
}

TEST_F(ReportedWorkspaceTest, ALostSourceForgetsEverythingAndSaysSoOnce) {
    workspace.windowChanged({.id = 1, .appID = "code"}, true);
    workspace.inputSilentSince(std::chrono::steady_clock::now() - std::chrono::seconds(130));
    EXPECT_GE(workspace.secondsSinceLastInput(), 130);
    for (int restart = 0; restart < 2; ++restart) {
        workspace.sourceConnected(false);
        EXPECT_FALSE(workspace.canReadWindows());
        EXPECT_FALSE(workspace.frontmostApplication());
        EXPECT_EQ(workspace.secondsSinceLastInput(), 0);
        workspace.sourceConnected(true);
    }
    EXPECT_EQ(notifier->sent, (std::vector<test::RecordingNotifier::Sent>{{"lost", "Lost", "Comes back"}}));
}

}  // namespace
}  // namespace larkspan
