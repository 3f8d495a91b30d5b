// Remembers every notification it was asked to show.
#pragma once

#include <string>
#include <vector>

#include "Platform/Notifier.h"

namespace larkspan::test {

class RecordingNotifier final : public Notifier {
public:
    struct Sent {
        std::string id;
        std::string title;
        std::string body;
        bool operator==(const Sent&) const = default;
    };
    void notify(const std::string& id, const std::string& title, const std::string& body) override {
        sent.push_back({id, title, body});
    }
    std::vector<Sent> sent;
};

}  // namespace larkspan::test
