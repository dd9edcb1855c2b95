// The new text is written next to the old file under a unique name, flushed to disk, and then renamed over the old
// file. The lock is on the folder, so it leaves no file behind.
#include "backends/sdl/settings/ReplaceFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>

namespace prismfall {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr std::size_t kLargestFile = 1 << 20;  // far more than the game writes; a larger file is not ours
constexpr int kLongestLinkChain = 16;
constexpr mode_t kNewFileMode = 0600;
constexpr mode_t kNewFolderMode = 0700;
constexpr auto kLongestWait = 2s;  // for another run; a save takes milliseconds
constexpr auto kNextLook = 5ms;

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
    int error = 0;  // why an existing file could not be read
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

fs::path BehindLinks(fs::path path) {
    for (int i = 0; i < kLongestLinkChain; ++i) {
        std::error_code error;
        const fs::path target = fs::read_symlink(path, error);
        if (error) break;
        path = path.parent_path() / target;
    }
    return path;
}

// Returns 0, or why the folder could not be created.
int MakeFolders(const fs::path& folder) {
    if (::mkdir(folder.c_str(), kNewFolderMode) == 0 || errno == EEXIST) return 0;
    if (errno != ENOENT || !folder.has_relative_path()) return errno;
    if (const int error = MakeFolders(folder.parent_path()); error != 0) return error;
    return ::mkdir(folder.c_str(), kNewFolderMode) == 0 || errno == EEXIST ? 0 : errno;
}

// Waits for the other runs. If the folder cannot be locked, or is held for so long that its holder must have been
// stopped, it is used without a lock: the other run loses nothing by that.
void Lock(const Descriptor& folder) {
    const auto end = std::chrono::steady_clock::now() + kLongestWait;
    while (::flock(folder.Number(), LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || std::chrono::steady_clock::now() >= end) return;
        std::this_thread::sleep_for(kNextLook);
    }
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

// Returns 0, or why the file is unchanged.
int Replace(const fs::path& path, std::string_view text, mode_t mode, const Descriptor& folder) {
    std::string temporary = path.string() + ".XXXXXX";
    Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.IsOpen()) return errno;
    const bool isWritten = ::fchmod(file.Number(), mode) == 0 && WriteAll(file.Number(), text) &&
                           ::fsync(file.Number()) == 0 && file.Close() &&
                           ::rename(temporary.c_str(), path.c_str()) == 0;
    if (!isWritten) {
        const int reason = errno;
        ::unlink(temporary.c_str());
        return reason;
    }
    if (folder.IsOpen()) ::fsync(folder.Number());
    return 0;
}

int Change(const fs::path& path, const std::function<std::string(std::string)>& change) {
    if (const int error = MakeFolders(path.parent_path()); error != 0) return error;
    const Descriptor folder(::open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.IsOpen()) Lock(folder);
    const Content old = ReadAll(path);
    if (old.error != 0) return old.error;
    const std::string text = change(old.text);
    return text == old.text ? 0 : Replace(path, text, old.mode, folder);
}

}  // namespace

fs::path UsersSettingsFolder() {
    const auto absolute = [](const char* variable) {
        const char* value = std::getenv(variable);
        const fs::path folder = value != nullptr ? value : "";
        return folder.is_absolute() ? folder : fs::path();
    };
    fs::path folder = absolute("XDG_CONFIG_HOME");
    const fs::path home = absolute("HOME");
    if (folder.empty() && !home.empty()) folder = home / ".config";
    return folder.empty() ? folder : folder / "prismfall";
}

std::string ReadWholeFile(const fs::path& file) { return ReadAll(BehindLinks(file)).text; }

std::string ChangeFile(const fs::path& file, const std::function<std::string(std::string)>& change) {
    const int error = Change(BehindLinks(file), change);
    return error == 0 ? std::string() : std::generic_category().message(error);
}

}  // namespace prismfall
