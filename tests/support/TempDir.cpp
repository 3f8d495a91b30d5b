#include "TempDir.h"

#include <stdlib.h>

#include <stdexcept>
#include <string>

namespace larkspan::test {

TempDir::TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "larkspan-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("mkdtemp failed for " + pattern);
    }
    path_ = pattern;
}

TempDir::~TempDir() {
    std::error_code ignored;
    // A test may leave read-only folders behind; make them writable so they can go.
    for (auto it = std::filesystem::recursive_directory_iterator(path_, ignored);
         it != std::filesystem::recursive_directory_iterator(); it.increment(ignored)) {
        std::filesystem::permissions(it->path(), std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ignored);
    }
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, std::filesystem::perm_options::add,
                                 ignored);
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace larkspan::test
