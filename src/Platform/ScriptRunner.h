// Runs the small scripts that ask a browser for its active tab.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace larkspan {

// A compiled script, ready to run any number of times.
class CompiledScript {
public:
    virtual ~CompiledScript() = default;
};

class ScriptRunner {
public:
    virtual ~ScriptRunner() = default;
    // Nothing when the source cannot be compiled.
    virtual std::shared_ptr<CompiledScript> compile(const std::string& source) = 0;
    // The script's text result, or nothing when it fails. May block for as long as the target
    // application takes to answer.
    virtual std::optional<std::string> execute(const CompiledScript& script) = 0;
};

}  // namespace larkspan
