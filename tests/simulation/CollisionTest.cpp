// What a test point hits, and in which order.
#include <gtest/gtest.h>

#include <random>

#include "simulation/BeamRemoval.h"
#include "simulation/CollisionDetection.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

constexpr int kFarAway = 500;  // as PrevY: no head meets another

struct DistanceCase {
    const char* name;
    int x1, y1, x2, y2;  // of the only beam
    int x, y;            // the test point
    bool isHit;
};

TEST(FindCollision, HitsBeamsAtADistanceOfOneOrLess) {
    constexpr DistanceCase kCases[] = {
        {"on the beam", 100, 100, 150, 150, 120, 120, true},
        {"on its other slope", 150, 100, 100, 150, 130, 120, true},
        {"on the next diagonal, 0.707 away", 100, 100, 150, 150, 121, 120, true},
        {"on the second diagonal, 1.41 away", 100, 100, 150, 150, 122, 120, false},
        {"exactly 1 above the tail", 100, 100, 150, 150, 100, 99, true},
        {"exactly 1 beside the head", 100, 100, 150, 150, 151, 150, true},
        {"1.41 past the head", 100, 100, 150, 150, 151, 151, false},
        {"2 above the tail", 100, 100, 150, 150, 100, 98, false},
        {"a beam without length", 200, 200, 200, 200, 201, 200, true},
        {"1.41 from a beam without length", 200, 200, 200, 200, 201, 199, false},
        {"beyond its end on the same diagonal", 100, 100, 150, 150, 160, 160, false},
        {"at the ends of the range", -32768, 100, 32767, 100, 0, 100, true},
    };
    for (const DistanceCase& c : kCases) {
        TestGame game;
        const VMain& main = game.Play(kPuzzleGame);
        const CLine& beam = game.AddBeam(c.x1, c.y1, c.x2, c.y2, 0);
        const CLine* hit = FindCollision(main, Saturated(c.x), Saturated(c.y), kFarAway, kLeftwards, false);
        EXPECT_EQ(hit == &beam, c.isHit) << c.name;
    }
}

TEST(FindCollision, HeadsMeetWithinTwoPixelsIfTheyRunOppositeWays) {
    struct Case {
        int offX, offPrevY;  // from the other beam's head at (150, 150), which runs to the right
        std::int32_t direction;
        bool isHit;
    };
    constexpr Case kCases[] = {
        {2, 2, kLeftwards, true},   {-2, -2, kLeftwards, true}, {3, 0, kLeftwards, false},
        {-3, 0, kLeftwards, false}, {0, 3, kLeftwards, false},  {0, -3, kLeftwards, false},
        {2, 2, kRightwards, false}, {0, 0, kRightwards, false}, {0, 2, kLeftwards, true},
    };
    for (const Case& c : kCases) {
        TestGame game;
        const VMain& main = game.Play(kPuzzleGame);
        game.AddBeam(100, 100, 150, 150, 0);
        const auto x = Saturated(150 + c.offX), prevY = Saturated(150 + c.offPrevY);
        // The test point itself lies far below.
        EXPECT_EQ(FindCollision(main, x, 300, prevY, c.direction, false) != nullptr, c.isHit)
            << c.offX << ' ' << c.offPrevY << ' ' << c.direction;
    }
}

TEST(FindCollision, LooksOnlyBelowTheBlueLine) {
    for (const auto& [mode, lastFree] : {std::pair{kArcadeGame, 60}, std::pair{kPuzzleGame, 20}}) {
        TestGame game;
        const VMain& main = game.Play(mode);
        EXPECT_EQ(FindCollision(main, 100, 300, 300, kLeftwards, false), nullptr) << "nothing in an empty playfield";
        game.AddBeam(100 - lastFree, 0, 200 - lastFree, 100, 0);
        EXPECT_EQ(FindCollision(main, 100, Saturated(lastFree), kFarAway, kLeftwards, false), nullptr);
        EXPECT_NE(FindCollision(main, 101, Saturated(lastFree + 1), kFarAway, kLeftwards, false), nullptr);
    }
}

