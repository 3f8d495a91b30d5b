#include "Platform/PrivateFiles.h"

#include <sys/stat.h>

namespace larkspan {

void keepNewFilesPrivate() {
    ::umask(S_IRWXG | S_IRWXO);
}

void restrictToOwner(const std::filesystem::path& folder, std::initializer_list<std::string_view> files) {
    namespace fs = std::filesystem;
    std::error_code ignored;
    fs::create_directories(folder, ignored);
    // Only taken away: a file the user made read-only stays so.
    const auto others = fs::perms::group_all | fs::perms::others_all;
    fs::permissions(folder, others, fs::perm_options::remove, ignored);
    for (const auto name : files) {
        if (const fs::path file = folder / name; fs::exists(file, ignored))
            fs::permissions(file, others, fs::perm_options::remove, ignored);
    }
}

}  // namespace larkspan
