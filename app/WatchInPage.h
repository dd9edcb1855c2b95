// Watching recorded games in the page, which has the controls for it outside the game's picture.
#pragma once

#include <optional>

#include "backends/web/WebPlatform.h"
#include "game/VMain.h"
#include "tools/replay/Watch.h"

namespace prismfall {

class WatchInPage {
  public:
    // Both must outlive this. A recording that the page has ready at the program's start is watched at once, and then
    // nothing of a first run is shown.
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
    // The recording that the page has ready; the page is told what is wrong with it.
    static std::optional<Recording> TakeRecording();

    WebPlatform& platform;
    VMain& main;
    std::optional<Watch> watch;
    bool isAsked = false;  // for what the page has ready
    page::WatchRecord reported;
};

}  // namespace prismfall
