// What the player does with recorded games: the window opened with F2, games dropped on the main window or opened by
// the desktop, rows of the score table.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "backends/sdl/SdlPlatform.h"
#include "backends/sdl/recordings/RecordingFolder.h"
#include "game/VMain.h"
#include "screens/Games.h"
#include "tools/replay/Watch.h"

namespace prismfall {

class RecordedGames {
  public:
    // For a program whose main window has been made but not yet shown. All the arguments must outlive this.
    RecordedGames(SdlPlatform& desktop, VMain& game, const RecordingFolder& keptGames);

    // Watches a game, now that the program is in its main menu.
    void Watch(Recording recording);

  private:
    // Watches a game of the player's choice, from a file or a link, and leaves whatever is in progress. An error box
    // says why it cannot be watched.
    void Open(const std::string& fileOrLink);
    void Show();
    bool WatchScore(const ScoreRow& row);

    std::vector<GameLine> List();
    std::string CopyLink(const std::string& name) const;
    std::string Save(const std::string& name) const;
    std::string Remove(const std::string& name) const;

    SdlPlatform& platform;
    VMain& main;
    const RecordingFolder& folder;
    std::vector<std::string> names;  // of the files that the window lists
    std::optional<prismfall::Watch> watch;
};

}  // namespace prismfall
