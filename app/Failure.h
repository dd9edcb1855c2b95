// When the program crashes, it saves the recording of the current game, which is the best bug report.
#pragma once

#include "backends/sdl/recordings/RecordingFolder.h"
#include "game/GameRecorder.h"

namespace prismfall {

// From now on, a crash or an abort first writes the recording so far to the folder, and says where, on standard error
// and in a box. Both arguments must exist until the program ends. Call this once.
void KeepGameOnFailure(const GameRecorder& recorder, const RecordingFolder& folder);

}  // namespace prismfall
