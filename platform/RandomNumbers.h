// The random numbers of every platform with a clock, the same on all of them. One number determines all randomness of a
// game: a recorder calls Begin with it when a game begins, and again when the game is played back. Both times the same
// calls of Seed and Next, at the same moments since Begin, give the same results, at any time and on any machine.
#pragma once

#include <cstdint>

namespace prismfall {

class RandomNumbers {
  public:
    // A program picks `number` when it starts, so that no two runs are alike. Moments of seeds count from 0.
    explicit RandomNumbers(std::uint64_t number) : state(number) {}

    // Restarts with `number`, independent of everything before. `moment` is game time in milliseconds, and the moments
    // of later seeds count from it.
    void Begin(std::uint64_t number, std::int64_t moment);

    // Makes the following numbers depend on `moment` too, game time in milliseconds. It is mixed into the current
    // state, so two seeds at one moment are followed by different numbers.
    void Seed(std::int64_t moment);

    // Uniform from 0 up to but not including 1, a multiple of 2^-53.
    double Next();

  private:
    std::uint64_t state;
    std::int64_t origin = 0;
};

}  // namespace prismfall
