#include "tests/support/TestField.h"

#include <iomanip>
#include <utility>

namespace prismfall {

void TestPainter::SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) {
    surface.Line(x1, y1, x2, y2, colour, width);
    if (!isPrinting) return;
    printed << "line " << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2 << " 0x" << std::hex << std::uppercase
            << std::setfill('0') << std::setw(6) << colour << std::dec << ' ' << width << '\n';
}

void TestPainter::SurfaceRestore(int x1, int y1, int x2, int y2) {
    if (isPrinting) printed << "restore " << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2 << '\n';
}

double TestDice::Random() {
    if (numbers.empty()) return 0;
    const double number = numbers.front();
    numbers.pop_front();
    return number;
}

TestField::TestField(std::string_view kind, std::string_view beams) {
    field.rules.hasEntryZone = kind == "arcade";
    field.CollisionLineY = kind == "arcade" ? 40 : 0;
    AddBeams(field, beams);
}

std::string TestField::TakePrinted() {
    std::string lines = std::move(painter.printed).str();
    painter.printed.str({});
    return lines;
}

}  // namespace prismfall
