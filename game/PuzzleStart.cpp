#include "game/PuzzleStart.h"

#include "audio/Music.h"
#include "game/GameTimers.h"
#include "game/PuzzleCatalogue.h"
#include "game/PuzzleMenu.h"
#include "screens/MainMenu.h"
#include "simulation/BeamRemoval.h"
#include "simulation/BeamSpawning.h"
#include "simulation/CollisionDetection.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

constexpr std::int16_t kTutorialPuzzle = 1;
constexpr int kHeadOnHeadGap = 3;  // pixels that each of two heads is drawn back
constexpr int kHeadOnBeamGap = 4;

// Design units to pixels: four fifths, rounded down.
std::int16_t Scaled(std::int16_t design) { return static_cast<std::int16_t>(design * 4 / 5); }

void ChooseMode(VMain& main, Boolean Solution) {
    main.GameMode = Solution ? kSolutionReplay : kPuzzleGame;
    if (!Solution) main.TutorialActive = main.CurrentPuzzle == kTutorialPuzzle;
}

void ShowPuzzleScreen(VMain& main) {
    ShowPuzzleMenu(main, false);
    ShowScoreboard(main, true);
    main.cmdPause.visible = false;
    main.CmdStart.visible = true;
    main.platform.SurfaceClear();
    main.Level = 1;
    PlayLevelMusic(main, main.CurrentPuzzle);
    main.CollisionLineY = kPuzzleCollisionLineY;
    ShowNumber(main.LabelPuzzleNr, main.CurrentPuzzle);
}

void ShowButtons(VMain& main, const ButtonFace& startFace) {
    ShowFace(main.CmdStart, startFace);
    ShowFace(main.cmdPause, kPauseFace);
}

void WaitForPlayer(VMain& main) {
    StopBeamTimers(main);
    main.GameRunning = false;
    ShowButtons(main, kStartFace);
    main.PuzzleWaiting = true;
}

void RunAtOnce(VMain& main) {
    StartBeamTimers(main);
    main.GameRunning = true;
    ShowButtons(main, kTakeoverFace);
}

void LayOutBeam(VMain& main, CatalogueEntry record) {
    CLine& beam = main.Beams.Make();
    beam.PuzzleLineNr = record[layout::kPuzzleLineNr];
    beam.Direction = record[layout::kDirection];
    beam.XStart = Saturated(kLeftWall + Scaled(record[layout::kX]));
    beam.YStart = Saturated(kPlayfieldTop + Scaled(record[layout::kYStart]));
    beam.YEnd = Saturated(kPlayfieldTop + Scaled(record[layout::kYEnd]));
    const int length = beam.YEnd - beam.YStart;
    beam.XEnd = Saturated(beam.XStart + (beam.Direction == kRightwards ? length : -length));
    beam.RunMode = record[layout::kRunMode];
    beam.Color = record[layout::kColor];
    beam.Thicknes = kLiveThicknes;
    main.Lines.push_back(&beam);
}

void DrawBack(CLine& beam, int pixels) {
    beam.YEnd = Saturated(beam.YEnd - pixels);
    beam.XEnd = Saturated(beam.XEnd + (beam.Direction == kRightwards ? -pixels : pixels));
}

bool IsChain(const CLine& a, const CLine& b) { return a.Color == b.Color && a.XEnd == b.XStart && a.YEnd == b.YStart; }

bool IsHeadOnHead(const CLine& a, const CLine& b) {
    return a.Direction != b.Direction && a.Color != b.Color && a.XEnd == b.XEnd && a.YEnd == b.YEnd;
}

bool IsHeadOnBeam(const CLine& a, const CLine& b) {
    float nearestX = 0;
    float nearestY = 0;
    float distance = 0;
    PointToSegmentDistance(a.XEnd, a.YEnd, b.XStart, b.YStart, b.XEnd, b.YEnd, nearestX, nearestY, distance);
    return distance == 0;
}

void LinkPair(CLine& a, CLine& b) {
    if (IsChain(a, b)) {
        a.LinkedLines.push_back(&b);
        b.LinkedLines.push_back(&a);
    } else if (IsHeadOnHead(a, b)) {
        DrawBack(a, kHeadOnHeadGap);
        DrawBack(b, kHeadOnHeadGap);
        a.StoppingLines.push_back(&b);
        b.StoppingLines.push_back(&a);
    } else if (IsHeadOnBeam(a, b)) {
        DrawBack(a, kHeadOnBeamGap);
        b.StoppingLines.push_back(&a);
    }
}

}  // namespace

void StartPuzzleGame(VMain& main, Boolean nextPuzzle, Boolean Solution) {
    if (nextPuzzle && main.CurrentPuzzle < kPuzzleCount) ++main.CurrentPuzzle;
    ChooseMode(main, Solution);
    ShowPuzzleScreen(main);
    main.platform.StopTimer(Timer::LineCreator);
    if (Solution) {
        RunAtOnce(main);
    } else {
        WaitForPlayer(main);
    }
    ClearLines(main);
    main.Score = 0;
    SetLevelSpeed(main);
    ForEachRecord(CurrentLayout(main), layout::kFields, [&](CatalogueEntry record) { LayOutBeam(main, record); });
    LinkPuzzleLines(main);
    RedrawLines(main);
}

void LinkPuzzleLines(VMain& main) {
    for (CLine* a : main.Lines)
        for (CLine* b : main.Lines)
            if (a != b) LinkPair(*a, *b);
}

}  // namespace prismfall
