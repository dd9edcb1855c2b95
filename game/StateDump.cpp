#include "game/StateDump.h"

#include <algorithm>
#include <vector>

namespace prismfall {

namespace {

int Flag(bool value) { return value ? 1 : 0; }

template <typename Enum>
int NumberOf(Enum value) {
    return static_cast<int>(value);
}

// A beam's position in Lines, from 1; 0 if it is no longer there.
std::ptrdiff_t PlaceOf(const Field& field, const CLine* beam) {
    const auto found = std::ranges::find(field.Lines, beam);
    return found == field.Lines.end() ? 0 : found - field.Lines.begin() + 1;
}

void PrintPlaces(Printer& out, const Field& field, const std::vector<CLine*>& beams, char separator) {
    if (beams.empty()) out << '-';
    for (std::size_t i = 0; i < beams.size(); ++i) {
        if (i > 0) out << separator;
        out << PlaceOf(field, beams[i]);
    }
}

void PrintBeam(Printer& out, const Field& field, const CLine& beam) {
    out << "beam " << PlaceOf(field, &beam) << ' ' << beam.XStart << ',' << beam.YStart << ' ' << beam.XEnd << ','
        << beam.YEnd << " dir=" << NumberOf(beam.Direction) << " color=" << NumberOf(beam.Color)
        << " mode=" << NumberOf(beam.RunMode) << " thick=" << static_cast<int>(beam.Thicknes)
        << " deleted=" << Flag(beam.Deleted) << " fast=" << Flag(beam.DeletedByFastLine) << " nr=" << beam.PuzzleLineNr
        << " links=";
    PrintPlaces(out, field, beam.LinkedLines, ',');
    out << " stops=";
    PrintPlaces(out, field, beam.StoppingLines, ',');
    out << '\n';
}

void PrintState(Printer& out, const VMain& main) {
    out << "state mode=" << NumberOf(main.GameMode) << " running=" << Flag(main.GameRunning)
        << " waiting=" << Flag(main.PuzzleWaiting) << " puzzle=" << main.CurrentPuzzle << " page=" << main.PuzzlePage
        << " level=" << main.Level << " count=" << main.LevelLineCount << " score=" << main.Score
        << " high=" << main.HighScore << " toggle=" << main.field.GrowthToggle
        << " tutorial=" << Flag(main.TutorialActive) << '/' << main.TutorialStep
        << " liney=" << main.field.CollisionLineY << '\n';
}

void PrintTimers(Printer& out, const TimerWheel& timers) {
    out << "timers";
    for (const TimerName& row : kTimerNames)
        out << ' ' << row.name << '=' << (timers.IsOn(row.timer) ? "on" : "off") << ':' << timers.Interval(row.timer);
    out << '\n';
}

}  // namespace

void PrintDump(Printer& out, const VMain& main) {
    PrintState(out, main);
    PrintTimers(out, main.platform.Timers());
    for (const CLine* beam : main.field.Lines) PrintBeam(out, main.field, *beam);
    out << "dying ";
    PrintPlaces(out, main.field, main.field.DyingLines, ' ');
    out << '\n';
}

}  // namespace prismfall
