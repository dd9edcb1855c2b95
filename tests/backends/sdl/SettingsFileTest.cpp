// The settings file under everything that a disk, a crash and an editor can do to it.
#include "backends/sdl/settings/SettingsFile.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>
#include <thread>

#include "platform/SettingsText.h"

namespace prismfall {
namespace {

namespace fs = std::filesystem;

std::uint32_t Seed() {
    const char* given = std::getenv("PRISMFALL_TEST_SEED");
    return given != nullptr ? static_cast<std::uint32_t>(std::strtoul(given, nullptr, 10)) : std::random_device{}();
}

class SettingsFileTest : public ::testing::Test {
  protected:
    SettingsFileTest() {
        std::string name = (fs::temp_directory_path() / "prismfall-settings-XXXXXX").string();
        folder = mkdtemp(name.data());
        path = folder / "prismfall" / "settings.ini";
    }
    ~SettingsFileTest() override {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }

    void PutText(const std::string& text) const {
        fs::create_directories(path.parent_path());
        std::ofstream(path) << text;
    }
    std::string Text() const {
        std::ostringstream text;
        text << std::ifstream(path).rdbuf();
        return std::move(text).str();
    }
    std::string ReadAnew(std::string_view section, std::string_view key) const {
        return SettingsFile(path).Read(section, key).value_or("(nothing)");
    }

    fs::path folder;
    fs::path path;
};

// As many values as the game keeps, all the same, so that a mixture of two saves shows.
std::vector<SettingValue> ManyValues(const std::string& text) {
    std::vector<SettingValue> values;
    for (int i = 0; i < 79; ++i)
        values.push_back({i < 40 ? "Scores" : "SolvedPuzzles", "Key" + std::to_string(i), text});
    return values;
}

TEST_F(SettingsFileTest, KeepsWhatItDoesNotKnow) {
    PutText("; mine\n[General]\nMusic = True\nColour=green\n\n[Elsewhere]\nx=1\n");
    EXPECT_EQ(SettingsFile(path).Write(std::vector<SettingValue>{{"General", "Music", "False"}}), "");
    EXPECT_EQ(ReadAnew("General", "Music"), "False");
    EXPECT_EQ(ReadAnew("General", "Colour"), "green");
    EXPECT_EQ(ReadAnew("Elsewhere", "x"), "1");
    EXPECT_NE(Text().find("; mine"), std::string::npos);
}

TEST_F(SettingsFileTest, ADamagedLineCostsItselfAlone) {
    PutText("[General\nMusic=True\n[General]\n===\nnonsense\n\xff\xfe\nStartLevel=7\nMu\n[Scores]\nScore1=20\n[");
    EXPECT_EQ(ReadAnew("General", "StartLevel"), "7");
    EXPECT_EQ(ReadAnew("Scores", "Score1"), "20");
    EXPECT_EQ(ReadAnew("General", "Mu"), "(nothing)");
}

TEST_F(SettingsFileTest, AnyTextComesBack) {
    const std::uint32_t seed = Seed();
    std::mt19937 random(seed);
    using namespace std::string_literals;
    const std::string letters = "ab=[]#;\\\"' \t\n\r\0\x80\xff%"s;
    const auto text = [&] {
        std::string result;
        for (auto length = random() % 8; length > 0; --length) result += letters[random() % letters.size()];
        return result;
    };
    for (int round = 0; round < 200; ++round) {
        const SettingValue value{"s" + text(), "k" + text(), text()};
        ASSERT_EQ(SettingsFile(path).Write(std::span(&value, 1)), "");
        ASSERT_EQ(ReadAnew(value.section, value.key), value.text) << "seed " << seed << ", round " << round;
    }
}

TEST_F(SettingsFileTest, AKillDuringASaveLeavesTheOldOrTheNewFile) {
    ASSERT_EQ(SettingsFile(path).Write(ManyValues("A")), "");
    std::mt19937 random(Seed());
    for (int round = 0; round < 40; ++round) {
        const pid_t writer = fork();
        if (writer == 0)
            for (;;) {
                SettingsFile(path).Write(ManyValues("A"));
                SettingsFile(path).Write(ManyValues("B"));
            }
        std::this_thread::sleep_for(std::chrono::microseconds(500 + random() % 6000));
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        SettingsFile reader(path);
        const std::string first = reader.Read("Scores", "Key0").value_or("(nothing)");
        for (const SettingValue& value : ManyValues(first)) ASSERT_EQ(reader.Read(value.section, value.key), first);
        ASSERT_TRUE(first == "A" || first == "B") << first;
    }
}

TEST_F(SettingsFileTest, TwoCopiesDoNotMixTheirSaves) {
    std::array<pid_t, 2> writers{};
    for (std::size_t i = 0; i < writers.size(); ++i) {
        writers[i] = fork();
        if (writers[i] != 0) continue;
        for (int round = 0; round < 100; ++round) SettingsFile(path).Write(ManyValues(i == 0 ? "A" : "B"));
        _exit(0);
    }
    for (const pid_t writer : writers) waitpid(writer, nullptr, 0);
    SettingsFile reader(path);
    const std::string first = reader.Read("Scores", "Key0").value_or("(nothing)");
    for (const SettingValue& value : ManyValues(first)) EXPECT_EQ(reader.Read(value.section, value.key), first);
    EXPECT_EQ(std::distance(fs::directory_iterator(path.parent_path()), fs::directory_iterator()), 1)
        << "a temporary file was left";
}

TEST_F(SettingsFileTest, WithoutRoomTheOldFileStands) {
    ASSERT_EQ(SettingsFile(path).Write(ManyValues("A")), "");
    const pid_t writer = fork();
    if (writer == 0) {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit little{200, 200};  // bytes, less than a save
        setrlimit(RLIMIT_FSIZE, &little);
        _exit(SettingsFile(path).Write(ManyValues("B")).empty() ? 0 : 1);
    }
    int status = 0;
    waitpid(writer, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 1) << "the failure has to be told";
    EXPECT_EQ(ReadAnew("SolvedPuzzles", "Key78"), "A");
    EXPECT_EQ(std::distance(fs::directory_iterator(path.parent_path()), fs::directory_iterator()), 1)
        << "a temporary file was left";
}

TEST_F(SettingsFileTest, AFolderThatCannotBeMadeIsTold) {
    std::ofstream(folder / "prismfall") << "a file where the folder should be";
    EXPECT_NE(SettingsFile(path).Write(ManyValues("A")), "");
    EXPECT_EQ(ReadAnew("Scores", "Key0"), "(nothing)");
}

TEST_F(SettingsFileTest, ALinkIsFollowed) {
    const fs::path real = folder / "elsewhere.ini";
    std::ofstream(real) << "[General]\nMusic=True\n";
    fs::create_directories(path.parent_path());
    fs::create_symlink(real, path);
    ASSERT_EQ(SettingsFile(path).Write(std::vector<SettingValue>{{"General", "Music", "False"}}), "");
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_EQ(SettingsFile(real).Read("General", "Music"), "False");
}

}  // namespace
}  // namespace prismfall
