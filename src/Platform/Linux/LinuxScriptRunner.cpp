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

LinuxScriptRunner::LinuxScriptRunner(std::shared_ptr<ApplicationWindows> windows)
    : windows_(std::move(windows)) {}

std::shared_ptr<CompiledScript> LinuxScriptRunner::compile(const std::string& source) {
    auto script = recogniseTabScript(source);
    if (!script)
        return nullptr;
    return std::make_shared<RecognisedScript>(std::move(*script));
}

std::optional<std::string> LinuxScriptRunner::execute(const CompiledScript& compiled) {
    const auto* recognised = dynamic_cast<const RecognisedScript*>(&compiled);
    if (!recognised || recognised->script.kind != TabScript::Kind::firefox)
        return std::nullopt;
    const auto title = windows_ ? windows_->frontWindowTitle(kFirefoxIdentifier) : std::nullopt;
    return "firefox://active|||" + title.value_or("Firefox");
}

}  // namespace larkspan
