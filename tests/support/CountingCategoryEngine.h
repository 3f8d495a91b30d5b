// The real classification engine, counting how often it is asked. Main thread only, like the engine.
#pragma once

#include "Classification/CategoryEngine.h"

namespace larkspan::test {

class CountingCategoryEngine final : public CategoryEngine {
public:
    ClassificationResult classify(std::string_view appName, const std::optional<std::string>& bundleID,
                                  const std::optional<std::string>& windowTitle,
                                  const std::optional<std::string>& url,
                                  const std::optional<std::string>& domain) const override {
        ++calls_;
        return CategoryEngine::classify(appName, bundleID, windowTitle, url, domain);
    }
    int calls() const { return calls_; }

private:
    mutable int calls_ = 0;
};

}  // namespace larkspan::test
