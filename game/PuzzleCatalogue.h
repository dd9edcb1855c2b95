// The content of Puzzle mode: the layouts of beams, and a script that solves each. It never changes.
#pragma once

#include <cstdint>
#include <span>

#include "simulation/CLine.h"

namespace prismfall {

// A beam of a puzzle as it is laid out, in design units.
struct LayoutBeam {
    std::int16_t PuzzleLineNr = 0;  // the name of the beam for solutions; several may share one
    std::int16_t X = 0;             // of the tail
    std::int16_t YStart = 0;
    std::int16_t YEnd = 0;
    Heading Direction = Heading::Rightwards;
    Motion RunMode = Motion::Stopped;
    BeamColor Color = BeamColor::Blue;
};

// A step of a solution. It fires on a growing beam of the number TriggerLineNr whose head is exactly at TriggerYEnd.
struct SolutionStep {
    std::int16_t TriggerLineNr = 0;
    std::int16_t TriggerYEnd = 0;  // pixels of the surface
    bool SpeedUp = false;          // run the beams that it acts on forward
    std::int16_t OtherLineNr = 0;  // the number of those beams; 0 for the one that triggered it
    bool BendFirst = false;        // bend them before
};

// Of puzzle 1 to kPuzzleCount.
std::span<const LayoutBeam> PuzzleLayout(std::int16_t puzzle);
std::span<const SolutionStep> PuzzleSolution(std::int16_t puzzle);

}  // namespace prismfall
