#include "settings/ScoreTable.h"

#include <algorithm>

namespace prismfall {

bool EnterScore(ScoreTable& table, const ScoreRow& game) {
    const auto place = std::ranges::find_if(table, [&](const ScoreRow& row) { return row.score < game.score; });
    if (place == table.end()) return false;
    std::move_backward(place, table.end() - 1, table.end());
    *place = game;
    return true;
}

}  // namespace prismfall
