// Where random numbers come from. RandomNumbers.h makes them for every machine with a clock.
#pragma once

#include "platform/Facet.h"

namespace prismfall {

class Chance : public Facet {
  public:
    // Uniform from 0 up to but not including 1.
    virtual double Random() = 0;
    // Lets the moment of the running handler, in whole milliseconds of game time, influence the numbers to come. A
    // machine whose numbers do not depend on a clock ignores it.
    virtual void SeedRandomFromClock() = 0;
};

}  // namespace prismfall
