// The content of Puzzle mode: the layouts of beams, and a script that solves each. It never changes.
#pragma once

#include <cstdint>
#include <span>

#include "simulation/CLine.h"

namespace prismfall {

// A beam of a puzzle's layout, in design units.
struct LayoutBeam {
    std::int16_t PuzzleLineNr = 0;  // how solutions refer to the beam; several beams may share a number
    std::int16_t X = 0;             // of the tail
    std::int16_t YStart = 0;
    std::int16_t YEnd = 0;
    Heading Direction = Heading::Rightwards;
    Motion RunMode = Motion::Stopped;
    BeamColor Color = BeamColor::Blue;
};

// A step of a solution. It is triggered by a growing beam numbered TriggerLineNr whose head is exactly at TriggerYEnd.
struct SolutionStep {
    std::int16_t TriggerLineNr = 0;
    std::int16_t TriggerYEnd = 0;  // pixels of the surface
    bool SpeedUp = false;          // run the affected beams forward
    std::int16_t OtherLineNr = 0;  // the number of the affected beams; 0 for the triggering beam
    bool BendFirst = false;        // bend them first
};

// Of puzzle 1 to kPuzzleCount.
std::span<const LayoutBeam> PuzzleLayout(std::int16_t puzzle);
std::span<const SolutionStep> PuzzleSolution(std::int16_t puzzle);

}  // namespace prismfall
