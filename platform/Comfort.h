// What the player may change about how the game looks, sounds and runs. The rules of the game know nothing of it, and
// with all values at their defaults nothing changes.
#pragma once

#include <vector>

#include "platform/Element.h"
#include "platform/Facet.h"
#include "platform/KeyMap.h"

namespace prismfall {

// How a colour is distributed along a beam. Beams run diagonally, so each row of pixels is one place along a beam.
enum class Pattern { Solid, Dashes, Dots, DashDots };

// How pixels of the surface that were painted in one colour are shown.
struct Recolouring {
    Colour painted = kBlack;
    Colour shown = kBlack;
    Pattern pattern = Pattern::Solid;  // the colour is dim in its gaps

    bool operator==(const Recolouring&) const = default;
};

struct Comfort {
    std::vector<Recolouring> recolourings = {};  // all other colours are shown as painted
    bool ringsAtPointer = false;                 // marks what a press would reach
    bool isLively = false;                       // sparks and glows
    KeyMap keys;
    int musicPercent = 100;  // of the volume that the game sets
    int effectsPercent = 100;
};

class ComfortTaker : public Facet {
  public:
    // From now on, until the next call.
    virtual void SetComfort(const Comfort& comfort) = 0;
    // How much game time passes in 100 milliseconds of the machine's clock: from 1 to 100. Sounds keep their length.
    virtual void SetPace(int percent) = 0;
};

}  // namespace prismfall
