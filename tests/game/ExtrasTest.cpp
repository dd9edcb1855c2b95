// The extras: chosen in their window, stored, and what a slower game leaves out.
#include <gtest/gtest.h>

#include "game/GameRecorder.h"
#include "game/HighScores.h"
#include "game/Scoring.h"
#include "platform/KeyInput.h"
#include "platform/Looks.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

class ExtrasPlayer : public TestGame {
  public:
    // Opens the window, clicks the named elements, closes it, and ends the run. Returns the store's section after that.
    std::string Choose(std::initializer_list<std::string_view> names) {
        machine.onDialog = [&](Window& dialog) { opened = &dialog; };
        for (const std::string_view name : names) machine.QueueAnswer(std::string(name));
        machine.QueueAnswer("Command1");
        PressKey(machine.Input(), main->window, Key::F1);
        main->window.on.queryUnload();
        std::string extras;
        for (const auto& [name, text] : machine.Store())
            if (name.first == "Extras") extras += name.second + "=" + text + " ";
        return extras;
    }

    Window* opened = nullptr;
};

TEST(Extras, AreStoredOnlyOnceTheyDiffer) {
    ExtrasPlayer player;
    player.QuietStore().Load();
    EXPECT_EQ(player.Choose({}), "");
    EXPECT_EQ(player.Machine().Store().size(), 79U);
    EXPECT_EQ(player.Choose({"Pace60", "Palette", "Music25", "Mute"}), "MusicVolume=25 Mute=1 Pace=60 Palette=1 ");
    EXPECT_TRUE((*player.opened)["Pace60"].checked && !(*player.opened)["Pace100"].checked);
    player.Machine().PutSetting("Extras", "MusicVolume", "30");
    VMain& main = player.Load();
    EXPECT_EQ(main.settings.extras.Pace, 60);
    EXPECT_EQ(main.settings.extras.MusicVolume, 100) << "a volume that there is not";
    PressKey(player.Machine().Input(), main.window, Key::M);
    EXPECT_EQ(player.Choose({"Pace100", "Palette"}), "MusicVolume=100 Mute=0 Pace=100 Palette=0 ");
}

TEST(Extras, ASlowerGameSaysSoAndEntersNoTable) {
    ExtrasPlayer player;
    VMain& main = player.QuietStore().Load();
    for (const auto& [choice, isRanked] : {std::pair{"Pace80", false}, {"Pace100", true}}) {
        player.Choose({choice});
        EXPECT_EQ(main.LabelPace.visible, !isRanked);
        player.Click("CommandArcade");
        player.Choose({isRanked ? "Pace40" : "Pace100"});  // for the next game
        AddScore(main, {.N = 4});
        SaveScore(main);
        EXPECT_EQ(main.HighScore, isRanked ? 80 : 0) << "no trace of the slower one";
        EXPECT_EQ(main.settings.Scores.front().score == 80, isRanked);
        main.window.on.keyDown(kEscapeKey);
    }
}

TEST(Extras, TheLastGamesBeamsComeBackIfWanted) {
    ExtrasPlayer player;
    VMain& main = player.QuietStore().Load();
    GameRecorder recorder(main, {});
    const auto play = [&] {
        player.Click("CommandArcade");
        player.Machine().Run(9000);
        std::string beams = InShort(main.field);
        main.window.on.keyDown(kEscapeKey);
        return beams;
    };
    const std::string first = play(), second = play();
    EXPECT_NE(first, second);
    player.Choose({"SameBeams"});
    EXPECT_EQ(play(), second);
    EXPECT_EQ(play(), second);
}

// What is painted, by row of the surface, and what is shown there; marks come and go without a trace.
TEST(Looks, ShowColoursByTheirTableAndMarksOverThem) {
    Surface surface;
    Looks looks(surface);
    std::vector<PixelBox> boxes;
    surface.Line(100, 100, 160, 160, 0x0000FF, 1);
    looks.Recolour({{.painted = 0x0000FF, .shown = 0x804020, .pattern = Pattern::Dots}});
    looks.TakeDamage(boxes);
    for (int y = 102; y < 108; ++y) EXPECT_EQ(looks.Row(y)[y], y < 105 ? 0xFF204080 : 0xFF081020) << y;
    for (const int x : {9, 300}) EXPECT_EQ(looks.Row(0)[x], Surface::kUnpainted);
    looks.Mark({.isShown = true, .isOnSurface = true, .left = 120, .top = 120});
    looks.TakeDamage(boxes);
    EXPECT_EQ(looks.Row(120)[129], 0xFFFFFFFF);
    surface.Line(100, 120, 160, 120, 0x00FF00, 1);
    looks.TakeDamage(boxes);
    EXPECT_EQ(looks.Row(120)[129], 0xFFFFFFFF) << "paint goes beneath a mark";
    EXPECT_EQ(looks.Row(120)[140], 0xFF00FF00);
    looks.MarkPause(true);
    looks.TakeDamage(boxes);
    EXPECT_EQ(looks.Row(150)[730], 0xFFD4E4FF);
    looks.MarkPause(false);
    looks.Mark({});
    looks.Recolour({});
    looks.TakeDamage(boxes);
    for (int y = 0; y < Surface::kHeight; ++y)
        ASSERT_TRUE(std::equal(looks.Row(y), looks.Row(y) + Surface::kWidth, surface.Row(y))) << y;
}

}  // namespace
}  // namespace prismfall
