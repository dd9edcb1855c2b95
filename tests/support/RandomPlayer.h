// A player who clicks at random, on beams mostly, in games that go on for as long as a test likes. What must hold
// meanwhile is up to the tests.
#pragma once

#include <cstdint>
#include <random>

#include "tests/support/TestGame.h"

namespace prismfall {

// A whole number from the environment of the test program, or `fallback`.
long FromEnvironment(const char* name, long fallback);

class RandomPlayer : public TestGame {
  public:
    explicit RandomPlayer(std::uint32_t seed);

    // Clicks now and then, and lets about one growth tick pass. Between games it starts a puzzle, a replay or an Arcade
    // game at a random level.
    void PlayATick();

    int games = 0;

  private:
    int Number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    bool Chance(int percent) { return Number(0, 99) < percent; }
    void StartAGame();
    void Press();

    std::mt19937 random;
};

}  // namespace prismfall
