#include "settings/Settings.h"

namespace prismfall {

void EnterGame(Settings& settings, const ScoreRow& game) {
    if (EnterScore(settings.Scores, game)) settings.Stored.gamesEntered.push_back(game);
}

void ForgetScores(Settings& settings) {
    settings.Scores.fill(kClearedRow);
    settings.Stored.scoresCleared = true;
    settings.Stored.gamesEntered.clear();
}

}  // namespace prismfall
