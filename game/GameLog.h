// Is told when a game begins and ends, no matter who plays it. Recording games implements it; this one does nothing.
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

    // Called before the game does anything; a solution is a game that the player may take over. A game in progress
    // counts as left.
    virtual void Begins(VMain&, GameKind) {}
    // Called while beams, score and level are still as they were at the end. Leaving a menu ends no game, since none
    // has begun.
    virtual void Ends(VMain&, GameEnding) {}
};

inline GameLog noGameLog;

}  // namespace prismfall
