// Shows a recorded game in the main window as it was played, with sound, at any pace, forwards and back. The game shown
// runs on a separate machine, so the player's settings, scores and progress are untouched. The player can take it over
// at any moment.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "game/GameLog.h"
#include "game/VMain.h"
#include "recording/Recording.h"

namespace prismfall {

constexpr int kFastestPace = 8;

struct WatchState {
    bool isWatching = false;
    bool isPaused = false;
    bool isOver = false;  // it has reached its end, or the point where it differs from its recording
    bool differs = false;
    int pace = 1;               // as a multiple of the original
    std::int64_t position = 0;  // milliseconds of the game
    std::int64_t length = 0;
};

class Watch final : private GameLog {
  public:
    // Takes over the window, the timers and the surface of `player`, a program that is in its main menu, until Leave.
    // P or a left press pauses, Page Up and Page Down jump ten seconds back and forth, a right press changes the pace,
    // R restarts, G or a double click takes the game over, and Esc leaves. Lines beside the playfield, or beside the
    // whole picture where there is room, say so at first and in every pause; the page has controls instead of the
    // lines.
    Watch(VMain& player, Recording recorded, bool hasLine = true);
    ~Watch() override;

    WatchState State() const;
    void SetPaused(bool paused) { isPaused = paused; }
    void SetPace(int newPace) { pace = std::clamp(newPace, 1, kFastestPace); }
    // Jumps to that moment of the game, in milliseconds. Going back plays it again from its start.
    void GoTo(std::int64_t newPosition);
    // Asks the player and, if they agree, hands the game over at the moment shown (see Takeover.h). Does nothing at the
    // end of the game. As soon as that game is over or left, the state that the player's next games begin with is what
    // it was before watching.
    void PlayOn();
    // Gives back the window and the timers, with no game in progress. Does nothing the second time.
    void Leave();

  private:
    class Stage;

    // Of a game that the player has taken over.
    void Begins(VMain& begun, GameKind kind) override;
    void Ends(VMain& ended, GameEnding ending) override;
    void EndPlayedOn();

    void TakeWindow();
    // Gives back the window and the timers, with no game in progress. Returns false if that was done before.
    bool GiveBack();
    void Tick();
    void Show();
    void Begin();
    void Press(MouseButton button);
    void Command(Key key);
    std::string Position() const;
    std::string Keys() const;

    VMain& main;
    const Recording recording;
    std::unique_ptr<Stage> stage;
    WindowHandlers handlers;        // of the main window, when nobody watches; afterwards those for watching
    std::vector<Element> elements;  // of the main window, when nobody watches
    GameNumbers numbers;            // the player's
    GameLog* log = nullptr;         // the player's, while a game is played on
    std::int64_t position = 0;      // milliseconds of the game shown
    std::int64_t ticks = 0;         // since the lines were shown
    int pace = 1;
    bool isPaused = false;
    bool isWatching = true;
    const bool showsLine;
};

}  // namespace prismfall
