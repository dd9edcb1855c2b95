// The script over puzzle 1: when its pictures come, where they can be clicked, and what ends it.
#include "game/Tutorial.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "game/GrowthTick.h"
#include "game/PuzzleStart.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

// A game with the tutorial on and one beam, the clock, with its head at `y`.
CLine& SetClock(TestGame& game, int y, std::int16_t number = 4) {
    VMain& main = game.Play(kPuzzleGame);
    game.Machine().StartTimer(Timer::LineExtender);
    main.TutorialActive = true;
    CLine& clock = game.AddBeam(500, y - 100, 400, y, 3);
    clock.PuzzleLineNr = number;
    return clock;
}

int Shown(const VMain& main) {
    int shown = 0;
    for (std::size_t i = 0; i < main.PictTut.size(); ++i)
        if (main.PictTut[i].visible) shown = shown * 10 + static_cast<int>(i) + 1;
    return shown;
}

TEST(Tutorial, PicturesComeAtTheirMoments) {
    const std::vector<int> kMoments = {324, 332, 356, 375, 400, 440, 475, 520};
    for (int y = 300; y < 585; ++y) {
        TestGame game;
        const CLine& clock = SetClock(game, y);
        const VMain& main = game.Main();
        ExtendLines(game.Main());
        const auto moment = std::ranges::find(kMoments, y);
        const int step = moment == kMoments.end() ? 0 : static_cast<int>(moment - kMoments.begin()) + 1;
        EXPECT_EQ(Shown(main), step) << y;
        EXPECT_EQ(main.TutorialStep, step) << y;
        EXPECT_EQ(game.Machine().Timers().IsOn(Timer::LineExtender), step == 0) << y;
        EXPECT_EQ(clock.YEnd, y + 1) << "the tick goes on to its end";
    }
}

TEST(Tutorial, OnlyTheFirstBeamOfNumberFourIsTheClock) {
    TestGame game;
    SetClock(game, 332, 3);
    ExtendLines(game.Main());
    EXPECT_EQ(Shown(game.Main()), 0) << "no clock at all";
    game.AddBeam(200, 200, 300, 300, 1, kStopped).PuzzleLineNr = 4;
    game.AddBeam(300, 224, 200, 324, 1, kStopped).PuzzleLineNr = 4;
    ExtendLines(game.Main());
    EXPECT_EQ(Shown(game.Main()), 0);
    game.Main().TutorialActive = false;
    SetClock(game, 324);
    game.Main().TutorialActive = false;
    ExtendLines(game.Main());
    EXPECT_EQ(Shown(game.Main()), 0) << "the tutorial is off";
}

TEST(Tutorial, SpotsExcludeTheirBounds) {
    struct Spot {
        int picture;
        float left, right, top, bottom;
        bool skips;
    };
    constexpr Spot kSpots[] = {
        {1, 14, 67, 75, 104, true},     {1, 123, 197, 80, 104, false}, {2, 6, 37, 95, 130, false},
        {3, 90, 123, 31, 173, false},   {4, 84, 115, 10, 41, false},   {5, 147, 179, 75, 100, false},
        {6, 127, 167, 105, 128, false}, {7, 175, 199, 14, 60, false},  {8, 149, 185, 75, 96, false}};
    constexpr float kInside = 0.125F;
    for (const Spot& spot : kSpots) {
        const float x = (spot.left + spot.right) / 2;
        const float y = (spot.top + spot.bottom) / 2;
        const auto goesOn = [&](MouseButton button, float atX, float atY) {
            TestGame game;
            VMain& main = game.Play(kPuzzleGame);
            main.TutorialActive = true;
            main.TutorialStep = static_cast<std::int16_t>(spot.picture);
            Element& picture = main.PictTut[static_cast<std::size_t>(spot.picture - 1)];
            picture.visible = true;
            main.window.on.elementDown(picture, button, atX, atY);
            const bool isOn = main.TutorialStep == 0;
            EXPECT_EQ(isOn, !picture.visible);
            EXPECT_EQ(isOn, game.Machine().Timers().IsOn(Timer::LineExtender));
            EXPECT_EQ(isOn && spot.skips, !main.TutorialActive);
            EXPECT_EQ(game.TakePrinted(), "") << "a press on a picture makes no sound";
            return isOn;
        };
        for (const MouseButton button : {MouseButton::Left, MouseButton::Right}) {
            const bool counts = spot.picture != 7 || button == MouseButton::Right;
            for (const float in : {kInside, 0.0F}) {
                const bool isOn = counts && in != 0;
                EXPECT_EQ(goesOn(button, spot.left + in, y), isOn) << spot.picture;
                EXPECT_EQ(goesOn(button, spot.right - in, y), isOn) << spot.picture;
                EXPECT_EQ(goesOn(button, x, spot.top + in), isOn) << spot.picture;
                EXPECT_EQ(goesOn(button, x, spot.bottom - in), isOn) << spot.picture;
            }
        }
    }
}

TEST(Tutorial, ThreeStepsActOnTheFirstBeamThatTheyMean) {
    constexpr std::string_view kBefore =
        "300,100 350,150 right stopped 5\n100,100 150,150 right growing 5\n500,100 550,150 right waiting 5\n"
        "400,200 450,250 right waiting 5\n";
    const auto after = [&](int step) {
        TestGame game;
        VMain& main = game.Play(kPuzzleGame);
        game.AddBeam(300, 100, 350, 150, 2, kStopped).PuzzleLineNr = 2;
        game.AddBeam(100, 100, 150, 150, 2).PuzzleLineNr = 2;
        game.AddBeam(500, 100, 550, 150, 0, kWaiting).PuzzleLineNr = 6;
        game.AddBeam(400, 200, 450, 250, 0, kWaiting).PuzzleLineNr = 6;
        EXPECT_EQ(InShort(main), kBefore);
        main.TutorialStep = static_cast<std::int16_t>(step);
        ContinueTutorial(main, 1);
        return InShort(main);
    };
    for (const int step : {1, 3, 5, 6, 8}) EXPECT_EQ(after(step), kBefore) << step;
    EXPECT_EQ(after(2), std::string(kBefore) + "350,150 350,150 left growing 5\n");
    EXPECT_NE(after(4).find("500,100 550,150 right growing 5\n400,200 450,250 right waiting 5\n"), std::string::npos);
    EXPECT_NE(after(7).find("300,100 350,150 right stopped 5\n100,100 585,585 right"), std::string::npos) << after(7);
}

TEST(Tutorial, OnlyANormalStartOfPuzzleOneTurnsItOn) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    for (const int puzzle : {1, 2, 1, 45}) {
        main.CurrentPuzzle = static_cast<std::int16_t>(puzzle);
        StartPuzzleGame(main, false, false);
        EXPECT_EQ(main.TutorialActive, puzzle == 1);
        StartPuzzleGame(main, false, true);
        EXPECT_EQ(main.TutorialActive, puzzle == 1) << "a replay leaves it alone";
    }
}

}  // namespace
}  // namespace prismfall
