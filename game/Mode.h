// The modes of the game by name. Modes.h says what each is like.
#pragma once

#include <cstdint>

namespace prismfall {

// The numbers are what scripts of the headless driver say and print.
enum class Mode : std::int32_t { MainMenu, PuzzleMenu, PuzzleGame, ArcadeGame, SolutionReplay };

}  // namespace prismfall
