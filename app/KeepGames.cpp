#include "app/KeepGames.h"

#include <algorithm>
#include <cstdio>

namespace prismfall {

namespace {

constexpr std::size_t kGamesKept = 20;

std::string ArcadeTitle(std::int16_t score, std::int16_t level) {
    return "Arcade " + std::to_string(score) + " points level " + std::to_string(level);
}

std::string TitleOf(const PlayedGame& game) {
    if (game.kind == GameKind::Arcade) return ArcadeTitle(game.score, game.level);
    const char* const ending = game.ending == GameEnding::Solved ? " solved" : "";
    return "Puzzle " + std::to_string(game.puzzle) + ending;
}

}  // namespace

std::optional<ArcadeResult> ParseArcadeTitle(std::string_view title) {
    ArcadeResult result;
    const std::string words(title);
    if (std::sscanf(words.c_str(), "Arcade %hd points level %hd", &result.score, &result.level) != 2)
        return std::nullopt;
    return result;
}

bool IsGameOf(const ScoreRow& row, std::string_view name) {
    return row.score > 0 && name.find(ArcadeTitle(row.score, row.endLevel) + '.') != std::string_view::npos;
}

void KeepGame(const RecordingFolder& folder, const VMain& main, const PlayedGame& game) {
    if (game.length < kShortestKept) return;
    const std::string failure = folder.Keep(TitleOf(game), game.recording);
    if (!failure.empty()) std::fprintf(stderr, "prismfall: the game is not kept: %s\n", failure.c_str());
    folder.Prune(kGamesKept, [&main](std::string_view name) {
        return std::ranges::any_of(main.settings.Scores, [name](const ScoreRow& row) { return IsGameOf(row, name); });
    });
}

}  // namespace prismfall
