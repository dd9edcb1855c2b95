// The settings file, under everything that a disk, a crash, an editor and other copies of the game can do to it.
#include "backends/sdl/settings/SettingsFile.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <random>
#include <thread>

namespace prismfall {
namespace {

namespace fs = std::filesystem;

std::uint32_t Seed() {
    const char* given = std::getenv("PRISMFALL_TEST_SEED");
    return given != nullptr ? static_cast<std::uint32_t>(std::strtoul(given, nullptr, 10)) : std::random_device{}();
}

// Including the file itself.
std::ptrdiff_t FilesBeside(const fs::path& file) {
    return std::distance(fs::directory_iterator(file.parent_path()), fs::directory_iterator());
}

std::string Write(const fs::path& file, const std::vector<SettingValue>& values) {
    return SettingsFile(file).Change([&](const SettingsReader&) { return values; });
}

class SettingsFileTest : public ::testing::Test {
  protected:
    SettingsFileTest() {
        std::string name = (fs::temp_directory_path() / "prismfall-settings-XXXXXX").string();
        folder = mkdtemp(name.data());
        path = folder / "made" / "prismfall" / "settings.ini";
    }
    ~SettingsFileTest() override {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }

    std::string Get(std::string_view section, std::string_view key) const {
        return SettingsFile(path).Read(section, key).value_or("(nothing)");
    }

    fs::path folder;
    fs::path path;
};

// Two copies count their saves in the file, each under its own key and in all the others, until they are killed.
TEST_F(SettingsFileTest, CopiesKilledWhileSavingLoseNothingOfEachOther) {
    using Counts = std::array<std::atomic<int>, 2>;
    void* shared = mmap(nullptr, sizeof(Counts), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    Counts& done = *new (shared) Counts{};
    const auto save = [&](const std::string& copy) {
        return SettingsFile(path).Change([&](const SettingsReader& stored) {
            const std::string count = std::to_string(std::stoi(stored("Copy", copy).value_or("0")) + 1);
            std::vector<SettingValue> values = {{"Copy", copy, count}};
            for (int i = 0; i < 79; ++i) values.push_back({"All", std::to_string(i), copy + count});
            return values;
        });
    };
    std::mt19937 random(Seed());
    // A busy machine needs more and longer rounds until enough has been saved.
    for (unsigned round = 0; round < 30 || done[0] + done[1] < 20; ++round) {
        std::array<pid_t, 2> copies{};
        for (std::size_t i = 0; i < copies.size(); ++i) {
            copies[i] = fork();
            while (copies[i] == 0)
                if (save(std::to_string(i)).empty()) ++done[i];
        }
        for (const pid_t copy : copies) {
            std::this_thread::sleep_for(std::chrono::microseconds(2000 + random() % (10000 + 500 * round)));
            kill(copy, SIGKILL);
            waitpid(copy, nullptr, 0);
        }
        SettingsFile reader(path);
        const std::string first = reader.Read("All", "0").value_or("");
        for (int i = 0; i < 79; ++i) ASSERT_EQ(reader.Read("All", std::to_string(i)).value_or(""), first);
        for (std::size_t i = 0; i < copies.size(); ++i) {
            const int count = std::stoi(reader.Read("Copy", std::to_string(i)).value_or("0"));
            ASSERT_TRUE(count == done[i] || count == done[i] + 1) << count << " of " << done[i];
            done[i] = count;
        }
    }
    save("0");
    EXPECT_EQ(FilesBeside(path), 1) << "what killed saves have left is cleared away";
}

// What happens on the disk while it is supposed to keep a text.
std::function<void()> whenSyncing;

TEST_F(SettingsFileTest, ASlowSaveLosesNothingOfAnothersAndKeepsWhatItWrites) {
    whenSyncing = [this] {
        whenSyncing = {};
        EXPECT_EQ(Write(path, {{"Copy", "2", "True"}}), "");
        EXPECT_EQ(FilesBeside(path), 2);
    };
    ASSERT_EQ(Write(path, {{"Copy", "1", "True"}}), "");
    EXPECT_EQ(Get("Copy", "1") + Get("Copy", "2"), "TrueTrue");
}

TEST_F(SettingsFileTest, NothingIsSavedThatWouldBeTooLargeToRead) {
    const std::string most((1 << 20) - 100, 'x');
    ASSERT_EQ(Write(path, {{"General", "Music", most}}), "");
    EXPECT_NE(Write(path, {{"General", "Sound", std::string(100, 'x')}}), "");
    EXPECT_EQ(Get("General", "Music"), most);
}

TEST_F(SettingsFileTest, AFullDiskKeepsTheOldFileAndLeavesNothingElse) {
    ASSERT_EQ(Write(path, {{"General", "Music", "True"}}), "");
    const pid_t writer = fork();
    if (writer == 0) {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit little{200, 200};  // bytes, less than the save
        setrlimit(RLIMIT_FSIZE, &little);
        _exit(Write(path, {{"General", "Music", std::string(300, 'x')}}).empty() ? 0 : 1);
    }
    int status = 0;
    waitpid(writer, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 1) << "the failure must be reported";
    EXPECT_EQ(Get("General", "Music"), "True");
    EXPECT_EQ(FilesBeside(path), 1);
}

TEST_F(SettingsFileTest, NewFoldersArePrivateAndAPathThatIsNoFolderIsReported) {
    const mode_t old = umask(0);
    EXPECT_EQ(Write(path, {{"General", "Music", "True"}}), "");
    umask(old);
    for (const fs::path& made : {path.parent_path(), path.parent_path().parent_path()})
        EXPECT_EQ(fs::status(made).permissions(), fs::perms::owner_all) << made;
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_NE(Write(path / "settings.ini", {{"General", "Music", "False"}}), "") << "a file where the folder should be";
    EXPECT_NE(Write(path.parent_path(), {{"General", "Music", "False"}}), "") << "a folder where the file should be";
    EXPECT_NE(Write({}, {{"General", "Music", "False"}}), "") << "no folder at all";
}

TEST_F(SettingsFileTest, ALinkIsFollowed) {
    const fs::path real = folder / "elsewhere.ini";
    fs::create_directories(path.parent_path());
    fs::create_symlink("../../elsewhere.ini", path);
    ASSERT_EQ(Write(path, {{"General", "Music", "False"}}), "");
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_EQ(SettingsFile(real).Read("General", "Music"), "False");
}

}  // namespace
}  // namespace prismfall

// Replaces the system's. There is no disk beneath these tests.
extern "C" int fsync(int) {
    if (prismfall::whenSyncing) prismfall::whenSyncing();
    return 0;
}
