// All randomness of a game follows from one number.
#include "platform/RandomNumbers.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <vector>

namespace prismfall {
namespace {

// The numbers of a game that begins at `start`, seeded at moments relative to it.
std::vector<double> Play(std::uint64_t number, std::int64_t start, std::int64_t secondSeed = 2500) {
    RandomNumbers random(99);
    random.Next();
    random.Begin(number, start);
    std::vector<double> drawn;
    for (const std::int64_t moment : {std::int64_t{0}, std::int64_t{0}, secondSeed}) {
        random.Seed(start + moment);
        for (int i = 0; i < 3; ++i) drawn.push_back(random.Next());
    }
    return drawn;
}

TEST(RandomNumbers, FollowFromOneNumberAndTheSeedsAndAreUniform) {
    EXPECT_EQ(Play(7, 0), Play(7, 123'456)) << "whenever the game begins";
    const std::vector<double> drawn = Play(7, 0);
    EXPECT_EQ(std::set(drawn.begin(), drawn.end()).size(), drawn.size()) << "two seeds at one moment differ";
    EXPECT_NE(Play(7, 0)[0], Play(8, 0)[0]);
    EXPECT_NE(Play(7, 0)[6], Play(7, 0, 2501)[6]);
    RandomNumbers known(1);
    EXPECT_EQ(known.Next(), 0.5665615751722809) << "the same on every machine";
    RandomNumbers random(5);
    std::array<int, 10> buckets{};
    for (int i = 0; i < 100'000; ++i) {
        if (i % 2 == 0) random.Seed(i);
        ++buckets.at(static_cast<std::size_t>(random.Next() * 10));
    }
    for (const int count : buckets)
        EXPECT_NEAR(count, 10'000, 500) << "uniform, even if seeded before every second number";
}

}  // namespace
}  // namespace prismfall
