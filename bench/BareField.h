// The baseline for the benchmarks: the game's arithmetic in bare loops over arrays, without lists, states or rules. It
// does not play a game.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/Surface.h"

namespace prismfall::bench {

struct BareField {
    std::vector<std::int16_t> xStart, yStart, xEnd, yEnd;
    std::vector<std::int8_t> sideways;  // 1 to the right, -1 to the left
    std::vector<std::uint8_t> colour, isGrowing;

    void Add(int tailX, int tailY, int headX, int headY, int color, bool grows);
    std::size_t Count() const { return xEnd.size(); }

    // The first beam near the test point, or Count().
    std::size_t FindNear(int x, int y, int prevY, int way) const;
    // One step of every growing beam, with its look-ahead and painting.
    void Tick(Surface& surface);
    // Runs one beam to the ground, painting each step.
    void RunDown(Surface& surface, std::size_t beam);
    void Paint(Surface& surface) const;

  private:
    bool Step(Surface& surface, std::size_t beam);
};

}  // namespace prismfall::bench
