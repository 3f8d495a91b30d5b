#include "Platform/Linux/BrowserBridgeServer.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "BrowserHost/BridgeProtocol.h"
#include "BrowserHost/TrackerLink.h"
#include "ManualClock.h"
#include "TempDir.h"
#include "XvfbDisplay.h"

namespace larkspan {
namespace {

std::string report(std::int64_t pid, const std::string& title) {
    return encodeFrame(forwardedMessage({pid, {false, "https://github.com/", title}}));
}

struct Server {
    test::TempDir dir;
    test::ManualClock clock{1000};
    std::string path = (dir / "bridge").string();
    BrowserBridgeServer server{path, clock};

    std::optional<std::string> titleOf(std::int64_t pid) {
        auto latest = server.latestReport(pid);
        return latest ? std::optional(latest->title) : std::nullopt;
    }
};

TEST(BrowserBridgeServer, KeepsEachBrowsersLatestGoodReportWhileItsHostIsConnected) {
    Server s;
    ASSERT_TRUE(s.server.listening());
    const auto self = static_cast<std::int64_t>(::getpid());
    {
        // The browser host's own link.
        TrackerLink host(s.path);
        testing::internal::CaptureStderr();
        // Garbage, an oversized frame and invalid UTF-8 are dropped; the reports around them stand.
        ASSERT_TRUE(host.send(report(self, "first") + encodeFrame("{nope") +
                              encodeFrame(std::string(kMaxFrameBytes + 1, '{')) +
                              encodeFrame("{\"pid\":1,\"private\":false,\"url\":\"a\",\"title\":\"\xFF\"}") +
                              report(7, "other")));
        ASSERT_TRUE(test::waitUntil([&] { return s.titleOf(7).has_value(); }));
        EXPECT_EQ(s.titleOf(self), std::nullopt) << "the later report of the same host replaces it";
        const auto logged = testing::internal::GetCapturedStderr();
        EXPECT_NE(logged.find("malformed"), std::string::npos);
        EXPECT_EQ(logged.find("malformed"), logged.rfind("malformed")) << "logged once";

        // A flood: the last of 10,000 reports wins and the server keeps up.
        std::string flood;
        for (int i = 0; i < 10'000; ++i)
            flood += report(self, "tab " + std::to_string(i));
        ASSERT_TRUE(host.send(flood));
        ASSERT_TRUE(test::waitUntil([&] { return s.titleOf(self) == "tab 9999"; }));
        const auto latest = s.server.latestReport(self);
        EXPECT_EQ(latest->program, std::filesystem::read_symlink("/proc/self/exe").filename());
        EXPECT_EQ(latest->received, 1000);
    }
    EXPECT_TRUE(test::waitUntil([&] { return s.server.latestReports().empty(); }))
        << "a host that is gone takes its report with it";
}

TEST(BrowserBridgeServer, AnotherUsersProcessCannotReport) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to act as another user";
    Server s;
    const pid_t child = ::fork();
    if (child == 0) {
        if (::setuid(65534) != 0)
            ::_exit(2);
        ::_exit(TrackerLink(s.path).send(report(1, "x")) ? 1 : 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "connected as another user";
}

}  // namespace
}  // namespace larkspan
