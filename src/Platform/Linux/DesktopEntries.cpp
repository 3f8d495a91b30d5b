// Desktop entry index. A typical system has a few hundred entries in three to six folders; a full
// build reads them all in a few milliseconds, which is why it only happens at start and on change.
#include "Platform/Linux/DesktopEntries.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <unordered_map>

#include "Platform/Linux/DesktopFile.h"

namespace larkspan {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t kMaxFileSize = 1 << 20;  // bytes; larger files are not desktop entries
constexpr int kMaxDepth = 3;                      // subfolders below `applications`

std::optional<std::string> readSmallFile(const fs::path& path) {
    std::error_code error;
    const auto size = fs::file_size(path, error);
    if (error || size > kMaxFileSize)
        return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::string text(size, '\0');
    in.read(text.data(), static_cast<std::streamsize>(size));
    text.resize(static_cast<std::size_t>(in.gcount()));
    return text;
}

}  // namespace

std::string asciiLower(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return out;
}

struct DesktopEntries::Index {
    std::unordered_map<std::string, DesktopEntry> byID;
    std::unordered_map<std::string, std::vector<std::string>> idsByLowerID;
    std::unordered_map<std::string, std::vector<std::string>> idsByLowerWMClass;
    std::unordered_map<std::string, std::vector<std::string>> idsByLowerLastComponent;

    void add(DesktopEntry entry) {
        const auto lowerID = asciiLower(entry.id);
        idsByLowerID[lowerID].push_back(entry.id);
        if (!entry.startupWMClass.empty())
            idsByLowerWMClass[asciiLower(entry.startupWMClass)].push_back(entry.id);
        if (auto dot = lowerID.rfind('.'); dot != std::string::npos && dot + 1 < lowerID.size()) {
            idsByLowerLastComponent[lowerID.substr(dot + 1)].push_back(entry.id);
        }
        auto id = entry.id;
        byID.emplace(std::move(id), std::move(entry));
    }

    const DesktopEntry* only(const std::unordered_map<std::string, std::vector<std::string>>& map,
                             const std::string& key) const {
        auto it = map.find(key);
        if (it == map.end() || it->second.size() != 1)
            return nullptr;
        return &byID.at(it->second.front());
    }

    // Among the entries declaring `wmClass` (any case), the best: exact case first, then visible.
    const DesktopEntry* byStartupWMClass(std::string_view wmClass) const {
        auto it = idsByLowerWMClass.find(asciiLower(wmClass));
        if (it == idsByLowerWMClass.end())
            return nullptr;
        const DesktopEntry* best = nullptr;
        int bestScore = -1;
        for (const auto& id : it->second) {
            const auto& entry = byID.at(id);
            const int score = (entry.startupWMClass == wmClass ? 2 : 0) + (entry.noDisplay ? 0 : 1);
            if (score > bestScore) {
                best = &entry;
                bestScore = score;
            }
        }
        return best;
    }
};

DesktopEntries::DesktopEntries(std::vector<fs::path> dirs, std::vector<std::string> localeKeys,
                               std::chrono::milliseconds checkInterval)
    : dirs_(std::move(dirs)), localeKeys_(std::move(localeKeys)), checkInterval_(checkInterval) {
    std::lock_guard refreshLock(refreshMutex_);
    index_ = build(stamps_);
    lastCheck_ = std::chrono::steady_clock::now();
}

DesktopEntries::~DesktopEntries() = default;

std::shared_ptr<const DesktopEntries::Index> DesktopEntries::snapshot() const {
    std::lock_guard lock(indexMutex_);
    return index_;
}

std::vector<DesktopEntries::FolderStamp> DesktopEntries::stamp(const std::vector<fs::path>& folders) {
    std::vector<FolderStamp> stamps;
    stamps.reserve(folders.size());
    for (const auto& folder : folders) {
        FolderStamp s{folder, false, {}};
        std::error_code error;
        s.exists = fs::is_directory(folder, error);
        if (s.exists)
            s.modified = fs::last_write_time(folder, error);
        stamps.push_back(s);
    }
    return stamps;
}

