#include "game/PuzzleStart.h"

#include "audio/Music.h"
#include "game/GameTimers.h"
#include "game/Modes.h"
#include "game/PlayerWishes.h"
#include "game/PuzzleCatalogue.h"
#include "platform/Numbers.h"
#include "simulation/BeamRemoval.h"
#include "simulation/CollisionDetection.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

constexpr std::int16_t kTutorialPuzzle = 1;
constexpr int kHeadOnHeadGap = 3;  // pixels by which each of two heads is drawn back
constexpr int kHeadOnBeamGap = 4;

// Design units to pixels: four fifths, rounded down.
std::int16_t Scaled(std::int16_t design) { return static_cast<std::int16_t>(design * 4 / 5); }

void ShowPuzzleScreen(VMain& main, Mode mode) {
    EnterScreen(main, mode);
    main.Level = 1;
    PlayLevelMusic(main.audio, main.CurrentPuzzle);
    main.field.CollisionLineY = RowOf(mode).collisionLineY;
    ShowNumber(main.LabelPuzzleNr, main.CurrentPuzzle);
}

void SetButtons(VMain& main, const ButtonMeaning& start) {
    SetMeaning(main.CmdStart, start);
    SetMeaning(main.cmdPause, kPause);
}

void WaitForPlayer(VMain& main) {
    StopBeamTimers(main);
    main.GameRunning = false;
    SetButtons(main, kStart);
    main.PuzzleWaiting = true;
}

void RunAtOnce(VMain& main) {
    StartBeamTimers(main);
    main.GameRunning = true;
    SetButtons(main, kTakeover);
}

void LayOutBeam(Field& field, const LayoutBeam& layout) {
    CLine& beam = field.Beams.Make();
    beam.PuzzleLineNr = layout.PuzzleLineNr;
    beam.Direction = layout.Direction;
    beam.XStart = Saturated(kLeftWall + Scaled(layout.X));
    beam.YStart = Saturated(kPlayfieldTop + Scaled(layout.YStart));
    beam.YEnd = Saturated(kPlayfieldTop + Scaled(layout.YEnd));
    beam.XEnd = Saturated(beam.XStart + Sideways(beam.Direction) * (beam.YEnd - beam.YStart));
    beam.RunMode = layout.RunMode;
    beam.Color = layout.Color;
    beam.Thicknes = kLiveThicknes;
    field.Lines.push_back(&beam);
}

void DrawBack(CLine& beam, int pixels) {
    beam.YEnd = Saturated(beam.YEnd - pixels);
    beam.XEnd = Saturated(beam.XEnd - Sideways(beam.Direction) * pixels);
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

void StartPuzzleGame(VMain& main, bool nextPuzzle, bool Solution) {
    if (nextPuzzle && main.CurrentPuzzle < kPuzzleCount) ++main.CurrentPuzzle;
    BeginAtPace(main);
    main.log->Begins(main, Solution ? GameKind::Solution : GameKind::Puzzle);
    if (!Solution) main.TutorialActive = main.CurrentPuzzle == kTutorialPuzzle;
    ShowPuzzleScreen(main, Solution ? Mode::SolutionReplay : Mode::PuzzleGame);
    main.platform.StopTimer(Timer::LineCreator);
    if (Solution) {
        RunAtOnce(main);
    } else {
        WaitForPlayer(main);
    }
    ClearLines(main.field);
    main.Score = 0;
    SetLevelSpeed(main);
    for (const LayoutBeam& beam : PuzzleLayout(main.CurrentPuzzle)) LayOutBeam(main.field, beam);
    LinkPuzzleLines(main.field);
    RedrawLines(main.field);
}

void LinkPuzzleLines(Field& field) {
    for (CLine* a : field.Lines)
        for (CLine* b : field.Lines)
            if (a != b) LinkPair(*a, *b);
}

}  // namespace prismfall
