// What the player may change about how the game is shown, heard and paced. The rules of the game know nothing of it,
// and with every value at its default a machine does what it does without.
#pragma once

#include <vector>

#include "platform/Element.h"
#include "platform/Facet.h"

namespace prismfall {

// How a colour is laid out along a beam. Beams run diagonally, so that a row of pixels is a place along any of them.
enum class Pattern { Solid, Dashes, Dots, DashDots };

// How pixels of the surface that were painted in one colour are shown.
struct Recolouring {
    Colour painted = kBlack;
    Colour shown = kBlack;
    Pattern pattern = Pattern::Solid;  // between its parts the colour is dim

    bool operator==(const Recolouring&) const = default;
};

struct Comfort {
    std::vector<Recolouring> recolourings = {};  // all others are shown as they were painted
    bool ringsAtPointer = false;                 // marks what a press would reach
    int musicPercent = 100;                      // of the volume that the game asks for
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
