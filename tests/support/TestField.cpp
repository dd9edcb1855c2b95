#include "tests/support/TestField.h"

#include <algorithm>
#include <array>
#include <utility>

namespace prismfall {

namespace {

constexpr std::array<std::string_view, 4> kColours = {"blue", "green", "red", "yellow"};
constexpr std::array<std::string_view, 3> kRunModes = {"stopped", "growing", "waiting"};

std::int32_t DirectionOfEnds(const CLine& beam) { return beam.XEnd < beam.XStart ? kLeftwards : kRightwards; }

void ReadWord(CLine& beam, const std::string& word) {
    if (const auto colour = std::ranges::find(kColours, word); colour != kColours.end())
        beam.Color = static_cast<std::int32_t>(colour - kColours.begin());
    else if (const auto mode = std::ranges::find(kRunModes, word); mode != kRunModes.end())
        beam.RunMode = static_cast<std::int32_t>(mode - kRunModes.begin());
    else if (word == "left" || word == "right")
        beam.Direction = word == "left" ? kLeftwards : kRightwards;
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
    beam.RunMode = kGrowing;
    beam.Thicknes = kLiveThicknes;
    for (std::string word; text >> word;) ReadWord(beam, word);
}

}  // namespace

void TestField::Play(std::int32_t gameMode, std::string_view beams) {
    main->GameMode = gameMode;
    main->GameRunning = true;
    main->SoundEffects = true;
    main->GrowthToggle = 1;  // the next growth tick moves the beams of the entry zone too
    main->CollisionLineY = gameMode == kArcadeGame ? 40 : 0;
    main->CurrentPuzzle = 2;
    Add(beams);
}

void TestField::Add(std::string_view beams) {
    std::istringstream text{std::string(beams)};
    for (std::string words; std::getline(text, words, ';');) {
        CLine& beam = main->Beams.Make();
        ReadBeam(beam, words);
        main->Lines.push_back(&beam);
    }
}

std::string TestField::TakePrinted() {
    std::string lines = std::move(printed).str();
    printed.str({});
    return lines;
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

std::int32_t ModeNamed(std::string_view name) {
    if (name == "replay") return kSolutionReplay;
    return name == "arcade" ? kArcadeGame : kPuzzleGame;
}

std::string InShort(const CLine& beam) {
    std::ostringstream text;
    text << beam.XStart << ',' << beam.YStart << ' ' << beam.XEnd << ',' << beam.YEnd << ' '
         << kColours.at(static_cast<std::size_t>(beam.Color));
    if (beam.Direction != DirectionOfEnds(beam)) text << (beam.Direction == kLeftwards ? " left" : " right");
    if (beam.RunMode != kGrowing) text << ' ' << kRunModes.at(static_cast<std::size_t>(beam.RunMode));
    if (beam.Thicknes != kLiveThicknes) text << ' ' << beam.Thicknes;
    text << (beam.Deleted ? " dying" : "") << (beam.DeletedByFastLine ? " fast" : "");
    if (beam.PuzzleLineNr != 0) text << " #" << beam.PuzzleLineNr;
    return text.str();
}

std::string InShort(const VMain& main) {
    std::string text;
    for (const CLine* beam : main.Lines) {
        if (!text.empty()) text += "; ";
        text += InShort(*beam);
    }
    return text;
}

std::string Places(const VMain& main, const std::vector<CLine*>& beams) {
    std::string text;
    for (const CLine* beam : beams) {
        const auto place = std::ranges::find(main.Lines, beam);
        if (!text.empty()) text += ' ';
        text += std::to_string(place == main.Lines.end() ? 0 : place - main.Lines.begin() + 1);
    }
    return text;
}

}  // namespace prismfall
