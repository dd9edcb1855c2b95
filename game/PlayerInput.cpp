#include "game/PlayerInput.h"

#include <cmath>

#include "audio/SoundEffects.h"
#include "game/PuzzleMenu.h"
#include "game/PuzzleStart.h"
#include "simulation/BeamControl.h"
#include "simulation/BeamRemoval.h"
#include "simulation/BeamSpawning.h"
#include "simulation/Playfield.h"
#include "state/GameModes.h"

namespace prismfall {

namespace {

// --- The beam action of a press.

bool IsInEntryZone(const VMain& main, const CLine& beam) { return beam.YEnd < main.CollisionLineY + kBlueLine; }

// Arcade: only if the run would end at a beam.
void GuardedSpeedUp(VMain& main, CLine& beam) {
    const bool endsAtBeam = SpeedUpLine(main, beam, true);
    main.LookAheadBeams.Clear();
    if (endsAtBeam) {
        SpeedUpLine(main, beam, false);
    } else {
        PlaySound2(main, kSoundRefused, false);
    }
}

void PlainSpeedUp(VMain& main, CLine& beam) {
    SpeedUpLine(main, beam, false);
    if (!AllLinesDeleted(main) || main.GameMode != kPuzzleGame) return;
    main.platform.LetEventsRun();
    PlaySound2(main, kSoundPuzzleCleared, true);
}

void LeftPress(VMain& main, CLine& beam) {
    if (IsInEntryZone(main, beam)) return BendLine(main, beam);
    if (main.GameMode == kPuzzleGame && beam.RunMode == kWaiting) {
        beam.RunMode = kGrowing;
        return;
    }
    SplitLine(main, beam);
}

void RightPress(VMain& main, CLine& beam) {
    if (IsInEntryZone(main, beam) || main.GameMode == kArcadeGame) return GuardedSpeedUp(main, beam);
    if (beam.RunMode == kWaiting) beam.RunMode = kGrowing;
    PlainSpeedUp(main, beam);
}

void PressBeam(VMain& main, MouseButton Button, float X, float Y) {
    CLine* hit = FindNearestLine(main, Rounded(X), Rounded(Y));
    if (hit == nullptr) return;
    if (Button == MouseButton::Left) {
        LeftPress(main, *hit);
    } else {
        RightPress(main, *hit);
    }
}

// --- The puzzle menu's pick.

void PressPreview(VMain& main, float X, float Y) {
    const float column = std::floor((X - kLeftWall) / (kRightWall - kLeftWall) * kMenuColumns);
    const float row = std::floor((Y - kPlayfieldTop) / (kFloor - kPlayfieldTop) * kMenuRows);
    if (!(column >= 0 && column < kMenuColumns && row >= 0 && row < kMenuRows)) return;
    PlaySound2(main, kSoundButton, true);
    const int cell = static_cast<int>(row) * kMenuColumns + static_cast<int>(column);
    main.CurrentPuzzle = Saturated((main.PuzzlePage - 1) * kPuzzlesPerPage + cell + 1);
    StartPuzzleGame(main, false, false);
}

}  // namespace

void Form_MouseDown(VMain& main, MouseButton Button, float X, float Y) {
    main.LastClickX = X;
    main.LastClickY = Y;
    if (main.TutorialActive) return;
    const bool isGame = main.GameMode == kPuzzleGame || main.GameMode == kArcadeGame;
    if (isGame && main.GameRunning) return PressBeam(main, Button, X, Y);
    if (main.GameMode == kPuzzleMenu) PressPreview(main, X, Y);
}

void Form_DblClick(VMain& main) {
    if (main.GameRunning) Form_MouseDown(main, MouseButton::Left, main.LastClickX, main.LastClickY);
}

}  // namespace prismfall
