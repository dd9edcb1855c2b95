// Keeps a recording of every game that was played: the last twenty, and those of the score table.
#pragma once

#include "backends/sdl/recordings/RecordingFolder.h"
#include "game/GameRecorder.h"

namespace prismfall {

// A folder that cannot be written costs a recording and nothing else: one line on standard error says why.
void KeepGame(const RecordingFolder& folder, const VMain& main, const PlayedGame& game);

}  // namespace prismfall
