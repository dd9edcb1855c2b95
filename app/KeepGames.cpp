#include "app/KeepGames.h"

#include <algorithm>
#include <cstdio>

namespace prismfall {

namespace {

constexpr std::size_t kGamesKept = 20;
constexpr std::int64_t kShortest = 1000;  // milliseconds; what is left at once is no game

std::string ArcadeTitle(std::int16_t score, std::int16_t level) {
    return "Arcade " + std::to_string(score) + " points level " + std::to_string(level);
}

std::string TitleOf(const PlayedGame& game) {
    if (game.kind == GameKind::Arcade) return ArcadeTitle(game.score, game.level);
    const char* const ending = game.ending == GameEnding::Solved ? " solved" : "";
    return "Puzzle " + std::to_string(game.puzzle) + ending;
}

bool IsInTable(const ScoreTable& scores, std::string_view name) {
    return std::ranges::any_of(scores, [name](const ScoreRow& row) {
        return row.score > 0 && name.find(ArcadeTitle(row.score, row.endLevel) + '.') != std::string_view::npos;
    });
}

}  // namespace

void KeepGame(const RecordingFolder& folder, const VMain& main, const PlayedGame& game) {
    if (game.length < kShortest) return;
    const std::string failure = folder.Keep(TitleOf(game), game.recording);
    if (!failure.empty()) std::fprintf(stderr, "prismfall: the game is not kept: %s\n", failure.c_str());
    folder.Prune(kGamesKept, [&main](std::string_view name) { return IsInTable(main.settings.Scores, name); });
}

}  // namespace prismfall
