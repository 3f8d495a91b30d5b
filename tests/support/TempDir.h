// A fresh folder under the system's temporary directory, removed with everything in it at the end
// of the test.
#pragma once

#include <filesystem>

namespace larkspan::test {

class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

}  // namespace larkspan::test
