#include "game/PuzzleMenu.h"

#include <array>
#include <string_view>

#include "game/Modes.h"
#include "game/PuzzleCatalogue.h"
#include "platform/Numbers.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

// Game pixels. The grid divides the playfield; its cells are smaller by the gap between them.
constexpr double kGridWidth = kRightWall - kLeftWall;
constexpr double kGridHeight = kFloor - kPlayfieldTop;
constexpr double kGap = 20;
constexpr double kMargin = kGap / 2;
constexpr int kPenWidth = 2;
constexpr Colour kCellColour = 0xFF0000;
constexpr double kMarkPlace = 0.7;  // of the cell's width and height

// The design units that fit in a cell, and how much of the cell they fill.
constexpr double kDesignWidth = 798;
constexpr double kDesignHeight = 595;
constexpr double kFillAcross = 0.97;
constexpr double kFillDown = 0.85;

struct Page {
    std::string_view picture;
    std::string_view accessibleName;
};

constexpr auto kPages = std::to_array<Page>({
    {"ImageBeginner", "Beginner"},
    {"ImageEasy", "Easy"},
    {"ImageMedium", "Medium"},
    {"ImageHard", "Hard"},
    {"ImagePro", "Pro"},
});
static_assert(kPages.size() == kPageCount, "every page of the puzzle menu needs its name and its picture");

// The mark's position leaves out the playfield's offset.
void PlaceMark(Element& mark, const PreviewBox& cell, std::int16_t puzzle, bool isSolved) {
    mark.left = static_cast<float>(cell.left - kLeftWall + kMarkPlace * cell.width);
    mark.top = static_cast<float>(cell.top - kPlayfieldTop + kMarkPlace * cell.height);
    const bool isTutorial = puzzle == 1;
    mark.text = isTutorial ? "Tutorial" : "Solved";
    mark.visible = isTutorial || isSolved;
}

void DrawPreviewBeam(SurfacePainter& painter, const PreviewBox& cell, const LayoutBeam& beam) {
    const int x1 = Rounded(beam.X * kFillAcross * cell.width / kDesignWidth);
    const int y1 = Rounded(beam.YStart * kFillDown * cell.height / kDesignHeight);
    const int y2 = Rounded(beam.YEnd * kFillDown * cell.height / kDesignHeight);
    const int length = beam.YEnd - beam.YStart;
    const double aside = cell.width / kDesignWidth * length * kFillAcross;
    const int x2 = Rounded(beam.Direction == Heading::Rightwards ? x1 + aside : x1 - aside);
    painter.SurfaceLine(cell.left + x1, cell.top + y1, cell.left + x2, cell.top + y2, OfColor(LineColors, beam.Color),
                        kPenWidth);
}

void DrawCell(VMain& main, int place) {
    const std::int16_t puzzle = PuzzleInCell(main.PuzzlePage, place);
    if (puzzle > kPuzzleCount) return;
    const PreviewBox cell = PreviewBoxOf(place);
    main.platform.SurfaceBox(cell.left, cell.top, cell.left + cell.width, cell.top + cell.height, kCellColour,
                             kPenWidth);
    PlaceMark(main.LabelSolved[static_cast<std::size_t>(place)], cell, puzzle,
              main.settings.SolvedPuzzles[static_cast<std::size_t>(puzzle - 1)]);
    for (const LayoutBeam& beam : PuzzleLayout(puzzle)) DrawPreviewBeam(main.platform, cell, beam);
}

}  // namespace

PreviewBox PreviewBoxOf(int cell) {
    const int row = cell / kMenuColumns;
    const int column = cell % kMenuColumns;
    return {.left = kLeftWall + Rounded(kGridWidth * column / kMenuColumns + kMargin),
            .top = kPlayfieldTop + Rounded(kGridHeight * row / kMenuRows + kMargin),
            .width = Rounded(kGridWidth / kMenuColumns - kGap),
            .height = Rounded(kGridHeight / kMenuRows - kGap)};
}

void ShowPuzzleMenu(VMain& main) {
    EnterScreen(main, Mode::PuzzleMenu);
    for (int cell = 0; cell < kPuzzlesPerPage; ++cell) DrawCell(main, cell);
    const Page& page = kPages[static_cast<std::size_t>(main.PuzzlePage - 1)];
    main.LabelPuzzlePage.picture = page.picture;
    main.LabelPuzzlePage.accessibleName = page.accessibleName;
}

void CommandPuzzle_Click(VMain& main) {
    main.platform.StopTimer(Timer::TimerPlayIntro);
    ShowPuzzleMenu(main);
}

void CommandNext_Click(VMain& main) {
    if (main.PuzzlePage >= kPageCount) return;
    ++main.PuzzlePage;
    ShowPuzzleMenu(main);
}

void CommandPrevious_Click(VMain& main) {
    if (main.PuzzlePage <= 1) return;
    --main.PuzzlePage;
    ShowPuzzleMenu(main);
}

}  // namespace prismfall
