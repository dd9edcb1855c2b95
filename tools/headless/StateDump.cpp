// See StateDump.h.
#include "tools/headless/StateDump.h"

#include <algorithm>
#include <vector>

#include "backends/headless/PrintFormat.h"
#include "tools/headless/TimerNames.h"

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

void PrintPlaces(std::ostream& out, const Field& field, const std::vector<CLine*>& beams, char separator) {
    if (beams.empty()) out << '-';
    for (std::size_t i = 0; i < beams.size(); ++i) {
        if (i > 0) out << separator;
        out << PlaceOf(field, beams[i]);
    }
}

void PrintBeam(std::ostream& out, const Field& field, const CLine& beam) {
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

void PrintState(std::ostream& out, const VMain& main) {
    out << "state mode=" << NumberOf(main.GameMode) << " running=" << Flag(main.GameRunning)
        << " waiting=" << Flag(main.PuzzleWaiting) << " puzzle=" << main.CurrentPuzzle << " page=" << main.PuzzlePage
        << " level=" << main.Level << " count=" << main.LevelLineCount << " score=" << main.Score
        << " high=" << main.HighScore << " toggle=" << main.field.GrowthToggle
        << " tutorial=" << Flag(main.TutorialActive) << '/' << main.TutorialStep
        << " liney=" << main.field.CollisionLineY << '\n';
}

void PrintTimers(std::ostream& out, const TimerWheel& timers) {
    out << "timers";
    for (const TimerName& row : kTimerNames)
        out << ' ' << row.name << '=' << (timers.IsOn(row.timer) ? "on" : "off") << ':' << timers.Interval(row.timer);
    out << '\n';
}

bool IsPlacedByGame(const Element& element) {
    return element.kind == ElementKind::PressPicture || element.name.starts_with("LabelSolved") ||
           element.name == "LabelMulti";
}

void PrintElement(std::ostream& out, const Element& element) {
    out << "element " << element.name;
    if (element.kind == ElementKind::Label) {
        out << " text=\"" << element.text << '"';
    } else {
        out << " picture=" << element.picture;
    }
    if (element.name == "CmdStart" || element.name == "cmdPause") out << " tag=\"" << element.tag << '"';
    if (IsPlacedByGame(element)) out << " at=" << ShortNumber(element.left) << ',' << ShortNumber(element.top);
    if (element.name == "LabelMulti") out << " color=" << ColourName(element.colour);
    out << '\n';
}

}  // namespace

void PrintDump(std::ostream& out, const VMain& main, const TimerWheel& timers) {
    PrintState(out, main);
    PrintTimers(out, timers);
    for (const CLine* beam : main.field.Lines) PrintBeam(out, main.field, *beam);
    out << "dying ";
    PrintPlaces(out, main.field, main.field.DyingLines, ' ');
    out << '\n';
}

void PrintElements(std::ostream& out, const VMain& main) {
    std::vector<Element*> shown;
    std::ranges::copy_if(main.window.elements, std::back_inserter(shown),
                         [](Element* element) { return IsShown(*element); });
    std::ranges::sort(shown, {}, [](const Element* element) { return element->name; });
    for (const Element* element : shown) PrintElement(out, *element);
}

void PrintSettings(std::ostream& out, const VMain& main, std::int64_t time) {
    out << "settings start=" << main.settings.StartLevel << " gamestart=" << main.GameStartLevel
        << " music=" << Flag(main.settings.Music) << " effects=" << Flag(main.settings.SoundEffects)
        << " first=" << Flag(main.settings.PlayFirstTime) << " time=" << time << '\n';
    int number = 0;
    for (const ScoreRow& row : main.settings.Scores)
        out << "row " << ++number << ' ' << row.score << ' ' << row.startLevel << ' ' << row.endLevel << '\n';
}

void PrintStore(std::ostream& out, const HeadlessPlatform& platform) {
    for (const auto& [name, text] : platform.Store()) out << name.first << ' ' << name.second << ' ' << text << '\n';
}

}  // namespace prismfall
