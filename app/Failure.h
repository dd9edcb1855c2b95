// An error that ends the program leaves the recording of the game at hand, which is the best report of it.
#pragma once

#include "backends/sdl/recordings/RecordingFolder.h"
#include "game/GameRecorder.h"

namespace prismfall {

// From now on, whatever crashes or aborts the program first writes that recording to the folder, cut off where the game
// was, and says where it is, on standard error and in a box. Both must outlive the program. To be called once.
void KeepGameOnFailure(const GameRecorder& recorder, const RecordingFolder& folder);

}  // namespace prismfall
