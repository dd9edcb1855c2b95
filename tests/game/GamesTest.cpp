// The window of kept games, and the rows of the score table that lead to them.
#include <gtest/gtest.h>

#include "game/GameEnd.h"
#include "game/HighScores.h"
#include "screens/Games.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

// A shelf of games whose levels are their numbers.
class Shelf : public TestGame {
  public:
    Shelf() { QuietStore().Load(); }

    // Clicks what is named in the window; what was done, and which game is watched then.
    std::string Click(std::initializer_list<std::string_view> names) {
        done.clear();
        for (const std::string_view name : names) machine.QueueAnswer(std::string(name));
        const auto act = [this](const char* what) {
            return [this, what](std::size_t game) {
                done += what + games.at(game) + ' ';
                return std::string("said");
            };
        };
        const KeptGames kept{.list = [this] { return Lines(); },
                             .copyLink = act("link "),
                             .save = act("save "),
                             .remove =
                                 [this](std::size_t game) {
                                     done += "remove " + games.at(game) + ' ';
                                     games.erase(games.begin() + static_cast<std::ptrdiff_t>(game));
                                     return std::string();
                                 }};
        const auto watched = ShowGames(main->dialogs, kept, "");
        return watched ? done + "watch " + games.at(*watched) : done;
    }

    std::vector<GameLine> Lines() const {
        std::vector<GameLine> lines;
        for (const std::string& game : games) lines.push_back({.level = game});
        return lines;
    }

    std::vector<std::string> games;
    std::string done;
};

TEST(Games, AreChosenOnPagesAndDeletedByASecondPress) {
    Shelf shelf;
    for (int i = 0; i < 26; ++i) shelf.games.push_back(std::to_string(i));
    EXPECT_EQ(shelf.Click({"Watch"}), "watch 0");
    EXPECT_EQ(shelf.Click({"Game3", "CopyLink", "NextPage", "SaveAs", "Watch"}), "link 2 save 14 watch 14");
    EXPECT_EQ(shelf.Click({"PreviousPage", "NextPage", "NextPage", "Game3", "Watch"}), "watch 24")
        << "there is no third";
    EXPECT_EQ(shelf.Click({"Delete", "Game2", "Delete", "CopyLink", "Delete"}), "link 1 ");
    EXPECT_EQ(shelf.Click({"NextPage", "NextPage", "Game2", "Delete", "Delete", "Delete", "Delete", "Command1"}),
              "remove 25 remove 24 ");
    EXPECT_EQ(shelf.games.size(), 24U);
    shelf.games.resize(1);
    EXPECT_EQ(shelf.Click({"NextPage", "Delete", "Delete", "Watch", "CopyLink", "Command1"}), "remove 0 ");
}

TEST(Games, OfTheScoreTableAreWatchedByAPressOnTheirRowsButNotDuringAGame) {
    for (const auto& [mode, isEnding, isWatched] : {std::tuple{Mode::MainMenu, false, true},
                                                    {Mode::PuzzleMenu, false, true},
                                                    {Mode::ArcadeGame, false, false},
                                                    {Mode::ArcadeGame, true, true}}) {
        TestGame game(mode);
        VMain& main = game.Main();
        main.settings.Scores[1].score = 70;
        const bool stays = !isWatched;  // structured bindings cannot be captured
        int asked = 0;
        main.watchScore = [&](const ScoreRow& row) { return asked += row.score, row.score > 0; };
        game.Machine().onDialog = [&](Window& dialog) {
            dialog.visible = true;
            game.Machine().Open(dialog);
            for (const float y : {60.F, 10.F, 115.F, 90.F})
                game.Machine().Input().PressSurface(dialog, MouseButton::Left, 100, y);
            EXPECT_EQ(dialog.visible, stays);
            dialog.visible = false;
            game.Machine().Input().Close(dialog);
        };
        if (isEnding)
            EndGame(main);
        else
            ShowHighScores(main);
        EXPECT_EQ(asked, isWatched ? 70 : 0);
    }
}

}  // namespace
}  // namespace prismfall
