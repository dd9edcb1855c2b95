#include "simulation/BeamStrike.h"

#include "simulation/BeamRemoval.h"

namespace prismfall {

Outcome StrikeLine(Field& field, CLine& oLine, CLine& hit, bool ByFastLine) {
    oLine.RunMode = Motion::Stopped;
    hit.StoppingLines.push_back(&oLine);
    if (hit.Color != oLine.Color || oLine.Thicknes <= 0) return Outcome::Stopped;
    StartRemoval(field, oLine, false);
    // A beam that ran forward into its own chain thins it a second time.
    if (ByFastLine || !hit.Deleted) StartRemoval(field, hit, ByFastLine);
    return Outcome::Destroyed;
}

}  // namespace prismfall
