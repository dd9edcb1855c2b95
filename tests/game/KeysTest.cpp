// The game without a mouse: every puzzle is picked, started and solved with keys alone, at the moments and beams of its
// solution; and what keys must leave alone.
#include <gtest/gtest.h>

#include <algorithm>

#include "game/PuzzleCatalogue.h"
#include "game/PuzzleMenu.h"
#include "platform/KeyInput.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

class KeyPlayer : public TestGame {
  public:
    void Press(Key key) { PressKey(machine.Input(), main->window, key); }
    // Cycles through what can be chosen until it gets to `what`.
    void Choose(const void* what) {
        for (int tries = 0; tries < 60 && main->window.choice.what != what; ++tries) Press(Key::Tab);
        ASSERT_EQ(main->window.choice.what, what);
    }
    void PressAt(const void* what, Key key) {
        Choose(what);
        Press(key);
    }
    void PickPuzzle(std::int16_t puzzle) {
        PressAt(&main->CommandPuzzle, Key::Enter);
        for (int page = 1; page < (puzzle - 1) / kPuzzlesPerPage + 1; ++page) Press(Key::PageDown);
        PressAt(&main->LabelSolved[static_cast<std::size_t>((puzzle - 1) % kPuzzlesPerPage)], Key::Enter);
        Press(Key::R);
    }
    void RunOneTick() {
        const std::int16_t toggle = main->field.GrowthToggle;
        while (main->GameRunning && main->field.GrowthToggle == toggle) machine.Run(1);
    }
    void PlayStep(const SolutionStep& step, const CLine& trigger) {
        const std::vector<CLine*> beams = main->field.Lines;
        for (const CLine* beam : beams) {
            if (step.OtherLineNr == 0 ? beam != &trigger : beam->PuzzleLineNr != step.OtherLineNr) continue;
            const bool isStarted = beam->RunMode == Motion::Waiting && !step.SpeedUp;
            if (isStarted) PressAt(beam, Key::Space);
            if (step.BendFirst || (!step.SpeedUp && !isStarted)) PressAt(beam, Key::Space);
            if (step.SpeedUp) PressAt(step.BendFirst ? main->field.Lines.back() : beam, Key::Enter);
        }
    }
    void PlayDueSteps() {
        const std::size_t count = main->field.Lines.size();
        for (std::size_t i = 0; i < count && i < main->field.Lines.size(); ++i) {
            const CLine& beam = *main->field.Lines[i];
            if (beam.RunMode != Motion::Growing) continue;
            for (const SolutionStep& step : PuzzleSolution(main->CurrentPuzzle)) {
                if (step.TriggerLineNr != beam.PuzzleLineNr || step.TriggerYEnd != beam.YEnd) continue;
                PlayStep(step, beam);
                break;
            }
        }
    }
};

TEST(Keys, SolveEveryPuzzle) {
    for (std::int16_t puzzle = 1; puzzle <= kPuzzleCount; ++puzzle) {
        KeyPlayer player;
        VMain& main = player.QuietStore().Load();
        player.PickPuzzle(puzzle);
        ASSERT_TRUE(main.GameRunning && main.CurrentPuzzle == puzzle) << puzzle;
        for (int tick = 0; tick < 2000 && main.GameRunning; ++tick) {
            if (main.TutorialStep == 1) player.PressAt(&main.PictTut[0].spots[0], Key::Enter);  // skips it
            player.PlayDueSteps();
            player.RunOneTick();
        }
        EXPECT_TRUE(player.TakePrinted().ends_with("dialog VPuzzleResult solved\n")) << puzzle;
    }
}

// Keys (arrows, t for Tab, T with Shift, s for Space, e for Enter), and the head that is then chosen.
constexpr char kChoices[] = R"(
    s      | 410,410 | nothing is pressed before something is chosen
    t      | 410,410 | the lowest
    tt     | 210,390
    ttt    | 200,200 | no stopped beam
    tttt   | 400,200
    ttttt  | 410,410 | of two heads at one place the one that a press reaches
    tT     | 400,200
    t<     | 210,390 | the nearest that way, though it is a little higher
    t^     | 400,200
    t^<    | 200,200
    t>     | 410,410 | nothing that way
    t<^    | 200,200
    ts     | 410,410 | bent; its other half goes on from there
    ts^v   | 410,410
)";

TEST(Keys, ChooseByDirectionAndByHeight) {
    constexpr std::string_view kLetters = "<>^vtTse";
    constexpr Key kKeys[] = {Key::Left, Key::Right,    Key::Up,    Key::Down,
                             Key::Tab,  Key::ShiftTab, Key::Space, Key::Enter};
    for (const auto& row : Rows(kChoices)) {
        TestGame game(Mode::PuzzleGame,
                      "100,100 200,200 red; 300,300 410,410 blue; 500,100 400,200 green waiting; "
                      "600,300 510,390 red stopped; 300,300 210,390 blue; 300,100 400,200 red");
        Window& window = game.Main().window;
        for (const char letter : row[0]) PressKey(game.Machine().Input(), window, kKeys[kLetters.find(letter)]);
        std::ostringstream chosen;
        chosen << window.choice.left << ',' << window.choice.top;
        EXPECT_EQ(chosen.str(), row[1]) << row[0];
        EXPECT_EQ(game.Main().field.Lines.size(), row[0].find("ts") == 0 ? 7U : 6U) << row[0];
    }
}

TEST(Keys, LeaveButtonsAloneWhileAGameIsPlayed) {
    TestGame game(Mode::ArcadeGame);
    const auto press = [&](Key key) { PressKey(game.Machine().Input(), game.Main().window, key); };
    for (const Key key : {Key::Tab, Key::Enter, Key::Right, Key::Space}) press(key);
    EXPECT_EQ(game.Main().window.choice.what, nullptr);
    EXPECT_EQ(game.TakePrinted(), "");
    game.Main().cmdPause.visible = true;
    for (const Key key : {Key::P, Key::Tab}) press(key);
    EXPECT_FALSE(game.Main().GameRunning);
    EXPECT_EQ(game.Main().window.choice.what, &game.Main().CommandPuzzle);
}

}  // namespace
}  // namespace prismfall
