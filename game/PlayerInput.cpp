#include "game/PlayerInput.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "audio/SoundEffects.h"
#include "game/Modes.h"
#include "game/PuzzleMenu.h"
#include "game/PuzzleStart.h"
#include "game/RunForward.h"
#include "platform/Numbers.h"
#include "simulation/BeamControl.h"
#include "simulation/BeamRemoval.h"
#include "simulation/BeamSpawning.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

// --- What a press does to a beam.

bool IsInEntryZone(const Field& field, const CLine& beam) { return beam.YEnd < field.CollisionLineY + kBlueLine; }

// Runs the beam forward only if it would end at another one.
void GuardedSpeedUp(VMain& main, CLine& beam) {
    if (WouldEndAtBeam(main.field, beam)) {
        RunForward(main, beam);
    } else {
        PlaySound2(main.audio, Sound::Refused, false);
    }
}

void PlainSpeedUp(VMain& main, CLine& beam) {
    RunForward(main, beam);
    if (!AllLinesDeleted(main.field) || main.GameMode != Mode::PuzzleGame) return;
    main.platform.LetEventsRun();
    PlaySound2(main.audio, Sound::PuzzleCleared, true);
}

void LeftPress(VMain& main, CLine& beam) {
    if (IsInEntryZone(main.field, beam)) return BendLine(main.field, beam);
    if (main.GameMode == Mode::PuzzleGame && beam.RunMode == Motion::Waiting) {
        beam.RunMode = Motion::Growing;
        return;
    }
    SplitLine(main.field, beam);
}

void RightPress(VMain& main, CLine& beam) {
    if (IsInEntryZone(main.field, beam) || main.GameMode == Mode::ArcadeGame) return GuardedSpeedUp(main, beam);
    if (beam.RunMode == Motion::Waiting) beam.RunMode = Motion::Growing;
    PlainSpeedUp(main, beam);
}

void PressBeam(VMain& main, MouseButton Button, float X, float Y) {
    CLine* hit = FindNearestLine(main.field, Rounded(X), Rounded(Y));
    if (hit == nullptr) return;
    if (Button == MouseButton::Left) {
        LeftPress(main, *hit);
    } else {
        RightPress(main, *hit);
    }
}

// --- Picking a puzzle in the puzzle menu.

void PressPreview(VMain& main, float X, float Y) {
    const float column = std::floor((X - kLeftWall) / (kRightWall - kLeftWall) * kMenuColumns);
    const float row = std::floor((Y - kPlayfieldTop) / (kFloor - kPlayfieldTop) * kMenuRows);
    if (!(column >= 0 && column < kMenuColumns && row >= 0 && row < kMenuRows)) return;
    const int cell = static_cast<int>(row) * kMenuColumns + static_cast<int>(column);
    const std::int16_t puzzle = PuzzleInCell(main.PuzzlePage, cell);
    if (puzzle > kPuzzleCount) return;
    PlaySound2(main.audio, Sound::Button, true);
    main.CurrentPuzzle = puzzle;
    StartPuzzleGame(main, false, false);
}

// --- What keys can choose.

bool TakesBeamPresses(const VMain& main) {
    return !main.TutorialActive && RowOf(main.GameMode).takesPresses && main.GameRunning;
}

SurfaceSpot SpotOf(const CLine& beam) {
    return {.what = &beam, .x = static_cast<float>(beam.XEnd), .y = static_cast<float>(beam.YEnd)};
}

void ListHeads(const Field& field, SurfaceSpots& spots) {
    spots.haveKeysAlone = true;
    for (const CLine* beam : ReachableHeads(field)) spots.list.push_back(SpotOf(*beam));
}

std::string NameOfPreview(const VMain& main, std::int16_t puzzle) {
    std::string name = "Puzzle " + std::to_string(puzzle);
    if (puzzle == 1) name += ", tutorial";
    if (main.settings.SolvedPuzzles[static_cast<std::size_t>(puzzle - 1)]) name += ", solved";
    return name;
}

void ListPreviews(const VMain& main, SurfaceSpots& spots) {
    for (int cell = 0; cell < kPuzzlesPerPage; ++cell) {
        const std::int16_t puzzle = PuzzleInCell(main.PuzzlePage, cell);
        if (puzzle > kPuzzleCount) return;
        const PreviewBox box = PreviewBoxOf(cell);
        const auto width = static_cast<float>(box.width);
        const auto height = static_cast<float>(box.height);
        spots.list.push_back({.what = &main.LabelSolved[static_cast<std::size_t>(cell)],
                              .x = static_cast<float>(box.left) + width / 2,
                              .y = static_cast<float>(box.top) + height / 2,
                              .width = width,
                              .height = height,
                              .accessibleName = NameOfPreview(main, puzzle)});
    }
}

}  // namespace

void ListSpots(VMain& main, SurfaceSpots& spots) {
    if (TakesBeamPresses(main)) return ListHeads(main.field, spots);
    if (main.GameMode == Mode::PuzzleMenu) ListPreviews(main, spots);
}

void ListBeams(const VMain& main, std::vector<SeenBeam>& beams) {
    if (!RowOf(main.GameMode).isGame) return;
    const std::vector<CLine*>& dying = main.field.DyingLines;
    for (const CLine* beam : main.field.Lines)
        beams.push_back({.what = beam,
                         .startX = static_cast<float>(beam->XStart),
                         .startY = static_cast<float>(beam->YStart),
                         .x = static_cast<float>(beam->XEnd),
                         .y = static_cast<float>(beam->YEnd),
                         .colour = OfColor(LineColors, beam->Color),
                         .isGrowing = beam->RunMode == Motion::Growing && !beam->Deleted,
                         .isStruck = std::ranges::find(dying, beam) != dying.end()});
}

std::optional<SurfaceSpot> ReachedHead(const VMain& main, float X, float Y) {
    if (!TakesBeamPresses(main)) return std::nullopt;
    const CLine* beam = FindNearestLine(main.field, Rounded(X), Rounded(Y));
    if (beam == nullptr) return std::nullopt;
    return SpotOf(*beam);
}

void Form_MouseDown(VMain& main, MouseButton Button, float X, float Y) {
    main.LastClickX = X;
    main.LastClickY = Y;
    if (main.TutorialActive) return;
    if (RowOf(main.GameMode).takesPresses && main.GameRunning) return PressBeam(main, Button, X, Y);
    if (main.GameMode == Mode::PuzzleMenu) PressPreview(main, X, Y);
}

void Form_DblClick(VMain& main) {
    if (main.GameRunning) Form_MouseDown(main, MouseButton::Left, main.LastClickX, main.LastClickY);
}

}  // namespace prismfall
