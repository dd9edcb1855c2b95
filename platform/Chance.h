// Where random numbers come from.
#pragma once

#include "platform/Facet.h"

namespace prismfall {

class Chance : public Facet {
  public:
    // Uniform from 0 up to but not including 1.
    virtual double Random() = 0;
    virtual void SeedRandomFromClock() = 0;
};

}  // namespace prismfall
