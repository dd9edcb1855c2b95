#include "tests/support/RandomPlayer.h"

#include <cstdlib>

#include "game/GameControl.h"
#include "game/PlayerInput.h"
#include "game/PuzzleStart.h"
#include "simulation/BeamControl.h"
#include "simulation/Playfield.h"

namespace prismfall {

long FromEnvironment(const char* name, long fallback) {
    const char* text = std::getenv(name);
    return text == nullptr ? fallback : std::atol(text);
}

RandomPlayer::RandomPlayer(std::uint32_t seed) : random(seed) { QuietStore().Load().SoundEffects = false; }

void RandomPlayer::StartAGame() {
    ++games;
    main->StartLevel = static_cast<std::int16_t>(Number(1, 12));
    if (Chance(50)) return CommandArcade_Click(*main);
    const bool isSolution = Chance(20);
    main->CurrentPuzzle = static_cast<std::int16_t>(Number(isSolution ? 1 : 2, kPuzzleCount));  // 1 has the tutorial
    StartPuzzleGame(*main, false, isSolution);
    if (!isSolution) CmdStart_Click(*main);
}

void RandomPlayer::PlayATick() {
    if (main->GameRunning && Number(1, 1000) == 1) CommandExit_Click(*main);  // a puzzle can come to a standstill
    if (!main->GameRunning) StartAGame();
    if (Chance(12)) Press();
    machine.Run(machine.Timers().Interval(Timer::LineExtender));
    TakePrinted();
}

// A bend of a beam that stands on a wall leads out of the field, so that is left out.
void RandomPlayer::Press() {
    int x = Number(0, 700), y = Number(0, 600);
    if (!main->Lines.empty() && Chance(90)) {
        const CLine& beam = *main->Lines[static_cast<std::size_t>(Number(0, static_cast<int>(main->Lines.size()) - 1))];
        x = beam.XEnd + Number(-9, 9);
        y = beam.YEnd + Number(-9, 9);
    }
    const CLine* hit = FindNearestLine(*main, Saturated(x), Saturated(y));
    const bool isOnWall = hit != nullptr && (hit->XEnd < kLeftWall || hit->XEnd >= kRightWall);
    const MouseButton button = Chance(70) && !isOnWall ? MouseButton::Left : MouseButton::Right;
    Form_MouseDown(*main, button, static_cast<float>(x), static_cast<float>(y));
    if (!isOnWall && Chance(8)) Form_DblClick(*main);
}

}  // namespace prismfall
