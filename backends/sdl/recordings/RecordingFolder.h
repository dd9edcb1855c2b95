// The user's recordings of games on disk, a file each. Their names sort by age.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace prismfall {

class RecordingFolder {
  public:
    explicit RecordingFolder(std::filesystem::path path) : folder(std::move(path)) {}

    // `recordings` in the user's data folder; empty if the user has none.
    static std::filesystem::path UsersFolder();

    // Writes a file named after the present time and `title`, in one step. Returns why it could not be written, in the
    // system's words, or nothing.
    std::string Keep(std::string_view title, const std::string& text) const;
    // Removes all files but the newest, `most` of them, and those that `isSpared` is true for, given their names. What
    // cannot be removed stays.
    void Prune(std::size_t most, const std::function<bool(std::string_view name)>& isSpared) const;

  private:
    std::filesystem::path folder;
};

}  // namespace prismfall
