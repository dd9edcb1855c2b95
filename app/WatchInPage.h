// Watching recorded games in the page, which has its own controls outside the game's picture.
#pragma once

#include <optional>

#include "backends/web/WebPlatform.h"
#include "game/VMain.h"
#include "tools/replay/Watch.h"

namespace prismfall {

class WatchInPage {
  public:
    // Both must outlive this. A recording that the page has ready when the program starts is shown at once, and the
    // introduction of a first run is left out.
    WatchInPage(WebPlatform& machine, VMain& player);
    ~WatchInPage();
    WatchInPage(const WatchInPage&) = delete;
    WatchInPage& operator=(const WatchInPage&) = delete;

    // Tells the page what has changed.
    void Report();

  private:
    void Take(page::WatchCommand command, float value);
    void BeginAsked();
    bool GoToMenu();
    // The recording that the page has ready. Tells the page if it cannot be watched.
    static std::optional<Recording> TakeRecording();

    WebPlatform& platform;
    VMain& main;
    std::optional<Watch> watch;
    bool isAsked = false;  // to show what the page has ready
    page::WatchRecord reported;
};

}  // namespace prismfall
