// The random numbers of every machine with a clock. All chance of a game follows from one number: the same number,
// seeded at the same moments since, gives the same sequence on every machine.
#pragma once

#include <cstdint>

namespace prismfall {

class RandomNumbers {
  public:
    // `number` stands for all that will be random; a program draws it when it starts.
    explicit RandomNumbers(std::uint64_t number) : state(number) {}

    // Starts a sequence of its own, as that of a game; `moment` is game time in milliseconds, and later seeds count
    // from it.
    void Begin(std::uint64_t number, std::int64_t moment);

    // Lets the moment, game time in milliseconds, take part in what follows. What the sequence has come to is part of
    // it too, so two seeds at one moment differ.
    void Seed(std::int64_t moment);

    // Uniform from 0 up to but not including 1.
    double Next();

  private:
    std::uint64_t state;
    std::int64_t origin = 0;
};

}  // namespace prismfall
