#include "BrowserHost/BridgeProtocol.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

#include <nlohmann/json.hpp>

namespace larkspan {

namespace {

using Json = nlohmann::json;

// The parser checks the UTF-8 of every string, so a body that parses is valid UTF-8 text.
std::optional<Json> parsedObject(std::string_view body) {
    Json json = Json::parse(body, nullptr, /*allow_exceptions=*/false);
    if (!json.is_object())
        return std::nullopt;
    return json;
}

std::optional<TabMessage> tabOf(const Json& json) {
    const auto isPrivate = json.find("private");
    if (isPrivate == json.end() || !isPrivate->is_boolean())
        return std::nullopt;
    TabMessage tab;
    tab.isPrivate = isPrivate->get<bool>();
    if (tab.isPrivate)
        return tab;
    const auto url = json.find("url");
    const auto title = json.find("title");
    if (url == json.end() || !url->is_string() || title == json.end() || !title->is_string())
        return std::nullopt;
    tab.url = url->get<std::string>();
    tab.title = title->get<std::string>();
    return tab;
}

}  // namespace

std::string bridgeSocketPath() {
    const char* runtimeDir = std::getenv("XDG_RUNTIME_DIR");
    if (!runtimeDir || !*runtimeDir)
        return {};
    return std::string(runtimeDir) + "/larkspan-browser-bridge";
}

std::string encodeFrame(std::string_view body) {
    const auto length = static_cast<std::uint32_t>(body.size());
    std::string frame(sizeof length, '\0');
    std::memcpy(frame.data(), &length, sizeof length);
    frame.append(body);
    return frame;
}

void FrameReader::feed(std::string_view bytes, std::vector<Frame>& frames) {
    while (!bytes.empty()) {
        if (!inFrame_) {
            const auto take = std::min(bytes.size(), sizeof(std::uint32_t) - header_.size());
            header_.append(bytes.substr(0, take));
            bytes.remove_prefix(take);
            if (header_.size() < sizeof(std::uint32_t))
                return;
            std::uint32_t length = 0;
            std::memcpy(&length, header_.data(), sizeof length);
            header_.clear();
            want_ = length;
            inFrame_ = true;
            skipping_ = length > limit_;
            if (skipping_)
                frames.push_back({{}, true});
        }
        const auto take = std::min(bytes.size(), want_);
        if (!skipping_)
            body_.append(bytes.substr(0, take));
        bytes.remove_prefix(take);
        want_ -= take;
        if (want_ > 0)
            return;
        inFrame_ = false;
        if (!skipping_)
            frames.push_back({std::exchange(body_, {}), false});
    }
}

std::optional<TabMessage> parseExtensionMessage(std::string_view body) {
    const auto json = parsedObject(body);
    return json ? tabOf(*json) : std::nullopt;
}

std::string forwardedMessage(const ForwardedReport& report) {
    Json json = {{"pid", report.pid}, {"private", report.tab.isPrivate}};
    if (!report.tab.isPrivate) {
        json["url"] = report.tab.url;
        json["title"] = report.tab.title;
    }
    return json.dump();
}

std::optional<ForwardedReport> parseForwardedMessage(std::string_view body) {
    const auto json = parsedObject(body);
    if (!json)
        return std::nullopt;
    const auto pid = json->find("pid");
    if (pid == json->end() || !pid->is_number_integer() || pid->get<std::int64_t>() <= 0)
        return std::nullopt;
    auto tab = tabOf(*json);
    if (!tab)
        return std::nullopt;
    return ForwardedReport{pid->get<std::int64_t>(), std::move(*tab)};
}

}  // namespace larkspan
