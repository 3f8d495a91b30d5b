// Environment reading for the desktop session. Defaults follow the XDG Base Directory rules.
#include "Platform/Linux/SessionEnvironment.h"

#include <algorithm>
#include <cstdlib>

namespace larkspan {
namespace {

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::string::size_type start = 0;
    while (start <= text.size()) {
        auto end = text.find(separator, start);
        if (end == std::string::npos)
            end = text.size();
        if (end > start)
            parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

void addUnique(std::vector<std::string>& keys, const std::string& key) {
    if (!key.empty() && std::find(keys.begin(), keys.end(), key) == keys.end())
        keys.push_back(key);
}

// lang_COUNTRY.ENCODING@MODIFIER → lang_COUNTRY@MODIFIER, lang_COUNTRY, lang@MODIFIER, lang.
void addVariants(std::vector<std::string>& keys, const std::string& locale) {
    std::string rest = locale;
    std::string modifier;
    if (auto at = rest.find('@'); at != std::string::npos) {
        modifier = rest.substr(at);
        rest.erase(at);
    }
    if (auto dot = rest.find('.'); dot != std::string::npos)
        rest.erase(dot);
    std::string lang = rest;
    std::string country;
    if (auto underscore = rest.find('_'); underscore != std::string::npos) {
        lang = rest.substr(0, underscore);
        country = rest.substr(underscore);
    }
    if (lang.empty())
        return;
    if (!country.empty() && !modifier.empty())
        addUnique(keys, lang + country + modifier);
    if (!country.empty())
        addUnique(keys, lang + country);
    if (!modifier.empty())
        addUnique(keys, lang + modifier);
    addUnique(keys, lang);
}

bool isUntranslated(const std::string& locale) {
    return locale.empty() || locale == "C" || locale == "POSIX" || locale.rfind("C.", 0) == 0;
}

}  // namespace

std::vector<std::string> messageLocaleKeys(const std::string& language, const std::string& lcAll,
                                           const std::string& lcMessages, const std::string& lang) {
    const std::string& locale = !lcAll.empty() ? lcAll : !lcMessages.empty() ? lcMessages : lang;
    std::vector<std::string> keys;
    if (isUntranslated(locale))
        return keys;
    auto preferred = split(language, ':');
    if (preferred.empty())
        preferred.push_back(locale);
    for (const auto& entry : preferred) {
        if (!isUntranslated(entry))
            addVariants(keys, entry);
    }
    return keys;
}

SessionEnvironment SessionEnvironment::from(const std::function<const char*(const char*)>& lookup) {
    auto value = [&](const char* name) {
        const char* text = lookup(name);
        return std::string(text ? text : "");
    };
    SessionEnvironment env;
    env.display = value("DISPLAY");
    env.waylandDisplay = value("WAYLAND_DISPLAY");
    env.wayland = !env.waylandDisplay.empty() || value("XDG_SESSION_TYPE") == "wayland";

    std::filesystem::path dataHome = value("XDG_DATA_HOME");
    if (dataHome.empty() || dataHome.is_relative()) {
        auto home = value("HOME");
        dataHome = home.empty() ? std::filesystem::path() : std::filesystem::path(home) / ".local/share";
    }
    std::vector<std::filesystem::path> dataDirs;
    for (const auto& dir : split(value("XDG_DATA_DIRS"), ':')) {
        if (std::filesystem::path(dir).is_absolute())
            dataDirs.emplace_back(dir);
    }
    if (dataDirs.empty())
        dataDirs = {"/usr/local/share", "/usr/share"};

    auto add = [&env](const std::filesystem::path& dataDir) {
        auto dir = (dataDir / "applications").lexically_normal();
        if (std::find(env.applicationDirs.begin(), env.applicationDirs.end(), dir) ==
            env.applicationDirs.end()) {
            env.applicationDirs.push_back(dir);
        }
    };
    if (!dataHome.empty())
        add(dataHome);
    for (const auto& dir : dataDirs)
        add(dir);
    // Flatpak's profile script adds its exports to XDG_DATA_DIRS, but only for login shells; a
    // session started otherwise still has the applications installed there.
    if (!dataHome.empty())
        add(dataHome / "flatpak/exports/share");
    add("/var/lib/flatpak/exports/share");

    env.localeKeys =
        messageLocaleKeys(value("LANGUAGE"), value("LC_ALL"), value("LC_MESSAGES"), value("LANG"));
    return env;
}

SessionEnvironment SessionEnvironment::fromProcess() {
    return from([](const char* name) { return std::getenv(name); });
}

}  // namespace larkspan
