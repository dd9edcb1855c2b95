// What happens to the store when several runs save to it.
#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>

#include "backends/headless/HeadlessPlatform.h"
#include "settings/SettingsStore.h"

namespace prismfall {
namespace {

// A store like a real machine's: a save sees its previous contents, it can be full, and it can be deleted.
class SharedStore : public HeadlessPlatform {
  public:
    SharedStore() : HeadlessPlatform(printed) {}

    bool isFull = false;
    bool isDeleted = false;
    std::size_t written = 0;  // in the last save

    bool ChangeSettings(std::string_view, const SettingsChange& change) override {
        const auto values = change([this](std::string_view section, std::string_view key) {
            const auto found = Store().find({std::string(section), std::string(key)});
            return isDeleted || found == Store().end() ? std::nullopt : std::optional(found->second);
        });
        if (isFull) return false;
        written = values.size();
        for (const SettingValue& value : values) PutSetting(value.section, value.key, value.text);
        return true;
    }

  private:
    std::ostringstream printed;
};

// What one run of the program knows.
struct GameRun : Settings {
    explicit GameRun(SettingsKeeper& machine) : store(machine) { ReadSettings(*this, store); }
    void Play(int score) { EnterGame(*this, {static_cast<std::int16_t>(score), 0, 1}); }
    void Save() { SaveSettings(*this, store); }

    SettingsKeeper& store;
};

TEST(Settings, RunsThatSaveInTurnLoseNothingOfEachOthers) {
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    for (int round = 0; round < 100; ++round) {
        SharedStore shared, ofOne;
        GameRun first(shared), second(shared), all(ofOne);  // `all` does what both do, with its own store
        for (int step = 0; step < 40; ++step) {
            GameRun& run = random() % 2 == 0 ? first : second;
            const std::size_t what = random() % 90;
            const int score = static_cast<int>(random() % 2000);
            for (GameRun* player : {&run, &all}) {
                if (what < 40) player->SolvedPuzzles[what] = true;
                if (what >= 40 && what < 60) player->Play(score);
                if (what == 60) (&run == &first ? player->Music : player->SoundEffects) = score % 2 == 0;
                if (what == 61 && &run == &first) player->StartLevel = static_cast<std::int16_t>(score);
            }
            shared.isFull = random() % 3 == 0;
            if (what >= 62) run.Save();
        }
        shared.isFull = false;
        for (GameRun* run : {&first, &second, &first}) run->Save();
        EXPECT_EQ(shared.written, 0U) << "nothing new to save";
        all.Save();
        ASSERT_EQ(ofOne.Store().size(), 79U);
        ASSERT_EQ(shared.Store(), ofOne.Store());
        ASSERT_TRUE(first.Scores == all.Scores && second.Scores == all.Scores);
    }
}

TEST(Settings, AClearedTableTakesWhatItsRunEntersAndNothingElse) {
    SharedStore shared;
    GameRun first(shared), second(shared);
    const auto enter = [&](GameRun& run, int score) {
        run.Play(score);
        run.Save();
        std::string scores;
        for (const char* key : {"Score1", "Score2", "Level2"}) scores += shared.Store().at({"Scores", key}) + ' ';
        return scores;
    };
    enter(first, 100);
    second.Play(70);
    ForgetScores(second);
    EXPECT_EQ(enter(second, 50), "50 0 0 ");
    EXPECT_TRUE(enter(first, 60).starts_with("60 50 ")) << "what was entered before the clearing does not return";
    EXPECT_TRUE(enter(second, 55).starts_with("60 55 ")) << "a run clears once";
    shared.isDeleted = true;
    EXPECT_TRUE(enter(first, 40).starts_with("60 50 ")) << "what was deleted is saved again";
}

}  // namespace
}  // namespace prismfall
