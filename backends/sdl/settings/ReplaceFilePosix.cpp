// The new text is written next to the old file under a unique name, flushed to disk, and then renamed over the old
// file. The lock is on the folder, so it leaves no file behind. A save that is killed leaves its unfinished file
// behind; the next save removes it.
#include "backends/sdl/settings/ReplaceFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <sstream>
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
constexpr auto kRetryPause = 5ms;
constexpr int kTries = 20;  // while other runs replace the file
constexpr int kChangedMeanwhile = EAGAIN;
constexpr std::string_view kNewText = ".new-";  // between the file's name and the unique part

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

// Waits for the other runs. Returns false if the folder cannot be locked, or is locked for so long that the holder must
// be stopped or have a very slow disk. The file is then used without a lock: whoever comes second sees that it has been
// replaced and starts over.
bool Lock(const Descriptor& folder) {
    const auto end = std::chrono::steady_clock::now() + kLongestWait;
    while (::flock(folder.Number(), LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || std::chrono::steady_clock::now() >= end) return false;
        std::this_thread::sleep_for(kRetryPause);
    }
    return true;
}

// Removes what killed saves have left behind. Only for the holder of the lock: nobody else is writing then.
void RemoveLeftovers(const fs::path& path) {
    const std::string beginning = path.filename().string().append(kNewText);
    std::error_code error;
    for (fs::directory_iterator file(path.parent_path(), error), end; !error && file != end; file.increment(error)) {
        if (file->path().filename().string().starts_with(beginning)) ::unlink(file->path().c_str());
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

// Returns 0, or the reason why nothing was written. mkostemp makes the file readable only by the user; if the file
// system cannot set `mode`, it stays that way.
int WriteNew(std::string& temporary, std::string_view text, mode_t mode) {
    Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file.IsOpen()) return errno;
    if (mode != kNewFileMode) ::fchmod(file.Number(), mode);
    return WriteAll(file.Number(), text) && ::fsync(file.Number()) == 0 && file.Close() ? 0 : errno;
}

// Returns 0, or the reason why the file was not replaced: `kChangedMeanwhile` if it is no longer the one that was read.
int RenameOver(const std::string& temporary, const fs::path& path, const Content& old) {
    if (ReadAll(path).text != old.text) return kChangedMeanwhile;
    if (::rename(temporary.c_str(), path.c_str()) == 0) return 0;
    return errno == ENOENT ? kChangedMeanwhile : errno;  // another run took it for a leftover
}

int Replace(const fs::path& path, const Content& old, std::string_view text) {
    std::string temporary = path.string().append(kNewText).append("XXXXXX");
    int error = WriteNew(temporary, text, old.mode);
    if (error == 0) error = RenameOver(temporary, path, old);
    if (error != 0) ::unlink(temporary.c_str());
    return error;
}

int TryToChange(const fs::path& path, const std::function<std::string(std::string)>& change) {
    if (const int error = MakeFolders(path.parent_path()); error != 0) return error;
    const Descriptor folder(::open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.IsOpen() && Lock(folder)) RemoveLeftovers(path);
    const Content old = ReadAll(path);
    if (old.error != 0) return old.error;
    const std::string text = change(old.text);
    if (text == old.text) return 0;
    if (text.size() > kLargestFile) return EFBIG;
    const int error = Replace(path, old, text);
    if (error == 0 && folder.IsOpen()) ::fsync(folder.Number());
    return error;
}

int Change(const fs::path& path, const std::function<std::string(std::string)>& change) {
    int error = kChangedMeanwhile;
    for (int tries = 0; tries < kTries && error == kChangedMeanwhile; ++tries) error = TryToChange(path, change);
    return error;
}

fs::path AbsoluteFolder(const char* variable) {
    const char* value = std::getenv(variable);
    const fs::path folder = value != nullptr ? value : "";
    return folder.is_absolute() ? folder : fs::path();
}

fs::path UsersFolder(const char* variable, const char* belowHome) {
    const fs::path folder = AbsoluteFolder(variable);
    const fs::path home = AbsoluteFolder("HOME");
    return folder.empty() && !home.empty() ? home / belowHome : folder;
}

fs::path OfTheGame(const fs::path& folder) { return folder.empty() ? folder : folder / "prismfall"; }

}  // namespace

fs::path UsersSettingsFolder() { return OfTheGame(UsersFolder("XDG_CONFIG_HOME", ".config")); }

fs::path UsersDataFolder() { return OfTheGame(UsersFolder("XDG_DATA_HOME", ".local/share")); }

// The desktop's own list of folders has it, as in XDG_DOCUMENTS_DIR="$HOME/Documents".
fs::path UsersDocumentsFolder() {
    constexpr std::string_view kEntry = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view kHome = "$HOME/";
    const fs::path home = AbsoluteFolder("HOME");
    fs::path folder = home / "Documents";
    std::istringstream lines(ReadWholeFile(UsersFolder("XDG_CONFIG_HOME", ".config") / "user-dirs.dirs"));
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with(kEntry)) continue;
        const std::string name = line.substr(kEntry.size(), line.rfind('"') - kEntry.size());
        folder = name.starts_with(kHome) ? home / name.substr(kHome.size()) : fs::path(name);
    }
    std::error_code ignored;
    return fs::is_directory(folder, ignored) ? folder : home;
}

std::string ReadWholeFile(const fs::path& file) { return ReadAll(BehindLinks(file)).text; }

std::string ChangeFile(const fs::path& file, const std::function<std::string(std::string)>& change) {
    const int error = Change(BehindLinks(file), change);
    return error == 0 ? std::string() : std::generic_category().message(error);
}

}  // namespace prismfall
