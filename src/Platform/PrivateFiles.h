// What Larkspan writes tells how a person spends the day, so it is the user's alone: folders 0700,
// files 0600. New files get that from the process's umask; files and folders left by an earlier,
// laxer run lose the rights of group and others at launch.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string_view>

namespace larkspan {

// Sets the process umask so that every file and folder created from now on is the owner's alone.
void keepNewFilesPrivate();

// Creates `folder` (and its parents) when missing, then takes every right of group and others from
// it and from each of `files` in it that exists. Failures (a folder that cannot be created, a file of another
// owner) are left to the code that opens them.
void restrictToOwner(const std::filesystem::path& folder, std::initializer_list<std::string_view> files);

}  // namespace larkspan
