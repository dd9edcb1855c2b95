#include "tests/support/TestGame.h"

#include <utility>

#include "game/MainWindow.h"
#include "game/Modes.h"

namespace prismfall {

Mode ModeNamed(std::string_view name) {
    if (name == "replay") return Mode::SolutionReplay;
    return name == "arcade" ? Mode::ArcadeGame : Mode::PuzzleGame;
}

TestGame::TestGame(Mode mode, std::string_view beams) : TestGame() {
    QuietStore().Load();
    for (std::size_t timer = 0; timer < kTimerCount; ++timer) machine.StopTimer(static_cast<Timer>(timer));
    machine.SurfaceClear();
    EnterMode(*main, mode);
    main->GameRunning = true;
    main->CurrentPuzzle = 2;
    main->field.GrowthToggle = 1;  // the next growth tick also moves the beams in the entry zone
    main->field.CollisionLineY = RowOf(mode).collisionLineY;
    AddBeams(main->field, beams);
    TakePrinted();
}

VMain& TestGame::Load() {
    machine.BeginRun();
    main = std::make_unique<VMain>(machine);
    MakeMainWindow(*main);
    machine.Open(main->window);
    return *main;
}

TestGame& TestGame::QuietStore() {
    machine.PutSetting("General", "PlayFirstTime", "False");
    machine.PutSetting("General", "Music", "False");
    return *this;
}

void TestGame::Click(std::string_view element) { machine.Input().PressAndClick(main->window, main->window[element]); }

std::string TestGame::TakePrinted() {
    std::string lines = std::move(printed).str();
    printed.str({});
    return lines;
}

}  // namespace prismfall
