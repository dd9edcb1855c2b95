// Reading and replacing the settings file. The new text is written beside the old one under a name that nobody else
// uses, brought to the disk, and then takes the old one's name in one step.
#include "backends/sdl/settings/SettingsFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <array>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "platform/SettingsText.h"

namespace prismfall {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLargestFile = 1 << 20;  // far more than the game writes; what is larger is none of its own
constexpr int kLongestLinkChain = 16;
constexpr mode_t kNewFileMode = 0600;

class Descriptor {
  public:
    explicit Descriptor(int number) : descriptor(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    int Number() const { return descriptor; }
    bool IsOpen() const { return descriptor >= 0; }
    bool Close() { return !IsOpen() || ::close(std::exchange(descriptor, -1)) == 0; }

  private:
    int descriptor;
};

struct Content {
    std::string text;
    mode_t mode = kNewFileMode;
    int error = 0;  // why a file that is there could not be read
};

Content ReadAll(const fs::path& path) {
    Content content;
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.IsOpen()) {
        content.error = errno == ENOENT || errno == ENOTDIR ? 0 : errno;
        return content;
    }
    struct stat status {};
    if (::fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode)) {
        content.error = EINVAL;
        return content;
    }
    content.mode = status.st_mode & 07777;
    std::array<char, 4096> block{};
    ssize_t count = 0;
    while ((count = ::read(file.Number(), block.data(), block.size())) > 0 && content.text.size() <= kLargestFile)
        content.text.append(block.data(), static_cast<std::size_t>(count));
    if (count < 0) content.error = errno;
    if (content.text.size() > kLargestFile) content.error = EFBIG;
    return content;
}

// The file behind a chain of links, whether it is there or not: a link stays, what it points to is replaced.
fs::path BehindLinks(fs::path path) {
    for (int i = 0; i < kLongestLinkChain; ++i) {
        std::error_code error;
        const fs::path target = fs::read_symlink(path, error);
        if (error) break;
        path = path.parent_path() / target;
    }
    return path;
}

bool WriteAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

// 0, or the reason why the file is still the old one.
int Replace(const fs::path& path, std::string_view text, mode_t mode) {
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    if (error) return error.value();
    std::string temporary = path.string() + ".XXXXXX";
    Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.IsOpen()) return errno;
    const bool written = ::fchmod(file.Number(), mode) == 0 && WriteAll(file.Number(), text) &&
                         ::fsync(file.Number()) == 0 && file.Close() && ::rename(temporary.c_str(), path.c_str()) == 0;
    if (!written) {
        const int reason = errno;
        ::unlink(temporary.c_str());
        return reason;
    }
    const Descriptor folder(::open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.IsOpen()) ::fsync(folder.Number());
    return 0;
}

}  // namespace

fs::path SettingsFile::UsersFile() {
    const auto absolute = [](const char* variable) {
        const char* value = std::getenv(variable);
        const fs::path folder = value != nullptr ? value : "";
        return folder.is_absolute() ? folder : fs::path();
    };
    fs::path folder = absolute("XDG_CONFIG_HOME");
    if (folder.empty() && !absolute("HOME").empty()) folder = absolute("HOME") / ".config";
    return folder.empty() ? folder : folder / "prismfall" / "settings.ini";
}

void SettingsFile::Load() { stored = SettingsText(ReadAll(BehindLinks(file)).text).Values(); }

std::optional<std::string> SettingsFile::Read(std::string_view section, std::string_view key) {
    if (!stored) Load();
    const auto found = stored->find(Name{section, key});
    if (found == stored->end()) return std::nullopt;
    return found->second;
}

std::string SettingsFile::Write(std::span<const SettingValue> values) {
    if (file.empty()) return "The settings cannot be saved: there is no home folder to save them in.";
    const fs::path target = BehindLinks(file);
    // Read anew: another copy of the game, or the player's editor, may have been at it since the start.
    const Content content = ReadAll(target);
    int error = content.error;
    if (error == 0) {
        SettingsText text(content.text);
        for (const SettingValue& value : values) text.Set(value.section, value.key, value.text);
        error = Replace(target, text.Text(), content.mode);
    }
    stored.reset();
    if (error == 0) return {};
    return "The settings cannot be saved in " + target.string() + ": " + std::strerror(error) + ".";
}

}  // namespace prismfall
