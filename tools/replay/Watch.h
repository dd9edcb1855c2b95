// Shows a recorded game in the main window, as it was played: painted, heard, paused, faster, forwards and back. The
// game that is shown runs on a machine of its own, so settings, scores and progress of the player stay as they are.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "game/VMain.h"
#include "recording/Recording.h"

namespace prismfall {

class Watch {
  public:
    // Takes over the window, the timers and the surface of `player`, a program that is in its main menu, until Leave.
    // While one watches, P or a left press pauses, Page Up and Page Down go ten seconds back and forth, a right press
    // changes the pace, R begins again and Esc leaves; a line in the window says so at first and in every pause.
    Watch(VMain& player, Recording recorded);
    ~Watch();
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;

  private:
    class Stage;

    void TakeWindow();
    void Leave();
    void Tick();
    void Show();
    void GoTo(std::int64_t newPosition);
    void Begin();
    void Press(MouseButton button);
    void Command(Key key);
    std::string Line() const;

    VMain& main;
    const Recording recording;
    std::unique_ptr<Stage> stage;
    WindowHandlers handlers;    // of the main window, when nobody watches; afterwards those for watching
    Element place;              // the line where it is otherwise
    std::int64_t position = 0;  // milliseconds of the game that is shown
    std::int64_t ticks = 0;     // since the line was shown
    int pace = 1;
    bool isPaused = false;
    bool isWatching = true;
};

}  // namespace prismfall
