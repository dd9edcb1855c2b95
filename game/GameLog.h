// Is told where each game begins and ends, whoever plays it. Games are recorded there; this one does nothing.
#pragma once

#include <cstdint>

namespace prismfall {

struct VMain;

enum class GameKind { Arcade, Puzzle, Solution };
enum class GameEnding { Lost, Solved, Left };

class GameLog {
  public:
    GameLog() = default;
    GameLog(const GameLog&) = delete;
    GameLog& operator=(const GameLog&) = delete;
    virtual ~GameLog() = default;

    // Before the first thing that the game does; a solution is a game that the player may take over. A game that is in
    // progress is left by it.
    virtual void Begins(VMain&, GameKind) {}
    // With beams, score and level as the game has ended. A menu that is left is no game, and then nothing has begun.
    virtual void Ends(VMain&, GameEnding) {}
};

inline GameLog noGameLog;

}  // namespace prismfall
