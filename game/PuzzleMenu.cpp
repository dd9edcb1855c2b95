#include "game/PuzzleMenu.h"

#include <array>
#include <string_view>

#include "game/PuzzleCatalogue.h"
#include "screens/MainMenu.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

constexpr std::int16_t kPageCount = kPuzzleCount / kPuzzlesPerPage;

// Game pixels. The grid divides the playfield; its cells are as much smaller as the gap between them.
constexpr double kGridWidth = kRightWall - kLeftWall;
constexpr double kGridHeight = kFloor - kPlayfieldTop;
constexpr double kGap = 20;
constexpr double kMargin = kGap / 2;
constexpr int kPenWidth = 2;
constexpr Colour kCellColour = 0xFF0000;
constexpr double kMarkPlace = 0.7;  // of the cell's width and height

// Design units that a cell has room for, and how much of the cell they fill.
constexpr double kDesignWidth = 798;
constexpr double kDesignHeight = 595;
constexpr double kFillAcross = 0.97;
constexpr double kFillDown = 0.85;

struct Page {
    std::string_view picture;
    std::string_view spoken;
};

constexpr std::array<Page, kPageCount> kPages = {{
    {"ImageBeginner", "Beginner"},
    {"ImageEasy", "Easy"},
    {"ImageMedium", "Medium"},
    {"ImageHard", "Hard"},
    {"ImagePro", "Pro"},
}};

struct Cell {
    int left;  // without the playfield's own offset
    int top;
    int width;
    int height;
};

Cell CellAt(int row, int column) {
    return {.left = Rounded(kGridWidth * column / kMenuColumns + kMargin),
            .top = Rounded(kGridHeight * row / kMenuRows + kMargin),
            .width = Rounded(kGridWidth / kMenuColumns - kGap),
            .height = Rounded(kGridHeight / kMenuRows - kGap)};
}

void PlaceMark(VMain& main, const Cell& cell, std::size_t k, std::size_t puzzle) {
    Element& mark = main.LabelSolved[k];
    mark.left = static_cast<float>(cell.left + kMarkPlace * cell.width);
    mark.top = static_cast<float>(cell.top + kMarkPlace * cell.height);
    const bool isTutorial = puzzle == 0;
    mark.text = isTutorial ? "Tutorial" : "Solved";
    mark.visible = isTutorial || main.SolvedPuzzles[puzzle];
}

void DrawPreviewBeam(const VMain& main, const Cell& cell, CatalogueEntry beam) {
    const int x1 = Rounded(beam[layout::kX] * kFillAcross * cell.width / kDesignWidth);
    const int y1 = Rounded(beam[layout::kYStart] * kFillDown * cell.height / kDesignHeight);
    const int y2 = Rounded(beam[layout::kYEnd] * kFillDown * cell.height / kDesignHeight);
    const int length = beam[layout::kYEnd] - beam[layout::kYStart];
    const double aside = cell.width / kDesignWidth * length * kFillAcross;
    const int x2 = Rounded(beam[layout::kDirection] == kRightwards ? x1 + aside : x1 - aside);
    const int left = cell.left + kLeftWall;
    const int top = cell.top + kPlayfieldTop;
    main.platform.SurfaceLine(left + x1, top + y1, left + x2, top + y2,
                              LineColors[static_cast<std::size_t>(beam[layout::kColor])], kPenWidth);
}

void DrawCell(VMain& main, int row, int column) {
    const Cell cell = CellAt(row, column);
    const int k = kMenuColumns * row + column;
    const int puzzle = (main.PuzzlePage - 1) * kPuzzlesPerPage + k;
    const int left = cell.left + kLeftWall;
    const int top = cell.top + kPlayfieldTop;
    main.platform.SurfaceBox(left, top, left + cell.width, top + cell.height, kCellColour, kPenWidth);
    PlaceMark(main, cell, static_cast<std::size_t>(k), static_cast<std::size_t>(puzzle));
    ForEachRecord(main.Puzzles[static_cast<std::size_t>(puzzle)], layout::kFields,
                  [&](CatalogueEntry beam) { DrawPreviewBeam(main, cell, beam); });
}

void ShowMenuElements(VMain& main, bool areVisible) {
    for (Element* element : {&main.LabelPuzzlePage, &main.CommandPrevious, &main.CommandNext})
        element->visible = areVisible;
}

}  // namespace

void ShowPuzzleMenu(VMain& main, Boolean state) {
    ShowMainMenu(main, false);
    main.cmdPause.visible = false;
    main.platform.SurfaceClear();
    if (!state) {
        ShowMenuElements(main, false);
        main.platform.SurfaceClear();
        return;
    }
    main.GameMode = kPuzzleMenu;
    for (int row = 0; row < kMenuRows; ++row)
        for (int column = 0; column < kMenuColumns; ++column) DrawCell(main, row, column);
    ShowMenuElements(main, true);
    const Page& page = kPages[static_cast<std::size_t>(main.PuzzlePage - 1)];
    main.LabelPuzzlePage.picture = page.picture;
    main.LabelPuzzlePage.spoken = page.spoken;
}

void CommandPuzzle_Click(VMain& main) {
    main.platform.StopTimer(Timer::TimerPlayIntro);
    ShowPuzzleMenu(main, true);
    ShowScoreboard(main, false);
}

void CommandNext_Click(VMain& main) {
    if (main.PuzzlePage >= kPageCount) return;
    ++main.PuzzlePage;
    ShowPuzzleMenu(main, true);
}

void CommandPrevious_Click(VMain& main) {
    if (main.PuzzlePage <= 1) return;
    --main.PuzzlePage;
    ShowPuzzleMenu(main, true);
}

}  // namespace prismfall
