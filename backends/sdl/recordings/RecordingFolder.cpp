#include "backends/sdl/recordings/RecordingFolder.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <vector>

#include "backends/sdl/settings/ReplaceFile.h"

namespace prismfall {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnding = ".prismfall";

// So that names sort by age wherever the user travels, the time is UTC.
std::string Now() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H.%M.%S", std::gmtime(&now));
    return {text.data(), length};
}

}  // namespace

fs::path RecordingFolder::UsersFolder() {
    const fs::path folder = UsersDataFolder();
    return folder.empty() ? folder : folder / "recordings";
}

std::string RecordingFolder::Keep(std::string_view title, const std::string& text) const {
    if (folder.empty()) return "there is no home folder";
    const fs::path file = folder / (Now() + ' ' + std::string(title) + std::string(kEnding));
    return ChangeFile(file, [&text](const std::string&) { return text; });
}

void RecordingFolder::Prune(std::size_t most, const std::function<bool(std::string_view name)>& isSpared) const {
    std::error_code ignored;
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored))
        if (entry.path().extension() == kEnding) names.push_back(entry.path().filename().string());
    std::ranges::sort(names, std::ranges::greater());
    for (std::size_t i = most; i < names.size(); ++i)
        if (!isSpared(names[i])) fs::remove(folder / names[i], ignored);
}

}  // namespace prismfall
