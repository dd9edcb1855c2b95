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
        machine.onDialog = [&](Window& dialog) {
            opened = &dialog;
            if (whenOpened) whenOpened(dialog);
        };
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
    std::function<void(Window& dialog)> whenOpened;
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

TEST(Extras, KeysAreExchangedRefusedAndKeptOnceTheyDiffer) {
    ExtrasPlayer player;
    VMain& main = player.QuietStore().Load();
    const auto change = [&](std::string_view asked, Key key) {
        player.whenOpened = [&](Window& dialog) {
            dialog.on.elementClick(dialog[asked]);
            EXPECT_TRUE(dialog.on.takesKey(key));
        };
        std::string stored = player.Choose({});
        player.whenOpened = nullptr;
        return stored;
    };
    EXPECT_EQ(change("KeyBend", static_cast<Key>('F')), "KeyBend=70 ");
    EXPECT_EQ(change("KeyRun", static_cast<Key>('F')), "KeyBend=13 KeyRun=70 ") << "taken from its former action";
    EXPECT_EQ(change("KeyPause", Key::Left), "KeyBend=13 KeyRun=70 ") << "refused";
    EXPECT_EQ(main.settings.extras.Keys.Meaning(Key::Enter), Key::Space);
    EXPECT_EQ(main.settings.extras.Keys.Meaning(Key::Space), Key::None);
    EXPECT_EQ(main.settings.extras.Keys.Meaning(Key::F1), Key::F1);
    player.Machine().PutSetting("Extras", "KeyPause", "70");
    EXPECT_EQ(player.Load().settings.extras.Keys, KeyMap{}) << "a key that serves twice";
    EXPECT_EQ(player.Choose({"KeyBend", "DefaultKeys"}), "KeyBend=32 KeyPause=80 KeyRun=13 ");
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

// A beam's end strikes the middle of another, whose own end is far away and low.
TEST(Looks, SparksBurnWhereBeamsMeetAndGlowsLieBelowLowEnds) {
    Surface surface;
    Looks looks(surface);
    Window window;
    std::vector<SeenBeam> beams = {{.what = &surface, .startX = 100, .startY = 100, .x = 200, .y = 200},
                                   {.what = &looks, .startX = 300, .startY = 100, .x = 100, .y = 300}};
    window.on.beams = [&beams](std::vector<SeenBeam>& seen) { seen = beams; };
    std::vector<PixelBox> boxes;
    const auto lit = [&](double now, bool isCalm, int left, int top) {
        looks.Enliven(&window, now, isCalm);
        looks.TakeDamage(boxes);
        int pixels = 0;
        for (int y = top; y < top + 50; ++y)
            pixels += 50 - static_cast<int>(std::count(looks.Row(y) + left, looks.Row(y) + left + 50, 0U));
        return pixels;
    };
    EXPECT_EQ(lit(0, false, 175, 175), 0);
    for (SeenBeam& beam : beams) beam.isStruck = true;
    for (const bool isCalm : {true, false}) {
        looks.Enliven(nullptr, 0, false);
        EXPECT_EQ(lit(50, isCalm, 175, 175) > 0, !isCalm);
        EXPECT_EQ(looks.AreMoving(), !isCalm);
        EXPECT_EQ(lit(80, isCalm, 75, 275), 0) << "the far end";
    }
    EXPECT_EQ(lit(1000, false, 175, 175), 0) << "it has burnt out, and leaves no trace";
    beams = {{.what = &surface, .x = 500, .y = 560, .colour = kRed, .isGrowing = true}};
    EXPECT_GT(lit(1000, true, 475, 540), 0);
    EXPECT_EQ(looks.Row(585)[500] >> 8 & 0xFF, 0U) << "in the beam's colour";
    looks.Enliven(nullptr, 1000, true);
    looks.TakeDamage(boxes);
    EXPECT_EQ(looks.Row(585)[500], Surface::kUnpainted);
}

}  // namespace
}  // namespace prismfall
