#include "simulation/BeamRemoval.h"

#include <algorithm>

#include "platform/Numbers.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

void ThinOne(Field& field, CLine& beam, std::int16_t thickness, bool byFastLine) {
    beam.Deleted = true;
    beam.DeletedByFastLine = byFastLine;
    beam.RunMode = Motion::Stopped;
    beam.Thicknes = thickness;
    EraseLine(field.painter, beam);
    if (thickness <= 0) return;
    field.painter.SurfaceLine(beam.XStart, beam.YStart, beam.XEnd, beam.YEnd, OfColor(LineColors, beam.Color),
                              thickness);
}

// The removal step after the beam's current one.
std::int16_t NextThickness(const CLine& beam) { return Saturated(static_cast<std::int64_t>(beam.Thicknes) - 1); }

// The next beam of the chain that has not taken this step yet, or null.
CLine* NextLinked(CLine& beam, std::int16_t thickness) {
    while (beam.removalWalk.nextLink < beam.LinkedLines.size()) {
        CLine* linked = beam.LinkedLines[beam.removalWalk.nextLink++];
        if (linked->Color == beam.Color && linked->Thicknes != static_cast<float>(thickness)) return linked;
    }
    return nullptr;
}

}  // namespace

// Visits links depth first. A player can bend a beam thousands of times, so the way back is kept in the beams and not
// on the call stack.
void DeleteLine(Field& field, CLine& oLine, std::int16_t Thickness, bool ByFastLine) {
    ThinOne(field, oLine, Thickness, ByFastLine);
    oLine.removalWalk = {};
    for (CLine* beam = &oLine; beam != nullptr;) {
        CLine* linked = NextLinked(*beam, Thickness);
        if (linked == nullptr) {
            beam = beam->removalWalk.cameFrom;
            continue;
        }
        ThinOne(field, *linked, Thickness, false);
        linked->removalWalk = {.cameFrom = beam};
        beam = linked;
    }
}

void StartRemoval(Field& field, CLine& oLine, bool ByFastLine) {
    DeleteLine(field, oLine, NextThickness(oLine), ByFastLine);
    field.DyingLines.push_back(&oLine);
}

// Removing an entry moves the following ones up; each entry that was there at the start still gets its turn.
bool ThinDyingLines(Field& field) {
    const bool wereAny = !field.DyingLines.empty();
    for (auto entry = field.DyingLines.begin(); entry != field.DyingLines.end();) {
        CLine& beam = **entry;
        DeleteLine(field, beam, NextThickness(beam), false);
        entry = beam.Thicknes <= 0 ? field.DyingLines.erase(entry) : entry + 1;
    }
    return wereAny;
}

bool RemoveGoneLines(Field& field) {
    const std::size_t before = field.Lines.size();
    for (auto entry = field.Lines.begin(); entry != field.Lines.end();) {
        const CLine& beam = **entry;
        if (beam.Thicknes > 0) {
            ++entry;
            continue;
        }
        for (CLine* stopped : beam.StoppingLines) stopped->RunMode = Motion::Growing;
        entry = field.Lines.erase(entry);
    }
    return field.Lines.size() < before;
}

void RedrawLines(const Field& field) {
    if (field.rules.hasEntryZone) RedrawCollisionLine(field);
    for (const CLine* beam : field.Lines)
        if (beam->Thicknes > 0 && beam->YStart >= field.CollisionLineY + kBlueLine)
            DrawLine(field.painter, beam->XStart, beam->YStart, beam->XEnd, beam->YEnd, beam->Color, beam->Direction);
}

void ClearLines(Field& field) {
    field.DyingLines.clear();
    field.Lines.clear();
    field.Beams.Clear();
}

bool AllLinesDeleted(const Field& field) {
    return std::ranges::all_of(field.Lines, [](const CLine* beam) { return beam->Deleted; });
}

}  // namespace prismfall
