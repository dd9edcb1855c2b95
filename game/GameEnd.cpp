#include "game/GameEnd.h"

#include "audio/Music.h"
#include "audio/SoundEffects.h"
#include "game/GameTimers.h"
#include "game/HighScores.h"
#include "game/Modes.h"
#include "game/PuzzleResult.h"
#include "platform/Numbers.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

constexpr int kSweepBand = 20;           // pixels
constexpr std::int64_t kSweepWait = 10;  // milliseconds per band

void WaitForBand(const VMain& main) {
    const std::int64_t start = main.platform.Clock();
    while (main.platform.Clock() - start < kSweepWait) main.platform.LetEventsRun();
}

// Greys the part of a beam in the band above SweepY.
void SweepBeam(const VMain& main, const BeamBody& beam) {
    if (main.SweepY > beam.YEnd + kSweepBand || main.SweepY < beam.YStart) return;
    const int sideways = Sideways(beam.Direction);
    const int down = main.SweepY - beam.YStart;
    int x1 = beam.XStart + sideways * (down - kSweepBand);
    int y1 = main.SweepY - kSweepBand;
    int x2 = beam.XStart + sideways * down;
    int y2 = main.SweepY;
    if (y1 < beam.YStart) {
        x1 = beam.XStart;
        y1 = beam.YStart;
    }
    if (y2 > beam.YEnd) {
        x2 = beam.XEnd;
        y2 = beam.YEnd;
    }
    DrawLine(main.platform, x1, y1, x2, y2, BeamColor::Grey, beam.Direction);
}

void ShowEnd(VMain& main) {
    if (!RowOf(main.GameMode).isScored) return ShowPuzzleResult(main, false);
    ShowHighScores(main);
    EnterScreen(main, Mode::MainMenu);
}

}  // namespace

void EndGame(VMain& main) {
    main.log->Ends(main, GameEnding::Lost);
    main.window.takesInput = false;
    StopGameTimers(main);
    SaveScore(main);
    StopMusic(main.audio);
    main.platform.LetEventsRun();
    PlaySound2(main.audio, Sound::GameOver, true);
    main.GameRunning = false;
    GameOverSweep(main);
    ShowEnd(main);
    main.window.takesInput = true;
}

void GameOverSweep(VMain& main) {
    for (main.SweepY = kFloor; main.SweepY >= kPlayfieldTop; main.SweepY = Saturated(main.SweepY - kSweepBand)) {
        WaitForBand(main);
        for (const CLine* beam : main.field.Lines) SweepBeam(main, *beam);
    }
}

}  // namespace prismfall
