// Where a game enters the table of the best.
#include "state/ScoreTable.h"

#include <gtest/gtest.h>

#include "state/Numbers.h"

namespace prismfall {
namespace {

TEST(EnterScore, BelowOlderEqualOnesAndTheLastRowGoes) {
    ScoreTable table;
    for (const int score : {90, 100, 0, 80, 70, 60, 50, 40, 30, 20, 10, 10, 100, 32767})
        EnterScore(table, {Saturated(score), Saturated(score / 10), 5});
    EXPECT_FALSE(EnterScore(table, {20, 9, 9})) << "equal to the last one";
    EXPECT_TRUE(EnterScore(table, {100, 7, 8}));
    const ScoreTable expected = {{{32767, 3276, 5},
                                  {100, 10, 5},
                                  {100, 10, 5},
                                  {100, 7, 8},
                                  {90, 9, 5},
                                  {80, 8, 5},
                                  {70, 7, 5},
                                  {60, 6, 5},
                                  {50, 5, 5},
                                  {40, 4, 5}}};
    EXPECT_TRUE(table == expected);
}

}  // namespace
}  // namespace prismfall