std::shared_ptr<const DesktopEntries::Index> DesktopEntries::build(std::vector<FolderStamp>& stamps) const {
    auto index = std::make_shared<Index>();
    std::set<std::string> seen;  // ids decided by an earlier folder, hidden ones included
    std::vector<fs::path> folders;
    for (const auto& dir : dirs_) {
        folders.push_back(dir);
        std::error_code error;
        if (!fs::is_directory(dir, error))
            continue;
        std::vector<std::pair<std::string, fs::path>> files;  // id, path
        fs::recursive_directory_iterator it(dir, fs::directory_options::skip_permission_denied, error);
        for (; !error && it != fs::recursive_directory_iterator(); it.increment(error)) {
            const auto& path = it->path();
            std::error_code typeError;
            if (it->is_directory(typeError)) {
                if (it.depth() >= kMaxDepth || it->is_symlink(typeError)) {
                    it.disable_recursion_pending();
                } else {
                    folders.push_back(path);
                }
                continue;
            }
            if (path.extension() != ".desktop")
                continue;
            // The id is the path below the folder with '/' turned into '-': kde/okular.desktop → kde-okular.
            auto relative = path.lexically_relative(dir).replace_extension().generic_string();
            std::replace(relative.begin(), relative.end(), '/', '-');
            files.emplace_back(std::move(relative), path);
        }
        // Within one folder the order of a directory listing is arbitrary; sort for a stable result.
        std::sort(files.begin(), files.end());
        for (const auto& [id, path] : files) {
            if (seen.count(id))
                continue;
            const auto text = readSmallFile(path);
            if (!text)
                continue;
            const auto file = parseDesktopFile(*text, localeKeys_);
            // A broken file hides nothing: the same id further down still counts.
            if (!file)
                continue;
            seen.insert(id);
            if (file->hidden)
                continue;
            index->add({id, file->name, file->startupWMClass, file->flatpakID, file->noDisplay});
        }
    }
    stamps = stamp(folders);
    return index;
}

void DesktopEntries::refreshIfChanged() {
    std::unique_lock refreshLock(refreshMutex_, std::try_to_lock);
    if (!refreshLock.owns_lock())
        return;  // another thread is at it
    const auto now = std::chrono::steady_clock::now();
    if (now - lastCheck_ < checkInterval_)
        return;
    lastCheck_ = now;

    std::vector<fs::path> folders;
    folders.reserve(stamps_.size());
    for (const auto& s : stamps_)
        folders.push_back(s.path);
    if (stamp(folders) == stamps_)
        return;

    auto rebuilt = build(stamps_);
    std::lock_guard lock(indexMutex_);
    index_ = std::move(rebuilt);
}

std::size_t DesktopEntries::size() const {
    return snapshot()->byID.size();
}

std::optional<DesktopEntry> DesktopEntries::byID(std::string_view id) const {
    const auto index = snapshot();
    if (auto it = index->byID.find(std::string(id)); it != index->byID.end())
        return it->second;
    if (const auto* entry = index->only(index->idsByLowerID, asciiLower(id)))
        return *entry;
    return std::nullopt;
}

std::optional<DesktopEntry> DesktopEntries::byWindowClass(std::string_view instance,
                                                          std::string_view wmClass) const {
    const auto index = snapshot();
    const std::string_view names[] = {instance, wmClass};
    for (auto name : names) {
        if (name.empty())
            continue;
        if (const auto* entry = index->byStartupWMClass(name))
            return *entry;
    }
    for (auto name : names) {
        if (name.empty())
            continue;
        if (auto it = index->byID.find(std::string(name)); it != index->byID.end())
            return it->second;
        if (const auto* entry = index->only(index->idsByLowerID, asciiLower(name)))
            return *entry;
    }
    for (auto name : {wmClass, instance}) {
        if (name.empty() || name.find('.') != std::string_view::npos)
            continue;
        if (const auto* entry = index->only(index->idsByLowerLastComponent, asciiLower(name)))
            return *entry;
    }
    return std::nullopt;
}

}  // namespace larkspan
