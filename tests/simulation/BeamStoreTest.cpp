// What keeps a beam in memory.
#include <gtest/gtest.h>

#include <random>
#include <set>
#include <vector>

#include "simulation/BeamStore.h"

namespace prismfall {
namespace {

void Reach(CLine* beam, std::set<const CLine*>& reached) {
    if (!reached.insert(beam).second) return;
    for (CLine* next : beam->LinkedLines) Reach(next, reached);
    for (CLine* next : beam->StoppingLines) Reach(next, reached);
}

TEST(BeamStore, FreesOnlyTheUnreachable) {
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

}  // namespace
}  // namespace prismfall
