// The new text is written next to the old file, flushed to disk, and then renamed over it. Runs of the game wait for
// each other with a mutex, which Windows releases when its holder ends. What an interrupted save leaves behind is
// removed by the next one.
#include "backends/sdl/settings/ReplaceFile.h"

#include <windows.h>
//
#include <shlobj.h>

#include <array>
#include <cwchar>
#include <string>
#include <system_error>

namespace prismfall {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLargestFile = 1 << 20;  // far more than the game writes; a larger file is not ours
constexpr DWORD kLongestWait = 2000;           // milliseconds, for another run; a save takes a few
constexpr int kTries = 50;                     // while a virus scanner, or a dying run, holds a file
constexpr DWORD kNextTry = 20;                 // milliseconds
constexpr int kMerges = 20;                    // while other runs replace the file
constexpr DWORD kChangedMeanwhile = ERROR_RETRY;
constexpr const wchar_t* kNewText = L".new-";  // between the file's name and the number of the run that writes it
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class Handle {
  public:
    explicit Handle(HANDLE value) : handle(value) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() {
        if (IsOpen()) CloseHandle(handle);
    }

    HANDLE Get() const { return handle; }
    bool IsOpen() const { return handle != INVALID_HANDLE_VALUE && handle != nullptr; }

  private:
    HANDLE handle;
};

class Lock {
  public:
    // Gives up waiting if the lock is held for so long that the holder must be stopped or have a very slow disk:
    // whoever comes second sees that the file has been replaced and starts over.
    Lock() : mutex(CreateMutexW(nullptr, FALSE, L"Local\\Prismfall settings")) {
        const DWORD outcome = mutex.IsOpen() ? WaitForSingleObject(mutex.Get(), kLongestWait) : WAIT_FAILED;
        isHeld = outcome == WAIT_OBJECT_0 || outcome == WAIT_ABANDONED;
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;
    ~Lock() {
        if (isHeld) ReleaseMutex(mutex.Get());
    }

  private:
    Handle mutex;
    bool isHeld = false;
};

struct Content {
    std::string text;
    DWORD error = ERROR_SUCCESS;  // why an existing file could not be read
};

Content ReadAll(const fs::path& path) {
    Content content;
    const Handle file(CreateFileW(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file.IsOpen()) {
        content.error = GetLastError();
        const bool isMissing = content.error == ERROR_FILE_NOT_FOUND || content.error == ERROR_PATH_NOT_FOUND;
        if (isMissing) content.error = ERROR_SUCCESS;
        return content;
    }
    std::array<char, 4096> block{};
    DWORD count = 0;
    do {
        content.text.append(block.data(), count);
        if (content.text.size() > kLargestFile) content.error = ERROR_FILE_TOO_LARGE;
        if (ReadFile(file.Get(), block.data(), static_cast<DWORD>(block.size()), &count, nullptr) == 0)
            content.error = GetLastError();
    } while (content.error == ERROR_SUCCESS && count > 0);
    return content;
}

// The file that a link points to, if there is one.
fs::path BehindLinks(const fs::path& path) {
    const Handle file(CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    std::array<wchar_t, 1024> name{};
    if (!file.IsOpen()) return path;
    const DWORD length =
        GetFinalPathNameByHandleW(file.Get(), name.data(), static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED);
    return length > 0 && length < name.size() ? fs::path(name.data()) : path;
}

bool WriteAll(const fs::path& path, const std::string& text) {
    const Handle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD count = 0;
    return file.IsOpen() && WriteFile(file.Get(), text.data(), static_cast<DWORD>(text.size()), &count, nullptr) != 0 &&
           count == text.size() && FlushFileBuffers(file.Get()) != 0;
}

bool RenameOver(const fs::path& from, const fs::path& to) {
    return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

// Removes what interrupted saves have left behind. A file that another run is writing cannot be removed.
void RemoveLeftovers(const fs::path& path) {
    const std::wstring beginning = path.filename().wstring() + kNewText;
    std::error_code error;
    for (fs::directory_iterator file(path.parent_path(), error), end; !error && file != end; file.increment(error)) {
        if (file->path().filename().wstring().starts_with(beginning)) DeleteFileW(file->path().c_str());
    }
}

// The reason why the file was not replaced, or ERROR_SUCCESS; `kChangedMeanwhile` if it is no longer the one that was
// read.
DWORD TryToReplace(const fs::path& path, const fs::path& temporary, const std::string& old, const std::string& text) {
    if (!WriteAll(temporary, text)) return GetLastError();
    if (ReadAll(path).text != old) return kChangedMeanwhile;
    if (RenameOver(temporary, path)) return ERROR_SUCCESS;
    const DWORD error = GetLastError();
    return error == ERROR_FILE_NOT_FOUND ? kChangedMeanwhile : error;  // another run took it for a leftover
}

DWORD Replace(const fs::path& path, const std::string& old, const std::string& text) {
    fs::path temporary = path;
    temporary += kNewText + std::to_wstring(GetCurrentProcessId());
    DWORD error = ERROR_SUCCESS;
    for (int i = 0; i < kTries; ++i) {
        error = TryToReplace(path, temporary, old, text);
        if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) break;
        Sleep(kNextTry);
    }
    if (error != ERROR_SUCCESS) DeleteFileW(temporary.c_str());
    return error;
}

std::error_code SystemError(DWORD error) { return {static_cast<int>(error), std::system_category()}; }

std::error_code TryToChange(const fs::path& path, const std::function<std::string(std::string)>& change) {
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    if (error) return error;
    const Lock lock;
    RemoveLeftovers(path);
    const Content old = ReadAll(path);
    if (old.error != ERROR_SUCCESS) return SystemError(old.error);
    const std::string text = change(old.text);
    if (text == old.text) return {};
    return SystemError(text.size() > kLargestFile ? ERROR_FILE_TOO_LARGE : Replace(path, old.text, text));
}

std::error_code Change(const fs::path& path, const std::function<std::string(std::string)>& change) {
    std::error_code error = SystemError(kChangedMeanwhile);
    for (int i = 0; i < kMerges && error == SystemError(kChangedMeanwhile); ++i) error = TryToChange(path, change);
    return error;
}

}  // namespace

fs::path UsersSettingsFolder() {
    const wchar_t* folder = _wgetenv(L"APPDATA");
    return folder != nullptr ? fs::path(folder) / "Prismfall" : fs::path();
}

fs::path UsersDataFolder() { return UsersSettingsFolder(); }

fs::path UsersDocumentsFolder() {
    std::array<wchar_t, MAX_PATH> folder{};
    return SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, 0, folder.data()) == S_OK ? fs::path(folder.data())
                                                                                        : fs::path();
}

std::string ReadWholeFile(const fs::path& file) { return ReadAll(BehindLinks(file)).text; }

std::string ChangeFile(const fs::path& file, const std::function<std::string(std::string)>& change) {
    const std::error_code error = Change(BehindLinks(file), change);
    return error ? error.message() : std::string();
}

}  // namespace prismfall
