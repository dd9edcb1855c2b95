#include "game/Tutorial.h"

#include <algorithm>
#include <array>

#include "game/RunForward.h"
#include "simulation/BeamSpawning.h"

namespace prismfall {

namespace {

constexpr std::int16_t kClockBeam = 4;  // PuzzleLineNr of the beam whose head is the tutorial's clock
constexpr std::int16_t kBentBeam = 2;
constexpr std::int16_t kStartedBeam = 6;

constexpr int kSkip = 0;
constexpr int kNext = 1;

struct Moment {
    std::int16_t trigger;  // YEnd of the clock beam at the start of a tick
    float left;            // of the picture on the playfield
    float top;
};

constexpr std::array<Moment, kTutorialPictureCount> kMoments = {{
    {324, 325, 54},
    {332, 323, 74},
    {356, 13, 177},
    {375, 449, 64},
    {400, 20, 420},
    {440, 468, 173},
    {475, 13, 291},
    {520, 84, 484},
}};

// Where a picture can be clicked, in its own pixels; all bounds are exclusive.
struct Spot {
    std::size_t picture;
    std::string_view accessibleName;
    bool rightButtonOnly;
    float xAbove;
    float xBelow;
    float yAbove;
    float yBelow;
    int action;
};

constexpr std::array<Spot, 9> kSpots = {{
    {0, "Skip Tutorial", false, 14, 67, 75, 104, kSkip},
    {0, "OK", false, 123, 197, 80, 104, kNext},
    {1, "The end of the red beam", false, 6, 37, 95, 130, kNext},
    {2, "OK", false, 90, 123, 31, 173, kNext},
    {3, "The end of the blue beam", false, 84, 115, 10, 41, kNext},
    {4, "OK", false, 147, 179, 75, 100, kNext},
    {5, "OK", false, 127, 167, 105, 128, kNext},
    {6, "The end of the red beam", true, 175, 199, 14, 60, kNext},
    {7, "OK", false, 149, 185, 75, 96, kNext},
}};

bool Contains(const Spot& spot, float x, float y) {
    return x > spot.xAbove && x < spot.xBelow && y > spot.yAbove && y < spot.yBelow;
}

// The visible part of a spot: one of them extends below its picture.
PressSpot SeenPart(const Spot& spot, const Element& picture) {
    const float bottom = std::min(spot.yBelow, static_cast<float>(picture.height));
    return {spot.accessibleName,       spot.xAbove,          spot.yAbove,
            spot.xBelow - spot.xAbove, bottom - spot.yAbove, spot.rightButtonOnly};
}

CLine* FindBeam(const Field& field, std::int16_t number) {
    const auto beam = std::ranges::find(field.Lines, number, &CLine::PuzzleLineNr);
    return beam == field.Lines.end() ? nullptr : *beam;
}

// After a bend two segments have the beam's number, and only one of them grows.
CLine* FindGrowingBeam(const Field& field, std::int16_t number) {
    const auto beam = std::ranges::find_if(field.Lines, [number](const CLine* line) {
        return line->PuzzleLineNr == number && line->RunMode == Motion::Growing;
    });
    return beam == field.Lines.end() ? nullptr : *beam;
}

void BendForPlayer(VMain& main) {
    if (CLine* beam = FindBeam(main.field, kBentBeam)) SplitLine(main.field, *beam);
}

void StartForPlayer(VMain& main) {
    if (CLine* beam = FindBeam(main.field, kStartedBeam)) beam->RunMode = Motion::Growing;
}

void SpeedUpForPlayer(VMain& main) {
    if (CLine* beam = FindGrowingBeam(main.field, kBentBeam)) RunForward(main, *beam);
}

void ActForPlayer(VMain& main) {
    if (main.TutorialStep == 2) BendForPlayer(main);
    if (main.TutorialStep == 4) StartForPlayer(main);
    if (main.TutorialStep == 7) SpeedUpForPlayer(main);
}

// The pause button is dead while a picture is shown, so the picture must do its work. The music has already resumed
// with the window.
void EndPauseByMinimising(VMain& main) {
    main.GameRunning = true;
    main.platform.StartTimer(Timer::LineDeleter);
    SetMeaning(main.cmdPause, kPause);
}

}  // namespace

void MarkTutorialSpots(VMain& main) {
    for (const Spot& spot : kSpots) {
        Element& picture = main.PictTut[spot.picture];
        *std::ranges::find(picture.spots, PressSpot{}) = SeenPart(spot, picture);
    }
}

void TriggerTutorial(VMain& main) {
    const CLine* clock = FindBeam(main.field, kClockBeam);
    if (clock == nullptr) return;
    const auto moment = std::ranges::find(kMoments, clock->YEnd, &Moment::trigger);
    if (moment == kMoments.end()) return;
    const auto picture = static_cast<std::size_t>(moment - kMoments.begin());
    main.TutorialStep = static_cast<std::int16_t>(picture + 1);
    main.platform.StopTimer(Timer::LineExtender);
    main.PictTut[picture].left = moment->left;
    main.PictTut[picture].top = moment->top;
    main.PictTut[picture].visible = true;
}

void PictTut_MouseDown(VMain& main, std::size_t picture, MouseButton Button, float X, float Y) {
    for (const Spot& spot : kSpots) {
        if (spot.picture != picture || !Contains(spot, X, Y)) continue;
        if (spot.rightButtonOnly && Button != MouseButton::Right) continue;
        return ContinueTutorial(main, spot.action);
    }
}

void ContinueTutorial(VMain& main, int Action) {
    if (Action == kSkip) {
        main.TutorialActive = false;
    } else {
        ActForPlayer(main);
    }
    main.platform.StartTimer(Timer::LineExtender);
    HideTutorialPictures(main);
    main.TutorialStep = 0;
    if (!main.GameRunning) EndPauseByMinimising(main);
}

void HideTutorialPictures(VMain& main) {
    for (Element& picture : main.PictTut) picture.visible = false;
}

}  // namespace prismfall
