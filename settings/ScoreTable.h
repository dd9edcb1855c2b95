// The table of the ten best Arcade games, and the rule for entering a game.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace prismfall {

constexpr std::size_t kScoreRows = 10;

// A finished game. A free row has score 0.
struct ScoreRow {
    std::int16_t score = 0;
    std::int16_t startLevel = 1;
    std::int16_t endLevel = 1;

    bool operator==(const ScoreRow&) const = default;
};

// From the best down: row 1 is entry 0.
using ScoreTable = std::array<ScoreRow, kScoreRows>;

constexpr ScoreRow kClearedRow = {0, 0, 0};

// Inserts a game above the first lower score, so below older equal ones, and drops the last row. Returns false and
// changes nothing if no score is lower.
bool EnterScore(ScoreTable& table, const ScoreRow& game);

}  // namespace prismfall
