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
    fs::permissions(folder, fs::perms::owner_all, fs::perm_options::replace, ignored);
    for (const auto name : files) {
        const fs::path file = folder / name;
        if (fs::exists(file, ignored))
            fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write, fs::perm_options::replace,
                            ignored);
    }
}

}  // namespace larkspan
