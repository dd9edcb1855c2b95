// The state of the playfield: its beams, and everything needed to move, strike and paint them. A Field works on its
// own; its user sets the rules and acts on the outcomes.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/Chance.h"
#include "platform/SurfacePainter.h"
#include "simulation/BeamStore.h"
#include "simulation/CLine.h"

namespace prismfall {

// How the behaviour of beams differs between kinds of game.
struct FieldRules {
    bool hasEntryZone = false;  // beams enter as spots above a blue line, and leave a trail only below it
};

struct Field {
    Field(SurfacePainter& surface, Chance& dice) : painter(surface), chance(dice) {}

    SurfacePainter& painter;
    Chance& chance;
    FieldRules rules;
    std::vector<CLine*> Lines;        // every beam, live and dying; the order of growth and of collision tests
    std::vector<CLine*> DyingLines;   // those struck directly; a beam can be in it twice
    BeamStore Beams;                  // owns them
    std::int16_t CollisionLineY = 0;  // where the entry zone ends, minus the fixed heights in Playfield.h
    std::int16_t GrowthToggle = 0;    // 0 or 1, flips at every growth tick; in the entry zone beams move only at 0
};

// The outcome of a beam's step or run.
enum class Outcome {
    Continues,  // it moved, or it was not its turn
    Bounced,    // off a wall: a new segment runs in the other direction
    AtFloor,    // its next step would be onto the ground; it did not take it
    Stopped,    // by another beam, which it now waits behind
    Destroyed,  // together with a beam of its own colour: both are dying
};

}  // namespace prismfall
