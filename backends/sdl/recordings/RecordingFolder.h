// The user's recordings of games on disk, a file each. Their names sort by age.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace prismfall {

class RecordingFolder {
  public:
    explicit RecordingFolder(std::filesystem::path path) : folder(std::move(path)) {}

    // `recordings` in the user's data folder; empty if the user has none.
    static std::filesystem::path UsersFolder();

    // Writes a file named after the present time and `title`, in one step. Returns why it could not be written, in the
    // system's words, or nothing.
    std::string Keep(std::string_view title, const std::string& text) const;
    // The file that Keep would write now.
    std::filesystem::path FileFor(std::string_view title) const;
    // The names of all files, the newest first.
    std::vector<std::string> Names() const;
    std::filesystem::path File(std::string_view name) const;
    // The title in a name and the local time in it, as in "2026-11-26 05:30". A name that is not of this folder's
    // making is all title.
    struct Name {
        std::string time;
        std::string title;
    };
    static Name Parse(std::string_view name);

    // Removes all files but the newest, `most` of them, and those that `isSpared` is true for, given their names. What
    // cannot be removed stays.
    void Prune(std::size_t most, const std::function<bool(std::string_view name)>& isSpared) const;

  private:
    std::filesystem::path folder;
};

}  // namespace prismfall
