// Puzzle mode around the play: the catalogue, the laying out and linking of its beams, the drawn menu, the result.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "game/PuzzleCatalogue.h"
#include "game/PuzzleMenu.h"
#include "game/PuzzleResult.h"
#include "game/PuzzleStart.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

// Any change of any number changes it.
std::uint64_t Checksum(const Catalogue& catalogue) {
    std::uint64_t sum = 0xcbf29ce484222325;
    for (const CatalogueEntry entry : catalogue)
        for (const std::int16_t number : entry) sum = (sum ^ static_cast<std::uint16_t>(number)) * 0x100000001b3;
    return sum;
}

TEST(Catalogue, HoldsItsTables) {
    TestGame game;
    const VMain& main = game.QuietStore().Load();
    EXPECT_EQ(Checksum(main.Puzzles), 0x61d128fda02d21c1);
    EXPECT_EQ(Checksum(main.PuzzleSolutions), 0xebc259aa2172499e);
}

TEST(PuzzleStart, LaysEveryPuzzleOutInExactDiagonals) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    for (std::int16_t puzzle = 1; puzzle <= kPuzzleCount; ++puzzle) {
        main.CurrentPuzzle = puzzle;
        StartPuzzleGame(main, false, false);
        ASSERT_EQ(main.Lines.size(), static_cast<std::size_t>(CurrentLayout(main)[0]));
        auto beam = main.Lines.begin();
        ForEachRecord(CurrentLayout(main), layout::kFields, [&](CatalogueEntry record) {
            const CLine& line = **beam++;
            EXPECT_EQ(line.PuzzleLineNr, record[0]);
            EXPECT_EQ(line.XStart, 14 + record[1] * 8 / 10) << puzzle;
            EXPECT_EQ(line.YStart, 20 + record[2] * 8 / 10) << puzzle;
            const int drawnBack = 20 + record[3] * 8 / 10 - line.YEnd;
            EXPECT_TRUE(drawnBack == 0 || drawnBack == 3 || drawnBack == 4) << puzzle << ": " << drawnBack;
            EXPECT_EQ(line.XEnd - line.XStart, (line.YEnd - line.YStart) * (record[4] == 2 ? 1 : -1)) << puzzle;
            EXPECT_EQ(line.RunMode, record[5]);
            EXPECT_EQ(line.Color, record[6]);
            EXPECT_EQ(line.Thicknes, 5);
        });
    }
}

TEST(PuzzleStart, KeepsNothingOfTheGameBefore) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    main.Score = 50;
    main.Level = 7;
    main.CurrentPuzzle = kPuzzleCount;
    StartPuzzleGame(main, true, false);
    EXPECT_EQ(main.CurrentPuzzle, kPuzzleCount) << "there is no next one";
    EXPECT_EQ(main.Score, 0);
    EXPECT_EQ(main.Level, 1);
}

// "HEAD:LINKS/STOPS" of each beam, with places in Lines.
std::string Linked(const VMain& main) {
    std::string text;
    const auto places = [&](const std::vector<CLine*>& beams) {
        std::string list;
        for (const CLine* beam : beams)
            list += std::to_string(std::ranges::find(main.Lines, beam) - main.Lines.begin() + 1);
        return list;
    };
    for (const CLine* beam : main.Lines)
        text += std::to_string(beam->XEnd) + ',' + std::to_string(beam->YEnd) + ':' + places(beam->LinkedLines) + '/' +
                places(beam->StoppingLines) + ' ';
    return text;
}

