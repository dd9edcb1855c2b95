// The user's recorded games on disk, one file each. Their names sort by age.
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
    // The title in a file name, and its time as local time, as in "2026-11-26 05:30". A name that was not made here
    // is all title.
    struct Name {
        std::string time;
        std::string title;
    };
    static Name Parse(std::string_view name);

    // Removes all files except the newest `most` and those whose names `isSpared` accepts. Files that cannot be removed
    // stay.
    void Prune(std::size_t most, const std::function<bool(std::string_view name)>& isSpared) const;

  private:
    std::filesystem::path folder;
};

}  // namespace prismfall
