// Browser scripts answered from the desktop.
#include "Platform/Linux/LinuxScriptRunner.h"

#include "Platform/TabScripts.h"

namespace larkspan {
namespace {

class RecognisedScript final : public CompiledScript {
public:
    explicit RecognisedScript(TabScript script) : script(std::move(script)) {}
    const TabScript script;
};

}  // namespace

LinuxScriptRunner::LinuxScriptRunner(std::shared_ptr<ApplicationWindows> windows,
                                     std::shared_ptr<BrowserBridge> bridge)
    : windows_(std::move(windows)), bridge_(std::move(bridge)) {}

std::shared_ptr<CompiledScript> LinuxScriptRunner::compile(const std::string& source) {
    auto script = recogniseTabScript(source);
    if (!script)
        return nullptr;
    return std::make_shared<RecognisedScript>(std::move(*script));
}

std::optional<std::string> LinuxScriptRunner::execute(const CompiledScript& compiled) {
    const auto* recognised = dynamic_cast<const RecognisedScript*>(&compiled);
    if (!recognised)
        return std::nullopt;
    const auto kind = recognised->script.kind;
    if (kind == TabScript::Kind::firefox || kind == TabScript::Kind::chromiumFamily) {
        if (auto answer = bridgeAnswer())
            return answer;
    }
    if (kind != TabScript::Kind::firefox)
        return std::nullopt;
    const auto title = windows_ ? windows_->frontWindowTitle(kFirefoxIdentifier) : std::nullopt;
    return "firefox://active|||" + title.value_or("Firefox");
}

std::optional<std::string> LinuxScriptRunner::bridgeAnswer() {
    if (!bridge_ || !windows_)
        return std::nullopt;
    const auto front = windows_->frontWindow();
    if (!front)
        return std::nullopt;
    auto report = front->pid != 0 ? bridge_->latestReport(front->pid) : reportShownIn(front->title);
    if (!report || report->isPrivate || !tabTitleAgrees(report->title, front->title))
        return std::nullopt;
    return report->url + "|||" + report->title;
}

// Where the desktop names no owner (wlroots compositors), the window's title picks the report: only
// when exactly one browser's tab agrees with it, so two browsers on the same page answer nothing.
std::optional<BrowserTabReport> LinuxScriptRunner::reportShownIn(const std::string& windowTitle) {
    std::optional<BrowserTabReport> shown;
    for (auto& report : bridge_->latestReports()) {
        if (report.isPrivate || !tabTitleAgrees(report.title, windowTitle))
            continue;
        if (shown)
            return std::nullopt;
        shown = std::move(report);
    }
    return shown;
}

}  // namespace larkspan
