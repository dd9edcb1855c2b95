// Where random numbers come from. RandomNumbers.h generates them for every platform with a clock.
#pragma once

#include "platform/Facet.h"

namespace prismfall {

class Chance : public Facet {
  public:
    // Uniform from 0 up to but not including 1.
    virtual double Random() = 0;
    // Mixes the moment of the running handler, in whole milliseconds of game time, into the following numbers. A
    // platform whose numbers do not depend on a clock ignores it.
    virtual void SeedRandomFromClock() = 0;
};

}  // namespace prismfall
