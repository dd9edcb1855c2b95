#include "simulation/Scoring.h"

#include <algorithm>

#include "audio/Music.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

constexpr int kPointsOfOne = 10;
constexpr int kMostDoublings = 15;  // far past what a score can hold

constexpr float kPopUpAside = -15;  // of a beam that runs to the right, game pixels
constexpr float kPopUpAbove = -10;
constexpr std::int16_t kPopUpDarkens = 6;  // MultiTicks
constexpr std::int16_t kPopUpEnds = 8;

std::int16_t PointsFor(std::int16_t N) { return Saturated(kPointsOfOne << std::clamp(N - 1, 0, kMostDoublings)); }

void StartPopUp(VMain& main, std::int16_t N, std::int16_t points) {
    const float popX = static_cast<float>(main.MultiSumX) / static_cast<float>(N);
    const float popY = static_cast<float>(main.MultiSumY) / static_cast<float>(N);
    main.LabelMulti.visible = true;
    ShowNumber(main.LabelMulti, points);
    main.LabelMulti.left = popX + (main.MultiDirection == kRightwards ? kPopUpAside : 0.0F);
    main.LabelMulti.top = popY + kPopUpAbove;
    main.LabelMulti.colour = LineColors[static_cast<std::size_t>(main.MultiColor)];
    main.MultiTicks = 1;
    main.platform.StartTimer(Timer::TimerMulti);
}

std::int16_t LevelTarget(const VMain& main) { return Saturated(main.Level * 8 + 16); }

void RaiseLevel(VMain& main) {
    main.Level = Saturated(main.Level + 1);
    main.LevelLineCount = 0;
    ShowNumber(main.VLevel, main.Level);
    PlayLevelMusic(main, main.Level);
}

}  // namespace

void AddScore(VMain& main, std::int16_t N) {
    const std::int16_t points = PointsFor(N);
    if (N > 1) StartPopUp(main, N, points);
    main.Score = Saturated(main.Score + points);
    if (main.Score > main.HighScore) {
        main.HighScore = main.Score;
        ShowNumber(main.VHighScore, main.HighScore);
    }
    ShowNumber(main.VScore, main.Score);
    main.LevelLineCount = Saturated(main.LevelLineCount + N);
    if (main.LevelLineCount >= LevelTarget(main)) RaiseLevel(main);
}

void TimerMulti_Timer(VMain& main) {
    main.MultiTicks = Saturated(main.MultiTicks + 1);
    main.LabelMulti.top += 1;
    main.LabelMulti.left += main.MultiDirection == kRightwards ? -1.0F : 1.0F;
    if (main.MultiTicks == kPopUpDarkens)
        main.LabelMulti.colour = LineColorsLower[static_cast<std::size_t>(main.MultiColor)];
    if (main.MultiTicks != kPopUpEnds) return;
    main.LabelMulti.visible = false;
    main.platform.StopTimer(Timer::TimerMulti);
}

}  // namespace prismfall
