// A playfield on its own, for testing beams: it prints what is painted and takes random numbers from a list.
#pragma once

#include <deque>
#include <sstream>
#include <string>
#include <string_view>

#include "platform/Surface.h"
#include "tests/support/BeamWords.h"

namespace prismfall {

// Paints on its own surface, and prints each operation if asked to.
class TestPainter : public SurfacePainter {
  public:
    bool isPrinting = false;
    std::ostringstream printed;
    Surface surface;

    void SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) override;
    void SurfaceBox(int, int, int, int, Colour, int) override {}
    void SurfaceRestore(int x1, int y1, int x2, int y2) override;
    void SurfaceClear() override {}
};

class TestDice : public Chance {
  public:
    std::deque<double> numbers;  // the next ones; after that always 0

    double Random() override;
    void SeedRandomFromClock() override {}
};

class TestField {
  public:
    // Beams given as text, on the playfield of an Arcade game, with its entry zone, or of a puzzle. The next growth
    // tick also moves the beams in the entry zone.
    explicit TestField(std::string_view kind, std::string_view beams = {});

    TestPainter painter;
    TestDice dice;
    Field field{painter, dice};

    // A beam by its position in Lines, from 1.
    CLine& Beam(std::size_t place) { return *field.Lines.at(place - 1); }
    // What has been printed since the last call.
    std::string TakePrinted();
};

}  // namespace prismfall
