// Runs beams without the rest of Prismfall: a playfield that paints letters on the terminal, random beams that grow on
// it, and the outcome of each.
#include <algorithm>
#include <array>
#include <cstddef>
#include <iostream>
#include <random>
#include <string>

#include "simulation/BeamRemoval.h"
#include "simulation/BeamSpawning.h"
#include "simulation/BeamStep.h"
#include "simulation/Playfield.h"

using namespace prismfall;

// One letter per 10 by 20 pixels. A beam's core is painted as a letter; its edges are left out.
struct Terminal : SurfacePainter {
    std::array<std::string, 31> rows;
    Terminal() { rows.fill(std::string(68, ' ')); }
    void SurfaceLine(int, int, int x, int y, Colour colour, int width) override {
        if (width != kBeamWidth || x < 0 || x >= 680 || y < 0 || y >= 620) return;
        const auto color = static_cast<std::size_t>(std::ranges::find(LineColors, colour) - LineColors.begin());
        rows[static_cast<std::size_t>(y / 20)][static_cast<std::size_t>(x / 10)] = "bgry. "[color];
    }
    void SurfaceBox(int, int, int, int, Colour, int) override {}
    void SurfaceRestore(int, int, int, int) override {}
    void SurfaceClear() override {}
};

struct Dice : Chance {
    std::mt19937 generator{7};
    double Random() override { return std::uniform_real_distribution<double>(0, 1)(generator); }
    void SeedRandomFromClock() override {}
};

int main() {
    Terminal terminal;
    Dice dice;
    Field field(terminal, dice);
    std::array<int, 5> outcomes{};
    for (int tick = 0; tick < 600; ++tick) {
        if (tick % 60 == 0) CreateLine(field, kSpawnHeight);
        field.GrowthToggle = field.GrowthToggle == 0 ? 1 : 0;
        for (std::size_t i = 0, count = field.Lines.size(); i < count; ++i)
            ++outcomes[static_cast<std::size_t>(GrowLine(field, *field.Lines[i]))];
        if (ThinDyingLines(field) && RemoveGoneLines(field)) RedrawLines(field);
    }
    for (const std::string& row : terminal.rows) std::cout << row << '\n';
    std::cout << outcomes[1] << " bounces, " << outcomes[3] << " stopped, " << outcomes[4] << " destroyed\n";
}
