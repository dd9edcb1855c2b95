#include "state/GameModes.h"

namespace prismfall {

bool IsPuzzle(const VMain& main) { return main.GameMode == kPuzzleGame || main.GameMode == kSolutionReplay; }

}  // namespace prismfall
