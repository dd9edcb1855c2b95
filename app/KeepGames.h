// Keeps a recording of every game played: the last twenty, and those of the score table.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "backends/sdl/recordings/RecordingFolder.h"
#include "game/GameRecorder.h"

namespace prismfall {

// If the folder cannot be written, only the recording is lost: one line on standard error says why.
void KeepGame(const RecordingFolder& folder, const VMain& main, const PlayedGame& game);

// What the title of a kept Arcade game says; nothing for other titles.
struct ArcadeResult {
    std::int16_t score = 0;
    std::int16_t level = 0;
};
std::optional<ArcadeResult> ParseArcadeTitle(std::string_view title);

// Whether a file of that name contains the game of a row of the score table.
bool IsGameOf(const ScoreRow& row, std::string_view name);

}  // namespace prismfall
