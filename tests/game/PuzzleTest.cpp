// Puzzle mode around the play: the catalogue, the laying out and linking of its beams, the drawn menu, the result.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
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

std::string Row(CatalogueEntry entry) {
    std::string row;
    for (const std::int16_t number : entry) row += std::to_string(number) + ' ';
    return row;
}

TEST(Catalogue, HoldsItsTables) {
    TestGame game;
    const VMain& main = game.QuietStore().Load();
    EXPECT_EQ(Checksum(main.Puzzles), 0x61d128fda02d21c1);
    EXPECT_EQ(Checksum(main.PuzzleSolutions), 0xebc259aa2172499e);
    EXPECT_EQ(Row(main.Puzzles[17]), "3 1 800 0 400 1 1 2 2 0 0 260 2 1 2 3 700 0 250 1 1 2 ");
    EXPECT_EQ(Row(main.PuzzleSolutions[17]), "1 3 291 0 0 0 ");
    EXPECT_EQ(Row(main.PuzzleSolutions[4]), "0 ") << "puzzle 5 solves itself";
    EXPECT_EQ(Row(main.PuzzleSolutions[29]), "3 4 218 -1 0 0 2 351 -1 0 0 3 316 -1 6 0 ");
    EXPECT_EQ(Row(main.PuzzleSolutions[1].last(5)), "4 138 -1 0 -1 ");
    EXPECT_EQ(main.Puzzles[27][0], 20);
    EXPECT_EQ(Row(main.Puzzles[2].last(7)), "1 560 0 30 2 1 0 ") << "a number that stands twice";
    EXPECT_EQ(Row(main.Puzzles[33].subspan(1 + 14 * 7, 14)), "15 350 0 25 1 1 1 18 500 0 25 1 1 1 ") << "out of order";
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

TEST(PuzzleStart, GoesOnToTheNextPuzzleAndStaysAtTheLast) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    main.Score = 50;
    main.Level = 7;
    main.CurrentPuzzle = 44;
    main.cmdPause.tag = "Resume";
    StartPuzzleGame(main, true, false);
    EXPECT_EQ(main.cmdPause.tag, "");
    EXPECT_EQ(main.CurrentPuzzle, 45);
    StartPuzzleGame(main, true, false);
    EXPECT_EQ(main.CurrentPuzzle, 45);
    EXPECT_EQ(main.LabelPuzzleNr.text, "45");
    EXPECT_EQ(main.Score, 0);
    EXPECT_EQ(main.Level, 1);
    EXPECT_EQ(main.CollisionLineY, 0);
    EXPECT_TRUE(main.PuzzleWaiting);
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

TEST(LinkPuzzleLines, JoinsPuzzleThree) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    main.CurrentPuzzle = 3;
    StartPuzzleGame(main, false, false);
    EXPECT_EQ(Linked(main),
              "290,176:/ 138,176:/ 217,257:/14 211,257:/23 530,176:/ 378,176:/ 457,257:/58 451,257:/67 "
              "337,497:/10 331,497:/9 174,44:/ 142,44:/ 118,44:/ 550,44:/ 518,44:/ 486,44:/ ");
}

// The strokes of a drawn page.
std::vector<std::string> Draw(TestGame& game, std::int16_t page) {
    game.Main().PuzzlePage = page;
    game.TakePrinted();
    game.Machine().SetPainting(true);
    ShowPuzzleMenu(game.Main(), true);
    std::istringstream printed(game.TakePrinted());
    std::vector<std::string> strokes;
    for (std::string line; std::getline(printed, line);) strokes.push_back(line);
    return strokes;
}

TEST(PuzzleMenu, DrawsThePreviewsOfAPage) {
    constexpr std::size_t kBeamsOnPage[] = {83, 97, 112, 116, 112};
    TestGame game;
    game.QuietStore().Load();
    for (std::int16_t page = 1; page <= 5; ++page)
        EXPECT_EQ(Draw(game, page).size(), 2 + 9 + kBeamsOnPage[page - 1]) << page;

    const std::vector<std::string> pro = Draw(game, 5);
    const std::vector<std::string> kPuzzle37 = {"clear",
                                                "clear",
                                                "box 24 30 223 199 0xFF0000 2",
                                                "line 218 30 121 127 0x008000 2",
                                                "line 24 30 87 93 0x008000 2",
                                                "line 193 30 133 90 0x008000 2",
                                                "line 24 54 72 102 0xFF0000 2",
                                                "line 193 78 181 90 0xFF0000 2",
                                                "line 193 102 169 127 0xFF0000 2",
                                                "box 243 30 442 199 0xFF0000 2"};
    EXPECT_TRUE(std::ranges::equal(kPuzzle37, std::vector(pro.begin(), pro.begin() + 10)));
    const std::vector<std::string> kPuzzle45 = {
        "box 461 407 660 576 0xFF0000 2",  "line 546 424 570 448 0x008000 2", "line 570 424 546 448 0x0000FF 2",
        "line 515 460 539 484 0x0000FF 2", "line 540 460 516 484 0xFF0000 2", "line 576 460 600 484 0x008000 2",
        "line 600 460 576 484 0xFF0000 2", "line 485 496 509 520 0x008000 2", "line 509 496 485 520 0x0000FF 2",
        "line 606 496 630 520 0x0000FF 2", "line 630 496 606 520 0x008000 2"};
    EXPECT_TRUE(std::ranges::equal(kPuzzle45, std::vector(pro.end() - 11, pro.end())));

    std::string boxes;
    for (const std::string& stroke : pro)
        if (stroke.starts_with("box")) boxes += stroke.substr(4, 8);
    EXPECT_EQ(boxes, "24 30 22243 30 4461 30 624 219 2243 219 461 219 24 407 2243 407 461 407 ");
}

TEST(PuzzleMenu, PlacesAndSetsTheMarksOfThePage) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    main.SolvedPuzzles[0] = main.SolvedPuzzles[8] = main.SolvedPuzzles[13] = true;
    const auto marks = [&](std::int16_t page) {
        Draw(game, page);
        std::string text;
        for (const Element& mark : main.LabelSolved) text += mark.visible ? mark.text + ' ' : "- ";
        return text;
    };
    EXPECT_EQ(marks(1), "Tutorial - - - - - - - Solved ");
    EXPECT_EQ(marks(2), "- - - - Solved - - - - ");
    EXPECT_EQ(marks(5), "- - - - - - - - - ");
    constexpr float kLefts[] = {149.3F, 368.3F, 586.3F};
    constexpr float kTops[] = {128.3F, 317.3F, 505.3F};
    for (std::size_t k = 0; k < 9; ++k) {
        EXPECT_FLOAT_EQ(main.LabelSolved[k].left, kLefts[k % 3]);
        EXPECT_FLOAT_EQ(main.LabelSolved[k].top, kTops[k / 3]);
    }
    ShowPuzzleMenu(main, false);
    EXPECT_EQ(main.GameMode, kPuzzleMenu) << "taking it away leaves the mode alone";
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
