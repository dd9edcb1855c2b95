// The modes of the game by name. Modes.h describes each.
#pragma once

#include <cstdint>

namespace prismfall {

// Scripts of the headless driver use and print these numbers.
enum class Mode : std::int32_t { MainMenu, PuzzleMenu, PuzzleGame, ArcadeGame, SolutionReplay };

}  // namespace prismfall
