#include "tests/support/BeamWords.h"

#include <algorithm>
#include <array>
#include <sstream>

namespace prismfall {

namespace {

constexpr std::array<std::string_view, 4> kColors = {"blue", "green", "red", "yellow"};
constexpr std::array<std::string_view, 3> kRunModes = {"stopped", "growing", "waiting"};

Heading DirectionOfEnds(const CLine& beam) {
    return beam.XEnd < beam.XStart ? Heading::Leftwards : Heading::Rightwards;
}

void ReadWord(CLine& beam, const std::string& word) {
    if (const auto color = std::ranges::find(kColors, word); color != kColors.end())
        beam.Color = static_cast<BeamColor>(color - kColors.begin());
    else if (const auto mode = std::ranges::find(kRunModes, word); mode != kRunModes.end())
        beam.RunMode = static_cast<Motion>(mode - kRunModes.begin());
    else if (word == "left" || word == "right")
        beam.Direction = word == "left" ? Heading::Leftwards : Heading::Rightwards;
    else if (word == "dying")
        beam.Deleted = true;
    else if (word == "fast")
        beam.DeletedByFastLine = true;
    else if (word[0] == '#')
        beam.PuzzleLineNr = static_cast<std::int16_t>(std::stoi(word.substr(1)));
    else
        beam.Thicknes = std::stof(word);
}

void ReadBeam(CLine& beam, const std::string& words) {
    std::istringstream text(words);
    char comma = 0;
    text >> beam.XStart >> comma >> beam.YStart >> beam.XEnd >> comma >> beam.YEnd;
    beam.Direction = DirectionOfEnds(beam);
    beam.RunMode = Motion::Growing;
    beam.Thicknes = kLiveThicknes;
    for (std::string word; text >> word;) ReadWord(beam, word);
}

}  // namespace

std::string InWords(Outcome outcome) {
    constexpr std::array<const char*, 5> kWords = {"continues", "bounced", "at floor", "stopped", "destroyed"};
    return kWords.at(static_cast<std::size_t>(outcome));
}

void AddBeams(Field& field, std::string_view beams) {
    std::istringstream text{std::string(beams)};
    for (std::string words; std::getline(text, words, ';');) {
        CLine& beam = field.Beams.Make();
        ReadBeam(beam, words);
        field.Lines.push_back(&beam);
    }
}

std::vector<std::vector<std::string>> Rows(std::string_view table) {
    std::vector<std::vector<std::string>> rows;
    std::istringstream text{std::string(table)};
    for (std::string line; std::getline(text, line);) {
        std::istringstream cells(line + ' ');  // so that an empty last cell counts
        std::vector<std::string> row;
        for (std::string cell; std::getline(cells, cell, '|');) {
            const std::size_t first = std::min(cell.find_first_not_of(' '), cell.size());
            row.push_back(cell.substr(first, cell.find_last_not_of(' ') + 1 - first));
        }
        if (row.size() > 1) rows.push_back(row);
    }
    return rows;
}

std::string InShort(const CLine& beam) {
    std::ostringstream text;
    text << beam.XStart << ',' << beam.YStart << ' ' << beam.XEnd << ',' << beam.YEnd << ' '
         << kColors.at(static_cast<std::size_t>(beam.Color));
    if (beam.Direction != DirectionOfEnds(beam)) text << (beam.Direction == Heading::Leftwards ? " left" : " right");
    if (beam.RunMode != Motion::Growing) text << ' ' << kRunModes.at(static_cast<std::size_t>(beam.RunMode));
    if (beam.Thicknes != kLiveThicknes) text << ' ' << beam.Thicknes;
    text << (beam.Deleted ? " dying" : "") << (beam.DeletedByFastLine ? " fast" : "");
    if (beam.PuzzleLineNr != 0) text << " #" << beam.PuzzleLineNr;
    return text.str();
}

std::string InShort(const Field& field) {
    std::string text;
    for (const CLine* beam : field.Lines) {
        if (!text.empty()) text += "; ";
        text += InShort(*beam);
    }
    return text;
}

std::string Places(const Field& field, const std::vector<CLine*>& beams) {
    std::string text;
    for (const CLine* beam : beams) {
        const auto place = std::ranges::find(field.Lines, beam);
        if (!text.empty()) text += ' ';
        text += std::to_string(place == field.Lines.end() ? 0 : place - field.Lines.begin() + 1);
    }
    return text;
}

}  // namespace prismfall
