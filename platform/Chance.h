// Where random numbers come from.
#pragma once

namespace prismfall {

class Chance {
  public:
    Chance() = default;
    Chance(const Chance&) = delete;
    Chance& operator=(const Chance&) = delete;
    virtual ~Chance() = default;

    // Uniform from 0 up to but not including 1.
    virtual double Random() = 0;
    virtual void SeedRandomFromClock() = 0;
};

}  // namespace prismfall
