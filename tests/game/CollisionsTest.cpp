// What happens when a beam, growing or run forward, ends at another one: sounds, points, timer speed, the blue line.
#include <gtest/gtest.h>

#include "game/GrowthTick.h"
#include "game/RunForward.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

// Mode; beams, of which the last grows one step, or runs forward from one step earlier; the sounds of a tick and of a
// run.
constexpr char kCollisions[] = R"(
    puzzle | 250,100 200,150 green stopped; 150,100 196,146 blue            | sound 1 async | sound 1 async
    puzzle | 250,100 200,150 blue; 150,100 196,146 blue                     | sound 4 sync  | sound 4 async
    replay | 250,100 200,150 blue; 150,100 196,146 blue                     | sound 4 sync  | sound 4 async
    arcade | 250,100 200,150 blue stopped; 150,100 196,146 blue             | sound 2 async | sound 2 async
    puzzle | 250,100 200,150 blue; 50,50 55,55 red; 150,100 196,146 blue    | sound 2 async | sound 2 async
    arcade | 600,100 550,150 green stopped; 500,100 510,110 red stopped     |               |
)";

TEST(Collisions, MakeSoundsScoreAndSpeedUpTheTimers) {
    for (const auto& row : Rows(kCollisions)) {
        for (const bool isRun : {false, true}) {
            if (isRun && row[3].empty()) continue;
            TestGame game(ModeNamed(row[0]), row[1]);
            VMain& main = game.Main();
            main.Level = 3;
            isRun ? static_cast<void>(RunForward(main, *main.field.Lines.back())) : ExtendLines(main);
            const std::string sound = row[isRun ? 3 : 2];
            EXPECT_EQ(game.TakePrinted(), sound.empty() ? "" : sound + '\n') << row[1];
            const bool isDestroyed = sound.starts_with("sound 2") || sound.starts_with("sound 4");
            EXPECT_EQ(main.Score, row[0] == "arcade" && isDestroyed ? 10 : 0) << row[1];
            EXPECT_EQ(game.Machine().Timers().Interval(Timer::LineExtender), isDestroyed ? 48 : 75) << row[1];
            const bool isBlue = game.Machine().Painted().PixelAt(669, 60) == 0xFF0000FFU;
            EXPECT_EQ(isBlue, row[0] == "arcade") << row[1];
        }
    }
}

}  // namespace
}  // namespace prismfall
