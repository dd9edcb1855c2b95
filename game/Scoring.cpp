#include "game/Scoring.h"

#include <algorithm>

#include "audio/Music.h"
#include "platform/Numbers.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

constexpr int kPointsOfOne = 10;
constexpr int kMostDoublings = 15;  // far more than a score can hold

constexpr float kPopUpAside = -15;  // offset for a beam that runs to the right, game pixels
constexpr float kPopUpAbove = -10;
constexpr std::int16_t kPopUpDarkens = 6;  // MultiTicks
constexpr std::int16_t kPopUpEnds = 8;

std::int16_t PointsFor(std::int16_t N) { return Saturated(kPointsOfOne << std::clamp(N - 1, 0, kMostDoublings)); }

void StartPopUp(VMain& main, const Hits& hits, std::int16_t points) {
    const auto count = static_cast<float>(hits.N);
    const float aside = main.MultiDirection == Heading::Rightwards ? kPopUpAside : 0.0F;
    main.LabelMulti.visible = true;
    ShowNumber(main.LabelMulti, points);
    main.LabelMulti.left = static_cast<float>(hits.MultiSumX) / count + aside;
    main.LabelMulti.top = static_cast<float>(hits.MultiSumY) / count + kPopUpAbove;
    main.LabelMulti.colour = OfColor(LineColors, main.MultiColor);
    main.MultiTicks = 1;
    main.platform.StartTimer(Timer::TimerMulti);
}

std::int16_t LevelTarget(const VMain& main) { return Saturated(main.Level * 8 + 16); }

void RaiseLevel(VMain& main) {
    main.Level = Saturated(main.Level + 1);
    main.LevelLineCount = 0;
    ShowNumber(main.VLevel, main.Level);
    PlayLevelMusic(main.audio, main.Level);
}

}  // namespace

void CountHit(VMain& main, Hits& hits, const BeamBody& beam) {
    hits.N = Saturated(hits.N + 1);
    hits.MultiSumX = Saturated(hits.MultiSumX + beam.XEnd);
    hits.MultiSumY = Saturated(hits.MultiSumY + beam.YEnd);
    main.MultiColor = beam.Color;
    main.MultiDirection = beam.Direction;
}

void AddScore(VMain& main, const Hits& hits) {
    const std::int16_t points = PointsFor(hits.N);
    if (hits.N > 1) StartPopUp(main, hits, points);
    main.Score = Saturated(main.Score + points);
    if (main.Score > main.HighScore) {
        main.HighScore = main.Score;
        ShowNumber(main.VHighScore, main.HighScore);
    }
    ShowNumber(main.VScore, main.Score);
    main.LevelLineCount = Saturated(main.LevelLineCount + hits.N);
    if (main.LevelLineCount >= LevelTarget(main)) RaiseLevel(main);
    ShowWayToLevel(main);
}

void ShowWayToLevel(VMain& main) {
    Element& line = main.LabelWay;
    line.visible = main.settings.extras.Lively != 0 && main.LevelLineCount > 0;
    line.width = main.VLevel.width * main.LevelLineCount / std::max<int>(1, LevelTarget(main));
}

void TimerMulti_Timer(VMain& main) {
    main.MultiTicks = Saturated(main.MultiTicks + 1);
    main.LabelMulti.top += 1;
    main.LabelMulti.left -= static_cast<float>(Sideways(main.MultiDirection));
    if (main.MultiTicks == kPopUpDarkens) main.LabelMulti.colour = OfColor(LineColorsLower, main.MultiColor);
    if (main.MultiTicks != kPopUpEnds) return;
    main.LabelMulti.visible = false;
    main.platform.StopTimer(Timer::TimerMulti);
}

}  // namespace prismfall
