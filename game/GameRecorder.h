// Records every game that is played, from the click that starts it to its end or to leaving it.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "game/GameLog.h"
#include "game/VMain.h"
#include "recording/Recorder.h"

namespace prismfall {

// Milliseconds; a shorter game was left at once, and is not worth keeping.
constexpr std::int64_t kShortestKept = 1000;

// A finished game and its result.
struct PlayedGame {
    std::string recording;
    GameKind kind{};
    GameEnding ending{};
    std::int16_t puzzle = 0;
    std::int16_t score = 0;
    std::int16_t level = 0;
    std::int64_t length = 0;  // milliseconds
};

// One per run of the program: it listens to the machine while it exists, and `main` must outlive it. A solution
// that the program plays is not a game, unless the player takes it over.
class GameRecorder final : public GameLog {
  public:
    GameRecorder(VMain& main, std::function<void(const PlayedGame& game)> keepGame);
    ~GameRecorder() override;

    void Begins(VMain& main, GameKind kind) override;
    void Ends(VMain& main, GameEnding ending) override;

    // The recording so far of the game in progress; empty if there is none. Valid until the next handler.
    std::string_view TextSoFar() const;
    // The game in progress, as if it were left now; the real one goes on. Nothing if there is none.
    std::optional<PlayedGame> LeftNow() const;

  private:
    PlayedGame Played(GameEnding ending, std::string text) const;

    VMain& game;
    Recorder recorder;
    std::function<void(const PlayedGame& game)> keep;
    GameKind begunAs{};
};

// The words after the moment in the line of an end.
std::string EndingWords(const VMain& main, GameEnding ending);

}  // namespace prismfall