TEST(FindCollision, PassesOverBeamsThatAreOutOfPlay) {
    struct Case {
        bool deleted;
        float thicknes;
        bool byFastLine, isHitByGrowing, isHitBySpeeded;
    };
    constexpr Case kCases[] = {
        {false, 5, false, true, true},  {true, 4, false, true, false},   {true, 4, true, false, false},
        {true, 3, false, false, false}, {true, 3, true, false, false},   {true, 5, false, false, false},
        {true, 1, false, false, false}, {true, -1, false, false, false}, {false, 4, true, true, true},
    };
    for (const Case& c : kCases) {
        for (const std::int32_t runMode : {kStopped, kGrowing, kWaiting}) {
            TestGame game;
            const VMain& main = game.Play(kPuzzleGame);
            CLine& beam = game.AddBeam(100, 100, 150, 150, 0, runMode);
            beam.Deleted = c.deleted;
            beam.Thicknes = c.thicknes;
            beam.DeletedByFastLine = c.byFastLine;
            // By distance, and by heads.
            for (const auto& [x, y, prevY] : {std::tuple{120, 120, kFarAway}, std::tuple{151, 153, 149}}) {
                const auto hit = [&, x = x, y = y, prevY = prevY](bool fast) {
                    return FindCollision(main, Saturated(x), Saturated(y), Saturated(prevY), kLeftwards, fast);
                };
                EXPECT_EQ(hit(false) != nullptr, c.isHitByGrowing) << c.thicknes << c.deleted << c.byFastLine;
                EXPECT_EQ(hit(true) != nullptr, c.isHitBySpeeded) << c.thicknes << c.deleted << c.byFastLine;
            }
        }
    }
}

// What a walk to the left without any short cut finds.
const CLine* FoundByPlainWalk(const VMain& main, std::int16_t x, std::int16_t y, std::int16_t prevY) {
    for (const CLine* beam : main.Lines) {
        float nearestX = 0, nearestY = 0, distance = 0;
        PointToSegmentDistance(x, y, beam->XStart, beam->YStart, beam->XEnd, beam->YEnd, nearestX, nearestY, distance);
        const bool headsMeet = std::abs(prevY - beam->YEnd) < 3 && std::abs(x - beam->XEnd) < 3;
        if (distance <= 1 || (headsMeet && beam->Direction == kRightwards)) return beam;
    }
    return nullptr;
}

TEST(FindCollision, FindsWhatAPlainWalkFinds) {
    std::mt19937 random(3);
    std::uniform_int_distribution<int> place(14, 300), length(0, 60), off(-6, 6), along(0, 60);
    TestGame game;
    VMain& main = game.Play(kPuzzleGame);
    int hits = 0;
    for (int i = 0; i < 6000; ++i) {
        if (i % 100 == 0) ClearLines(main);
        const int x = place(random), y = 40 + place(random), size = length(random), at = along(random);
        const int way = i % 2 == 0 ? 1 : -1;
        game.AddBeam(x, y, x + way * size, y + size, 0);
        const auto testX = Saturated(x + way * at + off(random)), testY = Saturated(y + at + off(random));
        const auto prevY = Saturated(testY - 4);
        const CLine* expected = FoundByPlainWalk(main, testX, testY, prevY);
        EXPECT_EQ(FindCollision(main, testX, testY, prevY, kLeftwards, false), expected);
        if (expected != nullptr) ++hits;
    }
    EXPECT_GT(hits, 1000);
}

TEST(PointToSegmentDistance, GivesTheNearestPoint) {
    struct Case {
        float x, y, x1, y1, x2, y2, nearestX, nearestY, distance;
    };
    constexpr Case kCases[] = {{3, 4, 0, 0, 0, 0, 0, 0, 5},
                               {5, 5, 0, 0, 10, 10, 5, 5, 0},
                               {0, 10, 0, 0, 10, 10, 5, 5, 7.0710678F},
                               {-3, -4, 0, 0, 10, 10, 0, 0, 5},
                               {13, 14, 0, 0, 10, 10, 10, 10, 5},
                               {10, 10, 0, 0, 10, 10, 10, 10, 0},
                               {4, 7, 0, 10, 10, 0, 3.5F, 6.5F, 0.70710678F},
                               {12, 3, 0, 0, 10, 0, 10, 0, 3.6055513F}};
    for (const Case& c : kCases) {
        float nearestX = 0, nearestY = 0, distance = 0;
        PointToSegmentDistance(c.x, c.y, c.x1, c.y1, c.x2, c.y2, nearestX, nearestY, distance);
        EXPECT_FLOAT_EQ(nearestX, c.nearestX);
        EXPECT_FLOAT_EQ(nearestY, c.nearestY);
        EXPECT_FLOAT_EQ(distance, c.distance);
    }
}

}  // namespace
}  // namespace prismfall
