#include "simulation/BeamRemoval.h"

#include <algorithm>

#include "simulation/BeamSpawning.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

void ThinOne(VMain& main, CLine& beam, std::int16_t thickness, Boolean byFastLine) {
    beam.Deleted = true;
    beam.DeletedByFastLine = byFastLine;
    beam.RunMode = kStopped;
    beam.Thicknes = thickness;
    EraseLine(main, beam);
    SetLevelSpeed(main);
    if (thickness <= 0) return;
    main.platform.SurfaceLine(beam.XStart, beam.YStart, beam.XEnd, beam.YEnd,
                              LineColors[static_cast<std::size_t>(beam.Color)], thickness);
}

// The next beam of the chain that has not taken this step yet, or nothing.
CLine* NextLinked(CLine& beam, std::int16_t thickness) {
    while (beam.removalWalk.nextLink < beam.LinkedLines.size()) {
        CLine* linked = beam.LinkedLines[beam.removalWalk.nextLink++];
        if (linked->Color == beam.Color && linked->Thicknes != static_cast<float>(thickness)) return linked;
    }
    return nullptr;
}

}  // namespace

// Goes depth first from link to link. A player can bend a beam thousands of times, so the way back is kept in the beams
// and not in the machine's stack.
void DeleteLine(VMain& main, CLine& oLine, std::int16_t Thickness, Boolean ByFastLine) {
    ThinOne(main, oLine, Thickness, ByFastLine);
    oLine.removalWalk = {};
    for (CLine* beam = &oLine; beam != nullptr;) {
        CLine* linked = NextLinked(*beam, Thickness);
        if (linked == nullptr) {
            beam = beam->removalWalk.cameFrom;
            continue;
        }
        ThinOne(main, *linked, Thickness, false);
        linked->removalWalk = {.cameFrom = beam};
        beam = linked;
    }
}

void StartRemoval(VMain& main, CLine& oLine, Boolean ByFastLine) {
    DeleteLine(main, oLine, NextThickness(oLine), ByFastLine);
    main.DyingLines.push_back(&oLine);
}

std::int16_t NextThickness(const CLine& beam) { return Saturated(static_cast<std::int64_t>(beam.Thicknes) - 1); }

void RedrawLines(const VMain& main) {
    if (main.GameMode == kArcadeGame) RedrawCollisionLine(main);
    for (const CLine* beam : main.Lines)
        if (beam->Thicknes > 0 && beam->YStart >= main.CollisionLineY + kBlueLine)
            DrawLine(main, beam->XStart, beam->YStart, beam->XEnd, beam->YEnd, beam->Color, beam->Direction);
}

void ClearLines(VMain& main) {
    main.DyingLines.clear();
    main.Lines.clear();
    main.Beams.Clear();
}

Boolean AllLinesDeleted(const VMain& main) {
    return std::ranges::all_of(main.Lines, [](const CLine* beam) { return bool{beam->Deleted}; });
}

}  // namespace prismfall