TEST(LinkPuzzleLines, AppliesTheFirstRuleThatHolds) {
    struct Beam {
        int x1, y1, x2, y2, color;
    };
    struct Case {
        const char* what;
        std::vector<Beam> beams;
        const char* linked;
    };
    const Case kCases[] = {
        {"a chain", {{100, 100, 150, 150, 1}, {150, 150, 120, 180, 1}}, "150,150:2/ 120,180:1/ "},
        {"a chain that runs the same way",
         {{100, 100, 150, 150, 1}, {150, 150, 180, 180, 1}},
         "150,150:2/ 180,180:1/ "},
        {"a chain the other way round", {{150, 150, 120, 180, 1}, {100, 100, 150, 150, 1}}, "120,180:2/ 150,150:1/ "},
        {"a tail of another colour", {{100, 100, 150, 150, 1}, {150, 150, 120, 180, 2}}, "146,146:/ 120,180:/1 "},
        {"head on head", {{100, 100, 150, 150, 1}, {200, 100, 150, 150, 2}}, "147,147:/2 153,147:/1 "},
        {"head on head in one colour", {{100, 100, 150, 150, 1}, {200, 100, 150, 150, 1}}, "146,146:/ 150,150:/1 "},
        {"head on head one way", {{100, 100, 150, 150, 1}, {120, 120, 150, 150, 2}}, "146,146:/ 150,150:/1 "},
        {"head against a beam", {{100, 100, 150, 150, 1}, {200, 100, 120, 180, 1}}, "146,146:/ 120,180:/1 "},
        {"one pixel away", {{100, 100, 150, 150, 1}, {201, 100, 121, 180, 1}}, "150,150:/ 121,180:/ "},
        {"beside the end", {{100, 100, 150, 150, 1}, {200, 100, 151, 149, 2}}, "150,150:/ 151,149:/ "},
        {"two against one, and a head that has moved",
         {{100, 100, 150, 150, 1}, {200, 100, 120, 180, 2}, {80, 80, 150, 150, 3}},
         "142,142:/ 120,180:/13 146,146:/1 "}};
    for (const Case& layout : kCases) {
        TestGame game;
        VMain& main = game.Play(kPuzzleGame);
        for (const Beam& beam : layout.beams) game.AddBeam(beam.x1, beam.y1, beam.x2, beam.y2, beam.color, kStopped);
        LinkPuzzleLines(main);
        EXPECT_EQ(Linked(main), layout.linked) << layout.what;
    }
}

// A story has all strokes of page 1.
TEST(PuzzleMenu, DrawsThePreviewsOfItsPage) {
    constexpr std::array<int, 5> kBeamsOnPage = {83, 97, 112, 116, 112};
    TestGame game;
    VMain& main = game.QuietStore().Load();
    game.Machine().SetPainting(true);
    for (main.PuzzlePage = 1; main.PuzzlePage <= 5; ++main.PuzzlePage) {
        game.TakePrinted();
        ShowPuzzleMenu(main, true);
        const std::string strokes = game.TakePrinted();
        const auto beams = kBeamsOnPage.at(static_cast<std::size_t>(main.PuzzlePage) - 1);
        EXPECT_EQ(std::ranges::count(strokes, '\n'), 2 + 9 + beams) << main.PuzzlePage;
        const bool isLast = strokes.ends_with("line 606 496 630 520 0x0000FF 2\nline 630 496 606 520 0x008000 2\n");
        EXPECT_EQ(isLast, main.PuzzlePage == 5) << "puzzle 45 ends like this";
    }
}

TEST(PuzzleResult, OffersWhatFits) {
    struct Case {
        bool solved;
        std::int16_t puzzle;
        std::string_view offers;
    };
    for (const Case& result :
         {Case{true, 44, "PuzzleSolved Command1 CommandNext "}, Case{true, 45, "PuzzleSolved Command1 "},
          Case{false, 44, "YouFailed CommandSolution Command1 CommandTryAgain "},
          Case{false, 45, "YouFailed CommandSolution Command1 CommandTryAgain "}}) {
        TestGame game;
        VMain& main = game.QuietStore().Load();
        std::string offers;
        bool isNextShown = false;
        game.Machine().onDialog = [&](Window& dialog) {
            offers = std::string(dialog["ImageMessage"].picture) + ' ';
            for (const Element* element : dialog.elements)
                if (HasClick(*element) && element->visible && element->enabled)
                    offers += std::string(element->name) + ' ';
            isNextShown = dialog["CommandNext"].visible;
        };
        for (const bool before : {!result.solved, result.solved}) {  // the dialog is kept, so the last call counts
            game.Machine().QueueAnswer("Command1");
            main.CurrentPuzzle = result.puzzle;
            ShowPuzzleResult(main, before);
        }
        EXPECT_EQ(offers, result.offers);
        EXPECT_EQ(isNextShown, result.solved);
    }
}

}  // namespace
}  // namespace prismfall
