// A player who clicks at random, on beams mostly, in games that go on for as long as a test likes. What must hold
// meanwhile is up to the tests.
#pragma once

#include <cstdint>
#include <random>

#include "tests/support/TestGame.h"

namespace prismfall {

// A whole number from the environment of the test program, or `fallback`.
long FromEnvironment(const char* name, long fallback);

class RandomPlayer {
  public:
    explicit RandomPlayer(std::uint32_t seed);

    // At a random level.
    void StartArcade();
    // Not the first one, which belongs to the tutorial, unless as a solution to watch.
    void StartPuzzle(std::int16_t puzzle, bool isSolution);
    // Clicks now and then, and lets about one growth tick pass.
    void PlayATick();
    void Leave();

    int Number(int from, int to);
    bool Chance(int percent) { return Number(0, 99) < percent; }

    const VMain& Main() const { return *main; }
    // Milliseconds that the player has spent.
    std::int64_t Spent() { return game.Machine().Timers().Now(); }
    int Games() const { return games; }

  private:
    void Press();

    TestGame game;
    VMain* main;
    std::mt19937 random;
    int games = 0;
};

}  // namespace prismfall
