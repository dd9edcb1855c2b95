// What a test point hits, and which of several beams.
#include "simulation/CollisionDetection.h"

#include <gtest/gtest.h>

#include "tests/support/TestField.h"

namespace prismfall {
namespace {

constexpr std::int16_t kFarAway = 5000;  // as PrevY, so that no head hits another

TEST(FindCollision, HitsWhatTheTableSays) {
    struct Case {
        const char* beams;
        std::int16_t x, y, prevY;
        bool isHit, isHitBySpeeded;  // the first beam, by a head moving left
    };
    for (const Case& c : {
             // By distance, which may be 1.
             Case{"100,100 150,150 blue", 120, 120, kFarAway, true, true},
             {"100,100 150,150 blue", 122, 120, kFarAway, false, false},  // 1.41
             {"150,100 100,150 blue", 130, 120, kFarAway, true, true},
             {"100,100 150,150 blue", 100, 99, kFarAway, true, true},
             {"100,100 150,150 blue", 100, 98, kFarAway, false, false},
             {"100,100 150,150 blue", 151, 150, kFarAway, true, true},
             {"100,100 150,150 blue", 151, 151, kFarAway, false, false},
             {"200,200 200,200 blue", 201, 199, kFarAway, false, false},
             {"-32768,100 32767,100 blue", 0, 100, kFarAway, true, true},
             // By heads that run towards each other and are less than 3 apart in both axes; the point is far below.
             {"100,100 150,150 blue", 152, 300, 152, true, true},
             {"100,100 150,150 blue", 148, 300, 148, true, true},
             {"100,100 150,150 blue", 153, 300, 150, false, false},
             {"100,100 150,150 blue", 147, 300, 150, false, false},
             {"100,100 150,150 blue", 150, 300, 153, false, false},
             {"100,100 150,150 blue", 150, 300, 147, false, false},
             {"200,100 150,150 blue", 150, 300, 150, false, false},
             // A growing beam strikes those in the first step of their removal, unless a sped-up beam has struck them.
             {"100,100 150,150 blue stopped 4 dying", 120, 120, kFarAway, true, false},
             {"100,100 150,150 blue stopped 4 dying fast", 120, 120, kFarAway, false, false},
             {"100,100 150,150 blue stopped 3 dying", 151, 153, 149, false, false},
             {"100,100 150,150 blue waiting 4 fast", 151, 153, 149, true, true},
             // The first in Lines; nothing at or above the blue line.
             {"100,100 150,150 blue; 100,100 150,150 red", 120, 120, kFarAway, true, true},
             {"100,0 200,100 blue", 120, 20, kFarAway, false, false},
             {"100,0 200,100 blue", 121, 21, kFarAway, true, true},
             {"100,0 200,100 blue", 90, 21, kFarAway, false, false},
         }) {
        TestField test("puzzle", c.beams);
        for (const bool fast : {false, true}) {
            const CLine* hit = FindCollision(test.field, c.x, c.y, c.prevY, Heading::Leftwards, fast);
            EXPECT_EQ(hit == &test.Beam(1), fast ? c.isHitBySpeeded : c.isHit)
                << c.beams << " at " << c.x << ',' << c.y << ' ' << c.prevY << (fast ? " fast" : "");
        }
    }
}

}  // namespace
}  // namespace prismfall
