// Shows a recorded game in the main window, as it was played: painted, heard, paused, faster, forwards and back. The
// game that is shown runs on a machine of its own, so settings, scores and progress of the player stay as they are. The
// player can go on with it at any moment.
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
    bool isOver = false;  // it has come to its end, or to where it differs from its recording
    bool differs = false;
    int pace = 1;               // times as fast as it was played
    std::int64_t position = 0;  // milliseconds of the game
    std::int64_t length = 0;
};

class Watch final : private GameLog {
  public:
    // Takes over the window, the timers and the surface of `player`, a program that is in its main menu, until Leave.
    // While one watches, P or a left press pauses, Page Up and Page Down go ten seconds back and forth, a right press
    // changes the pace, R begins again, G or a double click goes on with the game and Esc leaves; lines beside the
    // playfield, or beside the whole picture where there is room, say so at first and in every pause. A page, which has
    // controls of its own, does without the lines.
    Watch(VMain& player, Recording recorded, bool hasLine = true);
    ~Watch() override;

    WatchState State() const;
    void SetPaused(bool paused) { isPaused = paused; }
    void SetPace(int newPace) { pace = std::clamp(newPace, 1, kFastestPace); }
    // To that moment of the game, in milliseconds; back is from its start again.
    void GoTo(std::int64_t newPosition);
    // Asks the player, and if they agree, hands the game over at the moment that is shown (see Takeover.h). Does
    // nothing at its end. What the player's next games find from before is as it was before the watching as soon as
    // that game is over or left.
    void PlayOn();
    // Gives back the window and the timers, with no game in progress. Does nothing the second time.
    void Leave();

  private:
    class Stage;

    // Of a game that the player goes on with.
    void Begins(VMain& begun, GameKind kind) override;
    void Ends(VMain& ended, GameEnding ending) override;
    void EndPlayedOn();

    void TakeWindow();
    // Gives back the window and the timers, with no game in progress. Returns false if that has been done.
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
    std::int64_t position = 0;      // milliseconds of the game that is shown
    std::int64_t ticks = 0;         // since the lines were shown
    int pace = 1;
    bool isPaused = false;
    bool isWatching = true;
    const bool showsLine;
};

}  // namespace prismfall
