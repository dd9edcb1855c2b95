#include "backends/sdl/recordings/RecordingFolder.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <iomanip>
#include <sstream>

#include "backends/sdl/settings/ReplaceFile.h"

namespace prismfall {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnding = ".prismfall";

// In UTC, so that names sort by age in any time zone.
constexpr const char* kTimeFormat = "%Y-%m-%d %H.%M.%S";

std::string Printed(const char* format, const std::tm* moment) {
    if (moment == nullptr) return {};
    std::array<char, 32> text{};
    return {text.data(), std::strftime(text.data(), text.size(), format, moment)};
}

std::string Now() {
    const std::time_t now = std::time(nullptr);
    return Printed(kTimeFormat, std::gmtime(&now));
}

std::string LocalTime(const std::tm& utc) {
    using namespace std::chrono;
    const year_month_day date{year(utc.tm_year + 1900), month(static_cast<unsigned>(utc.tm_mon) + 1),
                              day(static_cast<unsigned>(utc.tm_mday))};
    const std::time_t moment =
        system_clock::to_time_t(sys_days(date) + hours(utc.tm_hour) + minutes(utc.tm_min) + seconds(utc.tm_sec));
    return Printed("%Y-%m-%d %H:%M", std::localtime(&moment));
}

}  // namespace

fs::path RecordingFolder::UsersFolder() {
    const fs::path folder = UsersDataFolder();
    return folder.empty() ? folder : folder / "recordings";
}

std::string RecordingFolder::Keep(std::string_view title, const std::string& text) const {
    if (folder.empty()) return "there is no home folder";
    return ChangeFile(FileFor(title), [&text](const std::string&) { return text; });
}

fs::path RecordingFolder::FileFor(std::string_view title) const {
    return folder / (Now() + ' ' + std::string(title) + std::string(kEnding));
}

fs::path RecordingFolder::File(std::string_view name) const {
    return folder / fs::path(std::u8string(name.begin(), name.end()));
}

std::vector<std::string> RecordingFolder::Names() const {
    std::error_code ignored;
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, ignored)) {
        const std::u8string name = entry.path().filename().u8string();
        if (entry.path().extension() == kEnding) names.emplace_back(name.begin(), name.end());
    }
    std::ranges::sort(names, std::ranges::greater());
    return names;
}

RecordingFolder::Name RecordingFolder::Parse(std::string_view name) {
    if (name.ends_with(kEnding)) name.remove_suffix(kEnding.size());
    std::tm moment{};
    std::istringstream words{std::string(name)};
    if (!(words >> std::get_time(&moment, kTimeFormat)) || words.get() != ' ') return {{}, std::string(name)};
    return {LocalTime(moment), std::string(name.substr(static_cast<std::size_t>(words.tellg())))};
}

void RecordingFolder::Prune(std::size_t most, const std::function<bool(std::string_view name)>& isSpared) const {
    std::error_code ignored;
    const std::vector<std::string> names = Names();
    for (std::size_t i = most; i < names.size(); ++i)
        if (!isSpared(names[i])) fs::remove(File(names[i]), ignored);
}

}  // namespace prismfall
