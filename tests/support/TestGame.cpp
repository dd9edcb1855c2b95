#include "tests/support/TestGame.h"

#include "game/MainWindow.h"

namespace prismfall {

TestGame::TestGame(std::int32_t gameMode, std::string_view beams) {
    QuietStore().Load();
    for (std::size_t timer = 0; timer < kTimerCount; ++timer) machine.StopTimer(static_cast<Timer>(timer));
    machine.SurfaceClear();
    Play(gameMode, beams);
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

}  // namespace prismfall
