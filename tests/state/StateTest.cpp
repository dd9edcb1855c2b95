// The record of a beam, what keeps beams in memory, and where a game enters the table of the best.
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "state/Numbers.h"
#include "state/ScoreTable.h"
#include "tests/support/TestField.h"

namespace prismfall {
namespace {

TEST(CLine, CopyTakesAllButListsAndNumber) {
    TestField field(kPuzzleGame, "100,100 50,150 yellow waiting 4 dying fast #5");
    CLine& beam = field.Beam(1);
    beam.XStartOrg = std::int16_t{81};
    beam.LinkedLines = beam.StoppingLines = {&beam};
    CLine copy;
    copy.Copy(beam);
    EXPECT_EQ(InShort(copy), "100,100 50,150 yellow waiting 4 dying fast");
    EXPECT_EQ(copy.XStartOrg, 81);
    EXPECT_TRUE(copy.LinkedLines.empty() && copy.StoppingLines.empty());
}

void Reach(CLine* beam, std::set<const CLine*>& reached) {
    if (!reached.insert(beam).second) return;
    for (CLine* next : beam->LinkedLines) Reach(next, reached);
    for (CLine* next : beam->StoppingLines) Reach(next, reached);
}

TEST(BeamStore, FreesWhatIsOutOfReachAndNothingElse) {
    std::mt19937 random(5);
    BeamStore store;
    std::vector<CLine*> all, first, second;
    for (int i = 0; i < 300; ++i) all.push_back(&store.Make());
    const auto any = [&] { return all[random() % all.size()]; };
    for (int i = 0; i < 200; ++i) any()->LinkedLines.push_back(any());
    for (int i = 0; i < 200; ++i) any()->StoppingLines.push_back(any());
    for (int i = 0; i < 20; ++i) first.push_back(any());
    for (int i = 0; i < 5; ++i) second.push_back(any());
    for (int round = 0; round < 2; ++round) {  // the second time without the second list
        std::set<const CLine*> reached;
        for (CLine* beam : first) Reach(beam, reached);
        for (CLine* beam : second) Reach(beam, reached);
        ASSERT_GT(reached.size(), 64U + 2 * first.size()) << "enough to be worth it";
        store.KeepReachable(first, second);
        EXPECT_EQ(store.Count(), reached.size());
        second.clear();
    }
}

TEST(EnterScore, BelowOlderEqualOnesAndTheLastRowGoes) {
    ScoreTable table;
    for (const int score : {90, 100, 0, 80, 70, 60, 50, 40, 30, 20, 10, 10, 100, 32767})
        EnterScore(table, {Saturated(score), Saturated(score / 10), 5});
    EXPECT_FALSE(EnterScore(table, {20, 9, 9})) << "equal to the last one";
    EXPECT_TRUE(EnterScore(table, {100, 7, 8}));
    std::string rows;
    for (const auto& row : table) rows += std::to_string(row.score) + ':' + std::to_string(row.startLevel) + ' ';
    EXPECT_EQ(rows, "32767:3276 100:10 100:10 100:7 90:9 80:8 70:7 60:6 50:5 40:4 ");
}

}  // namespace
}  // namespace prismfall
